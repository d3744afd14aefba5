#include "core/planning/LoanSchedule.hpp"

#include <algorithm>
#include <cmath>

namespace vantello {

namespace {

Decimal monthlyRate(const Loan& loan) { return *loan.annualRate.dividedBy(Decimal(1200)); }

Decimal withoutInterest(const Loan& loan) { return *loan.principal.dividedBy(Decimal(loan.months)); }

// The annuity in double precision, as banks quote it; the schedule then works in exact decimals.
// A rate too small for a double to tell from zero pays as if there were none.
Decimal annuity(const Loan& loan) {
    const double rate = monthlyRate(loan).toDouble();
    const double principal = loan.principal.toDouble();
    const double payment = rate * principal / (1 - std::pow(1 + rate, -static_cast<double>(loan.months)));
    return Decimal::fromDouble(payment).value_or(withoutInterest(loan));
}

}  // namespace

Decimal loanPayment(const Loan& loan) {
    if (loan.months < 1) return loan.principal;
    return (loan.annualRate.sign() > 0 ? annuity(loan) : withoutInterest(loan)).rounded(2);
}

std::vector<LoanPayment> loanSchedule(const Loan& loan, const Calendar& calendar) {
    const int count = std::max(loan.months, 1);
    const Decimal instalment = loanPayment(loan);
    const Decimal rate = monthlyRate(loan);
    std::vector<LoanPayment> schedule;
    schedule.reserve(static_cast<std::size_t>(std::min(count, 1200)));
    Decimal remaining = loan.principal;
    for (int number = 1; number <= count; ++number) {
        // Counted from the first payment each time, so a 31st stays the 31st after February.
        const std::optional<Instant> date = calendar.adding(CalendarUnit::month, number - 1, loan.firstPayment);
        if (!date) break;
        LoanPayment payment;
        payment.number = number;
        payment.date = *date;
        payment.interest = (remaining * rate).rounded(2);
        payment.principal = instalment - payment.interest;
        if (number == count || remaining < payment.principal) payment.principal = remaining;
        remaining -= payment.principal;
        payment.remaining = remaining;
        payment.amount = payment.principal + payment.interest;
        schedule.push_back(std::move(payment));
    }
    return schedule;
}

Decimal totalInterest(const std::vector<LoanPayment>& schedule) {
    Decimal total;
    for (const LoanPayment& payment : schedule) total += payment.interest;
    return total;
}

Decimal remainingCapital(const Loan& loan, const std::vector<LoanPayment>& schedule, Instant moment) {
    const auto paid = std::ranges::upper_bound(schedule, moment, {}, &LoanPayment::date);
    return paid == schedule.begin() ? loan.principal : std::prev(paid)->remaining;
}

LoanSummary loanSummary(const Loan& loan, Instant moment, const Calendar& calendar) {
    const std::vector<LoanPayment> schedule = loanSchedule(loan, calendar);
    LoanSummary summary;
    summary.payment = loanPayment(loan);
    summary.remaining = remainingCapital(loan, schedule, moment);
    summary.totalInterest = totalInterest(schedule);
    const auto made = std::ranges::upper_bound(schedule, moment, {}, &LoanPayment::date);
    summary.paymentsMade = static_cast<int>(made - schedule.begin());
    summary.paymentsLeft = static_cast<int>(schedule.size()) - summary.paymentsMade;
    summary.lastPayment = schedule.empty() ? loan.firstPayment : schedule.back().date;
    return summary;
}

void to_json(Json& json, const LoanPayment& payment) {
    json = Json{{"number", payment.number},       {"date", payment.date},
                {"amount", payment.amount},       {"interest", payment.interest},
                {"principal", payment.principal}, {"remaining", payment.remaining}};
}

void to_json(Json& json, const LoanSummary& summary) {
    json = Json{{"payment", summary.payment},           {"remaining", summary.remaining},
                {"paymentsMade", summary.paymentsMade}, {"paymentsLeft", summary.paymentsLeft},
                {"totalInterest", summary.totalInterest}, {"lastPayment", summary.lastPayment}};
}

}  // namespace vantello
