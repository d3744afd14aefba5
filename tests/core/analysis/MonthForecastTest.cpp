#include "core/analysis/MonthForecast.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

Transaction generated(Transaction transaction) {
    transaction.recurringRuleID = Uuid::random();
    return transaction;
}

// The 10th of a 30-day month, nothing earlier: ten days at 10 a day, twenty to go.
TEST(MonthForecast, WithoutEarlierMonthsTheRateComesFromThisMonthsDays) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-b", "Carta", "creditcard", {}, {}}};
    data.transactions = std::vector{
        expense("60", at(2026, 4, 2)), expense("40", at(2026, 4, 10, 20, 0)),
        generated(expense("500", at(2026, 4, 5), "casa")),                         // recurring: not variable
        transfer("300", at(2026, 4, 6), std::string(mainAccountID), "conto-b"),    // never counts
        income("1000", at(2026, 4, 1)), expense("70", at(2026, 4, 11, 0, 0)),      // tomorrow: not yet
    };
    const MonthForecast forecast = monthForecast(Ledger(data), at(2026, 4, 10, 9, 0), rome());
    EXPECT_EQ(forecast.actual, (PeriodTotals{Decimal(1000), Decimal(600)}));
    EXPECT_EQ(forecast.basisMonths, 0);
    EXPECT_EQ(forecast.daysRemaining, 20);
    EXPECT_EQ(forecast.estimatedVariableExpenses, Decimal(200));
    EXPECT_EQ(forecast.projectedBalance(), Decimal(200));
    EXPECT_EQ(forecastExplanation(forecast),
              "Non ci sono ancora mesi precedenti: la spesa variabile è stimata dai giorni già passati di questo mese, "
              "moltiplicata per i giorni che restano (20).");
}

// Only one earlier month holds movements, two months back: its own length is the divisor.
TEST(MonthForecast, ABasisMonthCountsItsOwnDays) {
    struct Case {
        CivilDate basisDay;
        int days;
        CivilDate now;
        int remaining;
    };
    for (const Case& sample : {Case{{2026, 2, 14}, 28, {2026, 4, 15}, 15}, Case{{2024, 2, 14}, 29, {2024, 4, 10}, 20},
                               Case{{2026, 4, 14}, 30, {2026, 6, 10}, 20}, Case{{2026, 1, 14}, 31, {2026, 3, 15}, 16}}) {
        LedgerData data;
        const std::string spent = std::to_string(sample.days * 10);
        data.transactions = std::vector{expense(spent.c_str(), at(sample.basisDay)), income("5", at(sample.basisDay))};
        const MonthForecast forecast = monthForecast(Ledger(data), at(sample.now), rome());
        EXPECT_EQ(forecast.basisMonths, 1) << sample.days;
        EXPECT_EQ(forecast.daysRemaining, sample.remaining) << sample.days;
        EXPECT_EQ(forecast.estimatedVariableExpenses, Decimal(10 * sample.remaining)) << sample.days;
    }
}

TEST(MonthForecast, TheLastDayLeavesNothingToEstimate) {
    LedgerData data;
    data.transactions = std::vector{expense("900", at(2026, 2, 10)), expense("10", at(2026, 3, 31, 8, 0))};
    const MonthForecast forecast = monthForecast(Ledger(data), at(2026, 3, 31, 23, 59, 59), rome());
    EXPECT_EQ(forecast.daysRemaining, 0);
    EXPECT_EQ(forecast.basisMonths, 1);
    EXPECT_EQ(forecast.estimatedVariableExpenses, Decimal());
    EXPECT_EQ(forecast.actual.expenses, Decimal(10));
}

// Days are calendar days: the 25-hour day of October and the 23-hour day of March are one day.
TEST(MonthForecast, MonthsAcrossAClockChange) {
    LedgerData data;
    data.transactions = std::vector{expense("310", at(2025, 10, 26, 1, 0)), income("10", at(2025, 9, 3)),
                                    generated(expense("99", at(2025, 10, 5)))};
    const MonthForecast november = monthForecast(Ledger(data), at(2025, 11, 10), rome());
    EXPECT_EQ(november.basisMonths, 2);  // September holds only income and still counts
    EXPECT_EQ(november.estimatedVariableExpenses, amount("101.64"));  // 310 / 61 × 20
    EXPECT_EQ(forecastExplanation(november),
              "Spesa variabile stimata: la media giornaliera dei mesi precedenti (2), esclusi i movimenti ricorrenti, "
              "moltiplicata per i giorni che restano (20).");

    LedgerData march;
    march.transactions = std::vector{expense("280", at(2026, 3, 2))};
    const MonthForecast beforeTheChange = monthForecast(Ledger(march), at(2026, 3, 28, 23, 30), rome());
    EXPECT_EQ(beforeTheChange.daysRemaining, 3);
    EXPECT_EQ(beforeTheChange.estimatedVariableExpenses, Decimal(30));
}

TEST(MonthForecast, UpcomingRecurringIsWhatGenerationHasNotCreatedYet) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-b", "Carta", "creditcard", {}, {}}};
    RecurringRule rent = monthlyRule(TransactionKind::expense, "600", "casa", at(2026, 1, 5));
    rent.lastGenerated = at(2026, 4, 5);
    RecurringRule gym = monthlyRule(TransactionKind::expense, "30", "svago", at(2026, 1, 10));  // noon today
    gym.lastGenerated = at(2026, 3, 10);
    RecurringRule salary = monthlyRule(TransactionKind::income, "1500", "stipendio", at(2026, 1, 27));
    RecurringRule saving = monthlyRule(TransactionKind::expense, "200", "giroconto", at(2026, 1, 20));
    saving.transferToAccountID = "conto-b";
    RecurringRule afterTheMonth = monthlyRule(TransactionKind::expense, "45", "bollette", at(2026, 5, 1));
    data.recurringRules = {rent, gym, salary, saving, afterTheMonth};
    const MonthForecast forecast = monthForecast(Ledger(data), at(2026, 4, 10, 9, 0), rome());
    EXPECT_EQ(forecast.upcomingRecurring, (PeriodTotals{Decimal(1500), Decimal(30)}));

    // No salary while out of work.
    data.unemploymentPeriods = {UnemploymentPeriod{Uuid::random(), at(2026, 4, 20, 0, 0), std::nullopt, ""}};
    EXPECT_EQ(monthForecast(Ledger(data), at(2026, 4, 10, 9, 0), rome()).upcomingRecurring.income, Decimal());
}

}  // namespace
}  // namespace vantello
