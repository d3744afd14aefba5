#include "core/analysis/SearchPeriod.hpp"
#include "core/analysis/TransactionSearch.hpp"

#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

Transaction movement(Instant date, std::string note, Decimal amount = 10, std::string categoryID = "spesa") {
    Transaction made;
    made.id = Uuid::random();
    made.kind = TransactionKind::expense;
    made.amount = amount;
    made.date = date;
    made.categoryID = std::move(categoryID);
    made.note = std::move(note);
    return made;
}

std::vector<std::string> notesFound(const Ledger& ledger, const TransactionFilter& filter,
                                    Instant now = at(2025, 3, 20)) {
    std::vector<std::string> notes;
    for (const Transaction& found : searchTransactions(ledger, filter, now, rome())) notes.push_back(found.note);
    return notes;
}

TransactionFilter withText(std::string text) {
    TransactionFilter filter;
    filter.text = std::move(text);
    return filter;
}

TEST(TransactionSearch, TextIgnoresCaseAndAccentsInNotes) {
    LedgerData data;
    data.transactions = std::vector{movement(at(2025, 3, 3), "CAFFE' al banco"), movement(at(2025, 3, 2), "Caffè"),
                                    movement(at(2025, 3, 1), "CAFFÈ corretto"), movement(at(2025, 2, 1), "Tè freddo")};
    const Ledger ledger(data);
    const std::vector<std::string> coffees{"CAFFE' al banco", "Caffè", "CAFFÈ corretto"};
    EXPECT_EQ(notesFound(ledger, withText("caffè")), coffees);
    EXPECT_EQ(notesFound(ledger, withText("  caffe ")), coffees);  // the ASCII text still finds accented notes
    EXPECT_EQ(notesFound(ledger, withText("AL BANCO")), std::vector<std::string>{"CAFFE' al banco"});
    EXPECT_EQ(notesFound(ledger, withText("   ")).size(), 4u);  // blank text is no condition
}

TEST(TransactionSearch, TextAlsoMatchesExactAmountAndCategoryName) {
    LedgerData data;
    data.transactions = std::vector{movement(at(2025, 3, 5), "Pranzo", Decimal(125, -1), "ristoranti"),
                                    movement(at(2025, 3, 4), "Cena", Decimal(1205, -2), "ristoranti"),
                                    movement(at(2025, 3, 3), "Affitto", Decimal(1250), "casa"),
                                    movement(at(2025, 3, 2), "Esselunga", Decimal(40), "spesa")};
    const Ledger ledger(data);
    EXPECT_EQ(notesFound(ledger, withText("12,50")), std::vector<std::string>{"Pranzo"});
    EXPECT_EQ(notesFound(ledger, withText("1.250,00")), std::vector<std::string>{"Affitto"});
    // "Ristoranti e bar": part of the name finds the category's movements whatever their notes.
    EXPECT_EQ(notesFound(ledger, withText("RISTORANT")), (std::vector<std::string>{"Pranzo", "Cena"}));
    EXPECT_EQ(notesFound(ledger, withText("alimentare")), std::vector<std::string>{"Esselunga"});
}

TEST(TransactionSearch, EveryConditionMustHoldAndNewestComesFirst) {
    Ledger ledger;
    ledger.add(movement(at(2025, 1, 10), "ten", 10));
    ledger.add(movement(at(2025, 3, 10), "twenty", 20));
    Transaction withReceipt = movement(at(2025, 2, 10), "thirty with receipt", 30);
    withReceipt.attachments.push_back(Attachment{Uuid::random(), "scontrino.pdf", "x.pdf", 10, at(2025, 2, 10)});
    ledger.add(withReceipt);
    Transaction salary = movement(at(2025, 2, 27), "salary", 20, "stipendio");
    salary.kind = TransactionKind::income;
    ledger.add(salary);

    TransactionFilter filter;
    EXPECT_EQ(notesFound(ledger, filter),
              (std::vector<std::string>{"twenty", "salary", "thirty with receipt", "ten"}));
    filter.minAmount = Decimal(20);
    filter.maxAmount = Decimal(30);  // both bounds are included
    EXPECT_EQ(notesFound(ledger, filter), (std::vector<std::string>{"twenty", "salary", "thirty with receipt"}));
    filter.kind = TransactionKind::expense;
    EXPECT_EQ(notesFound(ledger, filter), (std::vector<std::string>{"twenty", "thirty with receipt"}));
    filter.onlyWithAttachments = true;
    EXPECT_EQ(notesFound(ledger, filter), std::vector<std::string>{"thirty with receipt"});
    filter.categoryIDs = {"casa"};
    EXPECT_TRUE(notesFound(ledger, filter).empty());

    TransactionFilter byAccount;
    byAccount.accountID = "conto-altro";
    EXPECT_TRUE(notesFound(ledger, byAccount).empty());
    byAccount.accountID = "principale";
    EXPECT_EQ(notesFound(ledger, byAccount).size(), 4u);
}

TEST(TransactionSearch, CustomPeriodIncludesItsWholeEndDay) {
    LedgerData data;
    data.transactions = std::vector{movement(at(2025, 3, 11, 0, 0), "next day"),
                                    movement(at(2025, 3, 10, 23, 59, 59), "late"),
                                    movement(at(2025, 3, 10, 0, 0), "midnight"),
                                    movement(at(2025, 3, 9, 23, 59, 59), "day before")};
    const Ledger ledger(data);
    TransactionFilter filter;
    filter.period = TransactionFilter::Period::custom;
    filter.customStart = at(2025, 3, 10, 15);
    filter.customEnd = at(2025, 3, 10, 9);
    EXPECT_EQ(notesFound(ledger, filter), (std::vector<std::string>{"late", "midnight"}));

    filter.customEnd.reset();  // open end
    EXPECT_EQ(notesFound(ledger, filter), (std::vector<std::string>{"next day", "late", "midnight"}));
    filter.customEnd = at(2025, 3, 9);  // ends before it starts
    EXPECT_TRUE(notesFound(ledger, filter).empty());
}

TEST(TransactionSearch, PeriodsFollowTheCalendar) {
    TransactionFilter filter;
    const Instant now = at(2025, 3, 31, 23, 30);
    EXPECT_FALSE(periodInterval(filter, now, rome()));
    filter.period = TransactionFilter::Period::last12Months;
    EXPECT_EQ(periodInterval(filter, now, rome()), (DateInterval{at(2024, 4, 1, 0, 0), at(2025, 4, 1, 0, 0)}));
    filter.period = TransactionFilter::Period::thisYear;
    EXPECT_EQ(periodInterval(filter, now, rome()), (DateInterval{at(2025, 1, 1, 0, 0), at(2026, 1, 1, 0, 0)}));
    filter.period = TransactionFilter::Period::thisMonth;
    EXPECT_EQ(periodInterval(filter, now, rome()), (DateInterval{at(2025, 3, 1, 0, 0), at(2025, 4, 1, 0, 0)}));
}

}  // namespace
}  // namespace vantello
