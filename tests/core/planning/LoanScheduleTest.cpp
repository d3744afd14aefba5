#include "core/planning/LoanBooking.hpp"
#include "core/planning/LoanSchedule.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/LedgerLoans.hpp"
#include "core/ledger/LedgerRecurring.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::amount;
using testing::at;
using testing::rome;

Loan loanOf(const char* principal, const char* rate, int months, Instant firstPayment = at(2025, 1, 15)) {
    Loan loan;
    loan.id = Uuid::random();
    loan.name = "Mutuo casa";
    loan.principal = amount(principal);
    loan.annualRate = amount(rate);
    loan.months = months;
    loan.firstPayment = firstPayment;
    loan.accountID = std::string(mainAccountID);
    loan.categoryID = "casa";
    return loan;
}

TEST(LoanSchedule, TwentyFiveYearsRepayThePrincipalExactlyAndEndAtZero) {
    const Loan loan = loanOf("150000", "3.5", 300);
    const std::vector<LoanPayment> schedule = loanSchedule(loan, rome());
    ASSERT_EQ(schedule.size(), 300U);
    EXPECT_EQ(loanPayment(loan), amount("750.94"));
    Decimal paid;
    Decimal repaid;
    for (const LoanPayment& payment : schedule) {
        paid += payment.amount;
        repaid += payment.principal;
        EXPECT_EQ(payment.interest, payment.interest.rounded(2));
        if (payment.number < 300) {
            EXPECT_EQ(payment.amount, amount("750.94")) << payment.number;
        }
    }
    EXPECT_EQ(repaid, loan.principal);
    EXPECT_EQ(paid, loan.principal + totalInterest(schedule));
    EXPECT_EQ(schedule.back().remaining, Decimal());
    EXPECT_EQ(schedule.front().interest, amount("437.5"));  // 150000 × 3.5 / 1200
    EXPECT_EQ(rome().civilDate(schedule.back().date), (CivilDate{2049, 12, 15}));
}

TEST(LoanSchedule, InstalmentIsRoundedAndTheLastOneAbsorbsTheDifference) {
    const std::vector<LoanPayment> free = loanSchedule(loanOf("10000", "0", 12), rome());
    EXPECT_EQ(free.front().amount, amount("833.33"));
    EXPECT_EQ(free.back().amount, amount("833.37"));
    EXPECT_EQ(free.back().remaining, Decimal());

    const Loan mortgage = loanOf("100000", "3", 240);
    EXPECT_EQ(loanPayment(mortgage), amount("554.6"));
    const std::vector<LoanPayment> schedule = loanSchedule(mortgage, rome());
    EXPECT_NE(schedule.back().amount, amount("554.6"));
    EXPECT_EQ(schedule.back().remaining, Decimal());

    // Only old data can hold no months: the principal, paid at once.
    const Loan none = loanOf("1234.567", "0", 0);
    EXPECT_EQ(loanPayment(none), amount("1234.567"));
    EXPECT_EQ(loanSchedule(none, rome()).size(), 1U);
}

TEST(LoanSchedule, PaymentsKeepTheDayOfTheMonthClampedAtMonthEnds) {
    const Loan loan = loanOf("3000", "0", 3, at(2025, 1, 31, 10));
    const std::vector<LoanPayment> schedule = loanSchedule(loan, rome());
    EXPECT_EQ(schedule[1].date, at(2025, 2, 28, 10));
    EXPECT_EQ(schedule[2].date, at(2025, 3, 31, 10));
    EXPECT_EQ(remainingCapital(loan, schedule, at(2025, 1, 31, 9)), amount("3000"));
    EXPECT_EQ(remainingCapital(loan, schedule, at(2025, 2, 28, 10)), amount("1000"));
    EXPECT_EQ(remainingCapital(loan, schedule, at(2026, 1, 1)), Decimal());
}

TEST(LoanBooking, BooksEveryInstalmentOnceAndRebookingReplacesTheRule) {
    Ledger ledger;
    const Loan loan = loanOf("3000", "0", 3, at(2025, 1, 31, 10));
    saveLoan(ledger, loan);
    const RecurringRule rule = bookLoanInstalments(ledger, loan.id, rome());
    EXPECT_EQ(rule.amount, amount("1000"));
    EXPECT_EQ(ledger.data().loans.front().recurringRuleID, rule.id);
    EXPECT_EQ(generateDueTransactions(ledger, at(2026, 1, 1), rome()), 3);

    Loan dearer = loan;
    dearer.principal = amount("6000");
    saveLoan(ledger, dearer);
    const RecurringRule again = bookLoanInstalments(ledger, loan.id, rome());
    ASSERT_EQ(ledger.recurringRules().size(), 1U);
    EXPECT_EQ(again.id, rule.id);
    EXPECT_EQ(ledger.recurringRules().front().amount, amount("2000"));
    EXPECT_EQ(generateDueTransactions(ledger, at(2026, 1, 1), rome()), 0);  // already dealt with

    deleteLoan(ledger, loan.id);
    EXPECT_TRUE(ledger.recurringRules().empty());
    EXPECT_EQ(ledger.transactions().size(), 3U);
}

TEST(LoanBooking, RefusedRuleLeavesTheLedgerAsItWas) {
    Ledger ledger;
    Loan loan = loanOf("3000", "0", 3);
    loan.categoryID = "stipendio";  // an income category cannot book an expense
    saveLoan(ledger, loan);
    const Ledger before = ledger;
    EXPECT_THROW(bookLoanInstalments(ledger, loan.id, rome()), LedgerError);
    EXPECT_THROW(bookLoanInstalments(ledger, Uuid::random(), rome()), LedgerError);
    EXPECT_EQ(ledger, before);
}

}  // namespace
}  // namespace vantello
