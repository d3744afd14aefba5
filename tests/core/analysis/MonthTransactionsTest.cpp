#include "core/analysis/MonthTransactions.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;
using testing::expense;
using testing::noted;
using testing::rome;

std::vector<std::string> notesOf(const std::vector<Transaction>& transactions) {
    std::vector<std::string> notes;
    for (const Transaction& transaction : transactions) notes.push_back(transaction.note);
    return notes;
}

// Midnight in Rome is still the previous day in UTC: the month is the user's, not UTC's.
TEST(MonthTransactions, MonthIsTakenInTheCalendarsZoneNewestFirst) {
    LedgerData data;
    data.transactions = std::vector{
        noted(expense("10", at(2024, 2, 29, 23, 59, 59)), "fine febbraio"),
        noted(expense("10", at(2024, 3, 1, 0, 30)), "inizio marzo"),
        noted(expense("10", at(2024, 3, 15)), "metà marzo"),
        noted(expense("10", at(2024, 3, 31, 23, 59, 59)), "fine marzo"),
        noted(expense("10", at(2024, 4, 1, 0, 0)), "inizio aprile"),
    };
    const Ledger ledger(data);

    EXPECT_EQ(notesOf(monthTransactions(ledger, at(2024, 3, 10), rome())),
              (std::vector<std::string>{"fine marzo", "metà marzo", "inizio marzo"}));
    EXPECT_TRUE(monthTransactions(ledger, at(2023, 3, 10), rome()).empty());
}

}  // namespace
}  // namespace vantello
