#pragma once
// A large, realistic ledger built from a fixed seed, so that every run of a benchmark measures
// the same data: movements over ten years on several accounts (transfers included), custom
// categories, budgets, recurring and category rules, people with shares, attachments, goals,
// loans, assets, work periods and saved searches.

#include "core/ledger/LedgerData.hpp"

#include <array>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace vantello::bench {

class LedgerGenerator {
public:
    explicit LedgerGenerator(std::uint64_t seed = 20240601) : random_(seed) {}

    // `movementCount` movements between 2015-01-01 and the end of 2024.
    [[nodiscard]] LedgerData generate(std::size_t movementCount = 100'000) {
        LedgerData data;
        makeAccountsAndCategories(data);
        makeRules(data);
        makePeople(data);
        makeMovements(data, movementCount);
        makePlans(data);
        return data;
    }

    // One more ordinary expense on the main account, as the editor would add it.
    [[nodiscard]] Transaction movement(Instant date) {
        Transaction transaction;
        transaction.id = uuid();
        transaction.kind = TransactionKind::expense;
        transaction.amount = cents(100, 9'000);
        transaction.date = date;
        transaction.categoryID = "spesa";
        transaction.note = "Supermercato Esselunga";
        return transaction;
    }

    static constexpr long long firstDay = 1'420'070'400;  // 2015-01-01T00:00:00Z
    static constexpr long long tenYears = 3653LL * 86'400;

private:
    Uuid uuid() {
        const std::uint64_t high = random_();
        const std::uint64_t low = random_();
        char text[40];
        std::snprintf(text, sizeof text, "%08X-%04X-4%03X-%04X-%012llX", static_cast<unsigned>(high >> 32),
                      static_cast<unsigned>((high >> 16) & 0xFFFF), static_cast<unsigned>(high & 0xFFF),
                      static_cast<unsigned>(0x8000 | ((low >> 48) & 0x3FFF)),
                      static_cast<unsigned long long>(low & 0xFFFF'FFFF'FFFFULL));
        return *Uuid::parse(text);
    }
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool chance(double probability) { return std::bernoulli_distribution(probability)(random_); }
    Decimal cents(int low, int high) { return Decimal(between(low, high), -2); }
    Instant dayIn(long long start, long long length) {
        const auto offset = std::uniform_int_distribution<long long>(0, length - 1)(random_);
        return instantFromUnixSeconds(start + offset / 60 * 60);
    }
    template <typename T>
    const T& pick(const std::vector<T>& values) {
        return values[static_cast<std::size_t>(between(0, static_cast<int>(values.size()) - 1))];
    }

    void makeAccountsAndCategories(LedgerData& data) {
        data.accounts.push_back(Account::main());
        const std::array<const char*, 3> names{"Carta di credito", "Contanti", "Conto risparmio"};
        const std::array<const char*, 3> symbols{"creditcard", "banknote", "building.columns"};
        for (std::size_t index = 0; index < names.size(); ++index) {
            std::optional<Decimal> threshold;
            if (index == 0) threshold = Decimal(200);
            data.accounts.push_back({"conto-" + uuid().text(), names[index], symbols[index],
                                     cents(0, 500'000), threshold});
        }
        const std::array<std::pair<const char*, TransactionKind>, 6> custom{{
            {"Animali", TransactionKind::expense},
            {"Regali", TransactionKind::expense},
            {"Viaggi", TransactionKind::expense},
            {"Palestra", TransactionKind::expense},
            {"Affitti incassati", TransactionKind::income},
            {"Rimborsi", TransactionKind::income},
        }};
        for (const auto& [name, kind] : custom) {
            data.customCategories.push_back({"custom-" + uuid().text(), name, "tag", kind});
        }
        for (const char* id : {"spesa", "casa", "bollette", "trasporti", "ristoranti", "svago"}) {
            data.budgets[id] = Decimal(between(10, 80) * 10);
        }
        data.budgets[data.customCategories[2].id] = Decimal(300);

        for (const auto& category : data.customCategories) {
            (category.kind == TransactionKind::expense ? expenseCategories_ : incomeCategories_)
                .push_back(category.id);
        }
    }

    void makeRules(LedgerData& data) {
        const struct {
            const char* note;
            const char* category;
            TransactionKind kind;
            int amount;
            RecurringRule::Frequency frequency;
        } recurring[] = {
            {"Stipendio", "stipendio", TransactionKind::income, 2'150'00, RecurringRule::Frequency::monthly},
            {"Affitto", "casa", TransactionKind::expense, 750'00, RecurringRule::Frequency::monthly},
            {"Netflix", "abbonamenti", TransactionKind::expense, 12'99, RecurringRule::Frequency::monthly},
            {"Spotify", "abbonamenti", TransactionKind::expense, 10'99, RecurringRule::Frequency::monthly},
            {"Assicurazione auto", "trasporti", TransactionKind::expense, 480'00, RecurringRule::Frequency::yearly},
            {"Pulizie", "casa", TransactionKind::expense, 40'00, RecurringRule::Frequency::weekly},
        };
        for (const auto& rule : recurring) {
            RecurringRule made;
            made.id = uuid();
            made.kind = rule.kind;
            made.amount = Decimal(rule.amount, -2);
            made.categoryID = rule.category;
            made.accountID = std::string(mainAccountID);
            made.note = rule.note;
            made.frequency = rule.frequency;
            made.startDate = instantFromUnixSeconds(firstDay + 43'200);
            made.lastGenerated = instantFromUnixSeconds(firstDay + tenYears - 86'400);
            data.recurringRules.push_back(made);
        }
        RecurringRule saving = data.recurringRules.front();
        saving.id = uuid();
        saving.kind = TransactionKind::expense;
        saving.categoryID = std::string(transferCategoryID);
        saving.note = "Risparmio mensile";
        saving.amount = Decimal(200);
        saving.transferToAccountID = data.accounts[3].id;
        saving.endDate = instantFromUnixSeconds(firstDay + tenYears);
        data.recurringRules.push_back(saving);

        const std::vector<std::pair<const char*, const char*>> patterns{
            {"esselunga", "spesa"},   {"coop", "spesa"},        {"conad", "spesa"},
            {"enel", "bollette"},     {"hera", "bollette"},     {"tim", "bollette"},
            {"trenitalia", "trasporti"}, {"atm", "trasporti"},  {"eni", "trasporti"},
            {"pizzeria", "ristoranti"}, {"bar", "ristoranti"},  {"cinema", "svago"},
            {"farmacia", "salute"},   {"zara", "abbigliamento"}, {"amazon", "altre-uscite"},
        };
        for (const auto& [pattern, category] : patterns) data.categoryRules.push_back({uuid(), pattern, category});
        data.categoryRules.push_back({uuid(), "veterinario", data.customCategories[0].id});
    }

    void makePeople(LedgerData& data) {
        for (const char* name : {"Giulia", "Marco", "Sara", "Luca"}) data.people.push_back({uuid(), name});
    }

    void makeMovements(LedgerData& data, std::size_t count) {
        static const std::vector<std::string> merchants{
            "Supermercato Esselunga", "Coop Lombardia", "Conad City", "Enel Energia bolletta",
            "Hera acqua", "TIM fibra", "Trenitalia Frecciarossa", "ATM Milano abbonamento",
            "Eni Station", "Pizzeria da Gino", "Bar Centrale", "Cinema Anteo", "Farmacia Comunale",
            "Zara Corso Buenos Aires", "Amazon marketplace", "Ferramenta Rossi", "Libreria Feltrinelli",
            "IKEA Carugate", "Veterinario Dr Bianchi", "Decathlon", "Ryanair", "Booking.com hotel",
        };
        const std::vector<std::string> expenseIDs = [&] {
            std::vector<std::string> ids{"spesa", "casa", "bollette", "trasporti", "ristoranti", "svago",
                                         "abbonamenti", "salute", "abbigliamento", "altre-uscite"};
            ids.insert(ids.end(), expenseCategories_.begin(), expenseCategories_.end());
            return ids;
        }();
        const std::vector<std::string> incomeIDs = [&] {
            std::vector<std::string> ids{"stipendio", "altre-entrate"};
            ids.insert(ids.end(), incomeCategories_.begin(), incomeCategories_.end());
            return ids;
        }();

        std::vector<Transaction> movements;
        movements.reserve(count);
        for (std::size_t index = 0; index < count; ++index) {
            Transaction transaction;
            transaction.id = uuid();
            transaction.date = dayIn(firstDay, tenYears);
            const auto source = static_cast<std::size_t>(between(0, 9) < 6 ? 0 : between(1, 3));
            transaction.accountID = data.accounts[source].id;
            const int roll = between(0, 99);
            if (roll < 3) {
                transaction.kind = TransactionKind::expense;
                transaction.categoryID = std::string(transferCategoryID);
                transaction.amount = cents(1'000, 100'000);
                transaction.note = "Giroconto";
                const auto destination = (source + static_cast<std::size_t>(between(1, 3))) % data.accounts.size();
                transaction.transferToAccountID = data.accounts[destination].id;
            } else if (roll < 15) {
                transaction.kind = TransactionKind::income;
                transaction.categoryID = pick(incomeIDs);
                transaction.amount = cents(5'00, 3'000'00);
                transaction.note = transaction.categoryID == "stipendio" ? "Stipendio" : "Bonifico ricevuto";
            } else {
                transaction.kind = TransactionKind::expense;
                transaction.categoryID = pick(expenseIDs);
                transaction.amount = cents(50, 400'00);
                transaction.note = pick(merchants) + " " + std::to_string(between(1, 999));
                if (chance(0.04)) {
                    const auto& person = data.people[static_cast<std::size_t>(between(0, 3))];
                    transaction.shares.push_back({person.id, (transaction.amount * Decimal(5, -1)).rounded(2, RoundingMode::down)});
                }
                if (chance(0.02)) {
                    transaction.currency = chance(0.5) ? "USD" : "GBP";
                    transaction.originalAmount = cents(50, 400'00);
                }
            }
            if (chance(0.01)) {
                const Uuid attachmentID = uuid();
                transaction.attachments.push_back({attachmentID, "scontrino.jpg", attachmentID.text() + ".jpg",
                                                   between(20'000, 2'000'000), transaction.date});
            }
            if (chance(0.05)) transaction.recurringRuleID = data.recurringRules[0].id;
            movements.push_back(std::move(transaction));
        }
        data.transactions = SharedList<Transaction>(std::move(movements));

        for (int index = 0; index < 40; ++index) {
            SharedEntry entry;
            entry.id = uuid();
            entry.personID = data.people[static_cast<std::size_t>(index % 4)].id;
            entry.kind = static_cast<SharedEntry::Kind>(index % 3);
            entry.amount = cents(100, 10'000);
            entry.date = dayIn(firstDay, tenYears);
            entry.note = "Cena";
            data.sharedEntries.push_back(entry);
        }
    }

    void makePlans(LedgerData& data) {
        for (const char* name : {"Vacanza in Giappone", "Fondo emergenze", "Auto nuova"}) {
            SavingsGoal goal;
            goal.id = uuid();
            goal.name = name;
            goal.symbol = "star";
            goal.target = Decimal(between(20, 200) * 100);
            goal.createdAt = instantFromUnixSeconds(firstDay);
            goal.deadline = instantFromUnixSeconds(firstDay + tenYears + 86'400 * 365);
            for (int index = 0; index < 24; ++index) {
                goal.contributions.push_back({uuid(), dayIn(firstDay, tenYears), cents(1'000, 50'000), "Versamento"});
            }
            data.savingsGoals.push_back(goal);
        }
        for (const char* name : {"Mutuo casa", "Prestito auto"}) {
            Loan loan;
            loan.id = uuid();
            loan.name = name;
            loan.principal = Decimal(between(10, 200) * 1000);
            loan.annualRate = Decimal(between(150, 550), -2);
            loan.months = between(36, 300);
            loan.firstPayment = instantFromUnixSeconds(firstDay + 86'400 * 40);
            loan.accountID = std::string(mainAccountID);
            loan.categoryID = "casa";
            data.loans.push_back(loan);
        }
        for (const char* name : {"Appartamento", "Fondo azionario"}) {
            Asset asset;
            asset.id = uuid();
            asset.name = name;
            asset.symbol = "house";
            for (int year = 0; year < 10; ++year) {
                asset.valuations.push_back({instantFromUnixSeconds(firstDay + year * 86'400LL * 365),
                                            cents(1'000'000, 30'000'000)});
            }
            data.assets.push_back(asset);
        }
        UnemploymentPeriod period;
        period.id = uuid();
        period.start = instantFromUnixSeconds(firstDay + 86'400LL * 900);
        period.end = instantFromUnixSeconds(firstDay + 86'400LL * 990);
        period.note = "Cambio lavoro";
        data.unemploymentPeriods.push_back(period);

        SavedSearch search;
        search.id = uuid();
        search.name = "Spese grandi";
        search.filter.text = "amazon";
        search.filter.minAmount = Decimal(100);
        data.savedSearches.push_back(search);

        for (int index = 0; index < 5; ++index) {
            data.ignoredSubscriptions.insert("abbonamento-" + std::to_string(index));
            data.dismissedAlerts.insert("avviso-2024-0" + std::to_string(index + 1));
        }
    }

    std::mt19937_64 random_;
    std::vector<std::string> expenseCategories_;
    std::vector<std::string> incomeCategories_;
};

}  // namespace vantello::bench
