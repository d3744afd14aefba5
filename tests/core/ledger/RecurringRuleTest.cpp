#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerAccounts.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/LedgerRecurring.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

RecurringRule rule(RecurringRule::Frequency frequency, Instant start, TransactionKind kind = TransactionKind::expense,
                   std::string categoryID = "abbonamenti") {
    RecurringRule made;
    made.id = Uuid::random();
    made.kind = kind;
    made.amount = Decimal(1299, -2);
    made.categoryID = std::move(categoryID);
    made.accountID = "principale";
    made.note = "Palestra";
    made.frequency = frequency;
    made.startDate = start;
    return made;
}

std::vector<Instant> datesOf(const Ledger& ledger) {
    std::vector<Instant> dates;
    for (const Transaction& transaction : ledger.transactions()) dates.push_back(transaction.date);
    return dates;
}

TEST(RecurringRule, MonthlyFromEndOfJanuaryClampsAtNoonAndCatchesUpOnce) {
    Ledger ledger;
    RecurringRule monthly = rule(RecurringRule::Frequency::monthly, at(2024, 1, 31, 9));
    addRecurringRule(ledger, monthly);

    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 4, 15, 10), rome()), 3);
    EXPECT_EQ(datesOf(ledger), (std::vector{at(2024, 1, 31), at(2024, 2, 29), at(2024, 3, 31)}));
    EXPECT_EQ(ledger.recurringRules()[0].lastGenerated, at(2024, 3, 31));
    EXPECT_EQ(ledger.transactions()[0].recurringRuleID, monthly.id);
    EXPECT_NE(ledger.transactions()[0].id, ledger.transactions()[1].id);

    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 4, 15, 18), rome()), 0);

    monthly.endDate = at(2024, 4, 20);
    updateRecurringRule(ledger, monthly);  // the edited copy does not know what was generated
    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 9, 1), rome()), 0);
    EXPECT_EQ(ledger.transactions().size(), 3u);
}

TEST(RecurringRule, StartAfterNoonIsNotCreatedTwice) {
    Ledger ledger;
    addRecurringRule(ledger, rule(RecurringRule::Frequency::yearly, at(2024, 2, 29, 15)));
    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 2, 29, 16), rome()), 1);
    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 3, 1), rome()), 0);
    EXPECT_EQ(generateDueTransactions(ledger, at(2025, 3, 1), rome()), 1);
    EXPECT_EQ(ledger.transactions().back().date, at(2025, 2, 28));
}

TEST(RecurringRule, SalaryIsNotCreatedForDaysWithoutWorkEvenLater) {
    LedgerData data;
    data.unemploymentPeriods.push_back({Uuid::random(), at(2024, 3, 10, 0), at(2024, 3, 18, 0), ""});
    Ledger ledger(data);
    addRecurringRule(ledger, rule(RecurringRule::Frequency::weekly, at(2024, 3, 4, 8), TransactionKind::income, "stipendio"));

    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 3, 20), rome()), 1);  // 11 and 18 March skipped
    EXPECT_EQ(ledger.recurringRules()[0].lastGenerated, at(2024, 3, 18));
    EXPECT_EQ(generateDueTransactions(ledger, at(2024, 4, 2), rome()), 2);
    EXPECT_EQ(datesOf(ledger), (std::vector{at(2024, 3, 4), at(2024, 3, 25), at(2024, 4, 1)}));
}

TEST(RecurringRule, TransferRuleCreatesTransfers) {
    Ledger ledger;
    const Account card = addAccount(ledger, "Carta", "creditcard", 0, std::nullopt);
    RecurringRule transfer = rule(RecurringRule::Frequency::monthly, at(2024, 1, 5), TransactionKind::income, "giroconto");
    transfer.transferToAccountID = card.id;
    addRecurringRule(ledger, transfer);
    ASSERT_EQ(generateDueTransactions(ledger, at(2024, 1, 6), rome()), 1);
    const Transaction& created = ledger.transactions()[0];
    EXPECT_EQ(created.kind, TransactionKind::expense);
    EXPECT_EQ(created.categoryID, "giroconto");
    EXPECT_EQ(created.transferToAccountID, card.id);
}

TEST(RecurringRule, LooksAtNoMoreThanTwoThousandCandidates) {
    Ledger ledger;
    addRecurringRule(ledger, rule(RecurringRule::Frequency::weekly, at(1975, 1, 6)));
    EXPECT_EQ(generateDueTransactions(ledger, at(2025, 1, 6), rome()), 2000);
    EXPECT_EQ(ledger.transactions().back().date, *rome().adding(CalendarUnit::weekOfYear, 1999, at(1975, 1, 6)));
}

