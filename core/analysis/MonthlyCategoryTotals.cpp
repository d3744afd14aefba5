#include "core/analysis/MonthlyCategoryTotals.hpp"

namespace vantello {

namespace {

int monthNumber(const CivilDate& date) { return date.year * 12 + (date.month - 1); }

CivilDate firstDayOf(int monthNumber) { return CivilDate{monthNumber / 12, monthNumber % 12 + 1, 1}; }

}  // namespace

std::vector<MonthCategoryTotals> monthlyCategoryTotals(const Ledger& ledger,
                                                       const std::optional<std::string>& accountID,
                                                       const Calendar& calendar) {
    // Movements come newest first as a rule but not always (a movement added since the last
    // load sits at the end), so months are found by number rather than by order.
    std::map<int, MonthCategoryTotals> months;
    for (const Transaction& transaction : ledger.transactions()) {
        if (transaction.transferToAccountID) continue;
        if (accountID && transaction.accountID != *accountID) continue;
        const int number = monthNumber(calendar.civilDate(transaction.date));
        auto [entry, added] = months.try_emplace(number);
        if (added) entry->second.month = firstDayOf(number);
        auto& totals = transaction.kind == TransactionKind::income ? entry->second.income : entry->second.expenses;
        auto [total, first] = totals.try_emplace(transaction.categoryID, transaction.amount);
        if (!first) total->second += transaction.amount;
    }

    std::vector<MonthCategoryTotals> result;
    if (months.empty()) return result;
    const int first = months.begin()->first;
    const int last = months.rbegin()->first;
    result.reserve(static_cast<std::size_t>(last - first + 1));
    auto next = months.begin();
    for (int number = first; number <= last; ++number) {
        if (next != months.end() && next->first == number) {
            result.push_back(std::move(next->second));
            ++next;
        } else {
            result.push_back({firstDayOf(number), {}, {}});
        }
    }
    return result;
}

}  // namespace vantello
