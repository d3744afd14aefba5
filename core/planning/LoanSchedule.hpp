#pragma once
// The repayment plan of a loan in equal monthly instalments (French amortisation): the
// instalment, every payment with its interest and capital, and what the plan says at a moment.
// Every amount is an exact decimal; only the annuity formula runs in double precision.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/Loan.hpp"

#include <vector>

namespace vantello {

struct LoanPayment {
    int number = 1;  // from 1
    Instant date;
    Decimal amount;     // paid that month: principal + interest
    Decimal interest;
    Decimal principal;  // the part that repays capital
    Decimal remaining;  // capital still owed afterwards
    bool operator==(const LoanPayment&) const = default;
};

// The instalment rounded to cents: the annuity r·P / (1 − (1 + r)^−n) with r = annualRate / 1200,
// principal / months without interest, the principal itself (unrounded) for fewer than one month.
[[nodiscard]] Decimal loanPayment(const Loan& loan);

// One payment a month from the first payment's date (same day of the month, clamped at month
// ends), at least one; interest rounded to cents each month. The last payment repays whatever
// capital is left, so the plan ends at zero. A plan reaching past the calendar's last year stops
// there.
[[nodiscard]] std::vector<LoanPayment> loanSchedule(const Loan& loan, const Calendar& calendar);

[[nodiscard]] Decimal totalInterest(const std::vector<LoanPayment>& schedule);

// The capital still owed at `moment`: the remaining capital of the last payment on or before
// it, the whole principal before the first.
[[nodiscard]] Decimal remainingCapital(const Loan& loan, const std::vector<LoanPayment>& schedule, Instant moment);

// What the list of loans shows of one loan at a moment.
struct LoanSummary {
    Decimal payment;
    Decimal remaining;  // capital still owed at the moment
    int paymentsMade = 0;  // payments dated on or before the moment
    int paymentsLeft = 0;
    Decimal totalInterest;  // over the whole plan
    Instant lastPayment;
    bool operator==(const LoanSummary&) const = default;
};

[[nodiscard]] LoanSummary loanSummary(const Loan& loan, Instant moment, const Calendar& calendar);

void to_json(Json& json, const LoanPayment& payment);
void to_json(Json& json, const LoanSummary& summary);

}  // namespace vantello
