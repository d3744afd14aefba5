#include "core/planning/NetWorth.hpp"

#include "core/planning/LoanSchedule.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>

namespace vantello {

namespace {

// How a movement moves the sum of the ledger's accounts: +1 when money enters them, −1 when it
// leaves, 0 for a transfer between two of them. Accounts no longer in the ledger count nowhere.
int directionOnAccounts(const Transaction& transaction, const std::vector<std::string>& accountIDs) {
    const auto known = [&](const std::string& id) { return std::ranges::find(accountIDs, id) != accountIDs.end(); };
    const int leaving = known(transaction.accountID) ? 1 : 0;
    if (transaction.transferToAccountID) return (known(*transaction.transferToAccountID) ? 1 : 0) - leaving;
    return transaction.kind == TransactionKind::income ? leaving : -leaving;
}

void add(Decimal& total, const Transaction& transaction, const std::vector<std::string>& accountIDs) {
    const int direction = directionOnAccounts(transaction, accountIDs);
    if (direction > 0) total += transaction.amount;
    if (direction < 0) total -= transaction.amount;
}

std::vector<std::string> accountIDsOf(const Ledger& ledger) {
    std::vector<std::string> ids;
    for (const Account& account : ledger.accounts()) ids.push_back(account.id);
    return ids;
}

Decimal openingBalances(const Ledger& ledger) {
    Decimal total;
    for (const Account& account : ledger.accounts()) total += account.openingBalance;
    return total;
}

// The last valuation on or before the moment, as the list is stored; none counts zero.
Decimal assetsAt(const Ledger& ledger, Instant moment) {
    Decimal total;
    for (const Asset& asset : ledger.data().assets) {
        const auto valued = std::find_if(asset.valuations.rbegin(), asset.valuations.rend(),
                                         [&](const Asset::Valuation& valuation) { return valuation.date <= moment; });
        if (valued != asset.valuations.rend()) total += valued->value;
    }
    return total;
}

// The moments of the history: the last second of each earlier month, then `now`.
std::vector<Instant> historyMoments(int months, Instant now, const Calendar& calendar) {
    const Instant monthStart = calendar.monthInterval(now).start;
    std::vector<Instant> moments;
    for (int back = std::max(months, 1) - 1; back > 0; --back) {
        const std::optional<Instant> month = calendar.adding(CalendarUnit::month, -back, monthStart);
        if (month) moments.push_back(calendar.monthInterval(*month).end - std::chrono::seconds(1));
    }
    moments.push_back(now);
    return moments;
}

}  // namespace

NetWorth netWorth(const Ledger& ledger, Instant at, const Calendar& calendar) {
    const std::vector<std::string> accountIDs = accountIDsOf(ledger);
    NetWorth worth;
    worth.accounts = openingBalances(ledger);
    for (const Transaction& transaction : ledger.transactions()) {
        if (transaction.date <= at) add(worth.accounts, transaction, accountIDs);
    }
    worth.assets = assetsAt(ledger, at);
    for (const Loan& loan : ledger.data().loans) {
        worth.debts += remainingCapital(loan, loanSchedule(loan, calendar), at);
    }
    return worth;
}

std::vector<NetWorthPoint> netWorthHistory(const Ledger& ledger, int months, Instant now, const Calendar& calendar) {
    const std::vector<Instant> moments = historyMoments(months, now, calendar);
    const std::vector<std::string> accountIDs = accountIDsOf(ledger);

    // One walk: each movement goes to the first point that counts it (the first moment on or
    // after its date); every later point counts it too, which the running sum below adds up.
    std::vector<Decimal> firstCountedBy(moments.size());
    for (const Transaction& transaction : ledger.transactions()) {
        const auto point = std::ranges::lower_bound(moments, transaction.date);
        if (point == moments.end()) continue;
        add(firstCountedBy[static_cast<std::size_t>(point - moments.begin())], transaction, accountIDs);
    }

    std::vector<std::vector<LoanPayment>> schedules;
    for (const Loan& loan : ledger.data().loans) schedules.push_back(loanSchedule(loan, calendar));

    std::vector<NetWorthPoint> history;
    Decimal accounts = openingBalances(ledger);
    for (std::size_t index = 0; index < moments.size(); ++index) {
        NetWorthPoint point{moments[index], {}};
        accounts += firstCountedBy[index];
        point.value.accounts = accounts;
        point.value.assets = assetsAt(ledger, point.date);
        for (std::size_t loan = 0; loan < schedules.size(); ++loan) {
            point.value.debts += remainingCapital(ledger.data().loans[loan], schedules[loan], point.date);
        }
        history.push_back(std::move(point));
    }
    return history;
}

void to_json(Json& json, const NetWorth& worth) {
    json = Json{
        {"accounts", worth.accounts}, {"assets", worth.assets}, {"debts", worth.debts}, {"total", worth.total()}};
}

void to_json(Json& json, const NetWorthPoint& point) { json = Json{{"date", point.date}, {"value", point.value}}; }

}  // namespace vantello
