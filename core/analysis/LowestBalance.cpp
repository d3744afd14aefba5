#include "core/analysis/LowestBalance.hpp"

#include "core/analysis/UpcomingRecurring.hpp"

#include <utility>
#include <vector>

namespace vantello {

namespace {

// How an occurrence moves the balance looked at.
Decimal effectOf(const RecurringOccurrence& occurrence, const std::optional<std::string>& accountID) {
    if (!accountID) {
        if (occurrence.isTransfer()) return Decimal();
        return occurrence.kind == TransactionKind::income ? occurrence.amount : -occurrence.amount;
    }
    Decimal effect;
    if (occurrence.accountID == *accountID) {
        effect += occurrence.kind == TransactionKind::income ? occurrence.amount : -occurrence.amount;
    }
    if (occurrence.transferToAccountID == *accountID) effect += occurrence.amount;
    return effect;
}

}  // namespace

BalanceTally::BalanceTally(const Ledger& ledger, std::optional<std::string> accountID)
    : accountID_(std::move(accountID)) {
    for (const Account& account : ledger.accounts()) {
        if (!accountID_ || account.id == *accountID_) total_ += account.openingBalance;
    }
}

void BalanceTally::add(const Transaction& transaction) {
    const bool income = transaction.kind == TransactionKind::income && !transaction.isTransfer();
    // Summing every account, a transfer moves money between accounts summed here: nothing changes.
    const bool leaves = accountID_ ? transaction.accountID == *accountID_ : !transaction.isTransfer();
    if (leaves) {
        if (income) {
            total_ += transaction.amount;
        } else {
            total_ -= transaction.amount;
        }
    }
    if (accountID_ && transaction.transferToAccountID == *accountID_) total_ += transaction.amount;
}

LowestBalance lowestBalance(const Ledger& ledger, Instant now, const Calendar& calendar, const Decimal& balanceNow,
                            const MonthForecast& forecast, const std::optional<std::string>& accountID) {
    const DateInterval month = calendar.monthInterval(now);
    const Instant today = calendar.startOfDay(now);
    const std::vector<RecurringOccurrence> upcoming =
        upcomingRecurring(ledger, today, month.end - std::chrono::seconds{1}, calendar);

    // Day 0 is today, then the remaining days 1...daysRemaining.
    std::size_t next = 0;
    Decimal balance = balanceNow;
    LowestBalance lowest{balance, today, accountID};
    Instant dayStart = today;
    for (int day = 0; day <= forecast.daysRemaining; ++day) {
        const Instant dayEnd = calendar.dayInterval(dayStart).end;
        for (; next < upcoming.size() && upcoming[next].date < dayEnd; ++next) {
            balance += effectOf(upcoming[next], accountID);
        }
        Decimal endOfDay = balance;
        if (day > 0) {
            endOfDay -= (forecast.estimatedVariableExpenses * Decimal(day))
                            .dividedBy(Decimal(forecast.daysRemaining))
                            .value_or(Decimal())
                            .rounded(2, RoundingMode::plain);
        }
        if (day == 0 || endOfDay < lowest.balance) lowest = LowestBalance{endOfDay, dayStart, accountID};
        dayStart = dayEnd;
    }
    return lowest;
}

LowestBalance lowestBalance(const Ledger& ledger, Instant now, const Calendar& calendar,
                            const std::optional<std::string>& accountID) {
    BalanceTally balance(ledger, accountID);
    MonthForecastTally forecast(now, calendar, 3, accountID);
    for (const Transaction& transaction : ledger.transactions()) {
        balance.add(transaction);
        forecast.add(transaction);
    }
    return lowestBalance(ledger, now, calendar, balance.total(), forecast.result(ledger), accountID);
}

}  // namespace vantello