TEST(RecurringRule, NextOccurrenceIsAfterLastGeneratedWithinTwoYears) {
    RecurringRule monthly = rule(RecurringRule::Frequency::monthly, at(2024, 1, 31, 9));
    EXPECT_EQ(monthly.nextOccurrence(at(2024, 1, 31, 12), rome()), at(2024, 2, 29));
    monthly.lastGenerated = at(2024, 3, 31);
    EXPECT_EQ(monthly.nextOccurrence(at(2024, 2, 1), rome()), at(2024, 4, 30));
    monthly.endDate = at(2024, 4, 29);
    EXPECT_EQ(monthly.nextOccurrence(at(2024, 2, 1), rome()), std::nullopt);

    const RecurringRule later = rule(RecurringRule::Frequency::yearly, at(2027, 1, 1));
    EXPECT_EQ(later.nextOccurrence(at(2024, 12, 31), rome()), std::nullopt);
    EXPECT_EQ(later.nextOccurrence(at(2025, 1, 2), rome()), at(2027, 1, 1));
}

TEST(RecurringRule, InvalidRulesLeaveLedgerAsItWas) {
    Ledger ledger;
    const RecurringRule valid = rule(RecurringRule::Frequency::monthly, at(2024, 1, 1));
    addRecurringRule(ledger, valid);
    const Ledger before = ledger;
    using Change = std::function<void(RecurringRule&)>;
    const std::vector<std::pair<Change, UserError>> refusals{
        {[](auto& r) { r.amount = 0; }, LedgerError(LedgerError::Code::amountNotPositive)},
        {[](auto& r) { r.categoryID = "stipendio"; }, LedgerError(LedgerError::Code::categoryKindMismatch)},
        {[](auto& r) { r.categoryID = "nessuna"; }, LedgerError(LedgerError::Code::unknownCategory, "nessuna")},
        {[&](auto& r) { r.id = valid.id; }, LedgerError(LedgerError::Code::duplicateID)},
        {[](auto& r) { r.accountID = "conto-X"; }, AdvancedError(AdvancedError::Code::unknownAccount)},
        {[](auto& r) { r.categoryID = "giroconto"; }, AdvancedError(AdvancedError::Code::transferWithoutDestination)},
        {[](auto& r) { r.transferToAccountID = "principale"; }, AdvancedError(AdvancedError::Code::transferToSameAccount)},
        {[](auto& r) { r.transferToAccountID = "conto-X"; }, AdvancedError(AdvancedError::Code::unknownAccount)},
        {[](auto& r) { r.endDate = at(2023, 12, 31); }, AdvancedError(AdvancedError::Code::invalidRecurrence)},
    };
    for (const auto& [change, expected] : refusals) {
        RecurringRule candidate = rule(RecurringRule::Frequency::monthly, at(2024, 1, 1));
        change(candidate);
        try {
            addRecurringRule(ledger, candidate);
            ADD_FAILURE() << "accepted, expected: " << expected.message();
        } catch (const UserError& error) {
            EXPECT_EQ(error.message(), expected.message());
        }
    }
    EXPECT_THROW(updateRecurringRule(ledger, rule(RecurringRule::Frequency::monthly, at(2024, 1, 1))), LedgerError);
    EXPECT_EQ(ledger, before);

    RecurringRule oneDay = rule(RecurringRule::Frequency::monthly, at(2024, 1, 1));
    oneDay.endDate = oneDay.startDate;
    EXPECT_NO_THROW(addRecurringRule(ledger, oneDay));
}

TEST(RecurringRule, WithTwoFaultsTheAccountComesFirstThenTheEndThenTheDestination) {
    Ledger ledger;
    const auto refusal = [&ledger](const RecurringRule& candidate) {
        try {
            addRecurringRule(ledger, candidate);
        } catch (const UserError& error) {
            return error.message();
        }
        return std::string("accepted");
    };
    RecurringRule toItselfEndingEarly = rule(RecurringRule::Frequency::monthly, at(2024, 1, 1));
    toItselfEndingEarly.transferToAccountID = "principale";
    toItselfEndingEarly.endDate = at(2023, 12, 31);
    EXPECT_EQ(refusal(toItselfEndingEarly), AdvancedError(AdvancedError::Code::invalidRecurrence).message());

    RecurringRule nowhereFromUnknown = rule(RecurringRule::Frequency::monthly, at(2024, 1, 1), TransactionKind::expense,
                                            "giroconto");
    nowhereFromUnknown.accountID = "conto-X";
    EXPECT_EQ(refusal(nowhereFromUnknown), AdvancedError(AdvancedError::Code::unknownAccount).message());
}

}  // namespace
}  // namespace vantello
