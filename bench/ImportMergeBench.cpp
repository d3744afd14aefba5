// How long merging a bank statement into a large ledger takes with transfer detection on:
// category rules, duplicate and identifier lookups, transfer candidates by amount. Statements of
// 1,000, 10,000 and 100,000 rows into 100,000 movements, and 10,000 rows into 10,000, so that
// linear growth shows. Goal: 10,000 rows into 100,000 movements under 100 ms.
// A statement holds 10% rows already in the ledger, 5% other halves of transfers and the rest
// new movements in the fallback category, most of them named by a category rule.

#include "bench/LedgerGenerator.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/statements/ImportMerge.hpp"

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace vantello;

const Calendar rome("Europe/Rome");

const Ledger& generatedLedger(std::size_t movements) {
    static std::map<std::size_t, Ledger> ledgers;
    auto found = ledgers.find(movements);
    if (found == ledgers.end()) {
        found = ledgers.emplace(movements, Ledger(bench::LedgerGenerator().generate(movements))).first;
    }
    return found->second;
}

// The statement of the credit card (the second account) as the importer would hand it over.
std::vector<Transaction> statement(const Ledger& ledger, std::size_t rows) {
    static const std::vector<std::string> merchants{"POS Esselunga", "Coop", "Enel Energia", "Trenitalia",
                                                    "Pizzeria Roma", "Farmacia", "Zara", "Amazon EU",
                                                    "Negozio sotto casa", "Mercato rionale"};
    std::mt19937_64 random(7);
    const auto below = [&random](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    const std::string& card = ledger.accounts()[1].id;
    std::vector<const Transaction*> onCard;
    std::vector<const Transaction*> elsewhere;
    for (const Transaction& transaction : ledger.transactions()) {
        if (!transaction.isTransfer()) (transaction.accountID == card ? onCard : elsewhere).push_back(&transaction);
    }

    std::vector<Transaction> result;
    result.reserve(rows);
    while (result.size() < rows) {
        const std::size_t roll = below(100);
        Transaction row;
        if (roll < 10) {
            row = *onCard[below(onCard.size())];  // already imported once
            row.id = Uuid::random();
        } else if (roll < 15) {
            const Transaction& other = *elsewhere[below(elsewhere.size())];
            row.id = Uuid::random();
            row.kind = other.kind == TransactionKind::expense ? TransactionKind::income : TransactionKind::expense;
            row.amount = other.amount;
            row.date = other.date + std::chrono::hours(static_cast<int>(below(60)));
            row.note = "Giroconto";
        } else {
            row.id = Uuid::random();
            row.kind = below(10) == 0 ? TransactionKind::income : TransactionKind::expense;
            row.amount = Decimal(static_cast<std::int64_t>(100 + below(50'000)), -2);
            row.date = instantFromUnixSeconds(bench::LedgerGenerator::firstDay +
                                              static_cast<long long>(below(3650)) * 86'400 + 36'000);
            row.note = merchants[below(merchants.size())] + " " + std::to_string(below(100'000));
        }
        if (row.categoryID.empty()) row.categoryID = std::string(fallbackCategoryID(row.kind));
        result.push_back(std::move(row));
    }
    return result;
}

void BM_ImportMerge(benchmark::State& state) {
    const Ledger& base = generatedLedger(static_cast<std::size_t>(state.range(1)));
    const std::vector<Transaction> rows = statement(base, static_cast<std::size_t>(state.range(0)));
    const std::string card = base.accounts()[1].id;
    ImportResult result;
    std::optional<Ledger> ledger;
    for (auto _ : state) {
        state.PauseTiming();
        ledger = base;
        std::vector<Transaction> copy = rows;
        state.ResumeTiming();

        result = importTransactions(*ledger, std::move(copy), card, true, rome);
        benchmark::DoNotOptimize(result);

        state.PauseTiming();
        ledger.reset();
        state.ResumeTiming();
    }
    state.counters["added"] = result.added;
    state.counters["duplicates"] = result.duplicates;
    state.counters["transfers"] = result.transfers;
    state.counters["invalid"] = result.invalid;
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ImportMerge)
    ->ArgNames({"rows", "ledger"})
    ->Args({1'000, 100'000})
    ->Args({10'000, 100'000})
    ->Args({100'000, 100'000})
    ->Args({10'000, 10'000})
    ->Unit(benchmark::kMillisecond);

}  // namespace
