#include "core/analysis/PeriodTotals.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

TEST(PeriodTotals, TransfersNeverCountAndSharesDoNotReduceTheAmount) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-b", "Carta", "creditcard", {}, {}}};
    Transaction shared = expense("100", at(2026, 3, 10));
    shared.shares = {PersonShare{Uuid::random(), amount("60")}};
    data.transactions = std::vector{shared, income("1500", at(2026, 3, 1)),
                                    transfer("300", at(2026, 3, 5), std::string(mainAccountID), "conto-b")};
    const Ledger ledger(data);
    const PeriodTotals totals = periodTotals(ledger, rome().monthInterval(at(2026, 3, 15)));
    EXPECT_EQ(totals, (PeriodTotals{amount("1500"), amount("100")}));
    EXPECT_EQ(totals.net(), amount("1400"));

    LedgerData onlyTransfers;
    onlyTransfers.accounts = data.accounts;
    onlyTransfers.transactions = std::vector{transfer("300", at(2026, 3, 5), std::string(mainAccountID), "conto-b")};
    EXPECT_EQ(periodTotals(Ledger(onlyTransfers), rome().monthInterval(at(2026, 3, 15))), PeriodTotals{});
}

TEST(PeriodTotals, TheEndInstantBelongsToTheNextMonthOnly) {
    LedgerData data;
    data.transactions = std::vector{expense("10", at(2026, 4, 1, 0, 0, 0)), expense("1", at(2026, 3, 31, 23, 59, 59))};
    const Ledger ledger(data);
    EXPECT_EQ(periodTotals(ledger, rome().monthInterval(at(2026, 3, 15))).expenses, amount("1"));
    EXPECT_EQ(periodTotals(ledger, rome().monthInterval(at(2026, 4, 15))).expenses, amount("10"));
}

}  // namespace
}  // namespace vantello
