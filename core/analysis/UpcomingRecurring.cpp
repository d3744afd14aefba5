#include "core/analysis/UpcomingRecurring.hpp"

#include <algorithm>

namespace vantello {

namespace {

// The same test as generation's: an income rule in the salary category that is no transfer.
bool isSalaryRule(const RecurringRule& rule) {
    return rule.kind == TransactionKind::income && rule.categoryID == salaryCategoryID && !rule.transferToAccountID;
}

}  // namespace

std::vector<RecurringOccurrence> upcomingRecurring(const Ledger& ledger, Instant after, Instant through,
                                                   const Calendar& calendar) {
    std::vector<RecurringOccurrence> upcoming;
    for (const RecurringRule& rule : ledger.recurringRules()) {
        const Instant from = rule.lastGenerated ? std::max(after, *rule.lastGenerated) : after;
        const bool salary = isSalaryRule(rule);
        for (const Instant date : rule.occurrences(from, through, calendar)) {
            if (salary && isUnemployed(ledger.unemploymentPeriods(), date, calendar)) continue;
            // A transfer rule creates expenses in "giroconto" whatever kind it names.
            const TransactionKind kind = rule.transferToAccountID ? TransactionKind::expense : rule.kind;
            upcoming.push_back(RecurringOccurrence{date, kind, rule.amount, rule.accountID, rule.transferToAccountID});
        }
    }
    std::stable_sort(upcoming.begin(), upcoming.end(),
                     [](const RecurringOccurrence& left, const RecurringOccurrence& right) { return left.date < right.date; });
    return upcoming;
}

}  // namespace vantello
