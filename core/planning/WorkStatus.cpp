#include "core/planning/WorkStatus.hpp"

#include "core/ledger/TransactionCategory.hpp"

#include <algorithm>

namespace vantello {

namespace {

bool isSalary(const Transaction& transaction) { return transaction.categoryID == salaryCategoryID; }

}  // namespace

std::optional<Transaction> lastSalary(const SharedList<Transaction>& transactions) {
    const Transaction* latest = nullptr;
    for (const Transaction& transaction : transactions) {
        if (isSalary(transaction) && (!latest || transaction.date > latest->date)) latest = &transaction;
    }
    if (!latest) return std::nullopt;
    return *latest;
}

bool salaryRecordedInMonth(const SharedList<Transaction>& transactions, Instant day, const Calendar& calendar) {
    const DateInterval month = calendar.monthInterval(day);
    return std::any_of(transactions.begin(), transactions.end(), [&](const Transaction& transaction) {
        return isSalary(transaction) && month.contains(transaction.date);
    });
}

}  // namespace vantello
