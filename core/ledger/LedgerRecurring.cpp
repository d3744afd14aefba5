// Recurring rules of the ledger: keeping them valid and creating the movements that fall due.

#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerError.hpp"

#include <algorithm>

namespace vantello {

namespace {

bool isTransferRule(const RecurringRule& rule) {
    return rule.transferToAccountID.has_value() || rule.categoryID == transferCategoryID;
}

// Salary rules stay silent on the days the user is without work.
bool isSalaryRule(const RecurringRule& rule) {
    return rule.kind == TransactionKind::income && rule.categoryID == salaryCategoryID &&
           !rule.transferToAccountID;
}

Transaction movementFor(const RecurringRule& rule, Instant dueDate) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = rule.kind;
    transaction.amount = rule.amount;
    transaction.date = dueDate;
    transaction.categoryID = rule.categoryID;
    transaction.note = rule.note;
    transaction.accountID = rule.accountID;
    transaction.recurringRuleID = rule.id;
    transaction.transferToAccountID = rule.transferToAccountID;
    if (transaction.transferToAccountID) {
        transaction.kind = TransactionKind::expense;
        transaction.categoryID = std::string(transferCategoryID);
    }
    return transaction;
}

}  // namespace

void Ledger::validateRecurringRule(const RecurringRule& rule) const {
    if (rule.amount.sign() <= 0) throw LedgerError(LedgerError::Code::amountNotPositive);
    if (isTransferRule(rule)) {
        if (!rule.transferToAccountID) {
            throw AdvancedError(AdvancedError::Code::transferWithoutDestination);
        }
        if (!account(*rule.transferToAccountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
        if (*rule.transferToAccountID == rule.accountID) {
            throw AdvancedError(AdvancedError::Code::transferToSameAccount);
        }
    } else {
        const std::optional<TransactionCategory> category = this->category(rule.categoryID);
        if (!category) throw LedgerError(LedgerError::Code::unknownCategory, rule.categoryID);
        if (category->kind != rule.kind) throw LedgerError(LedgerError::Code::categoryKindMismatch);
    }
    if (!account(rule.accountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
    if (rule.endDate && *rule.endDate < rule.startDate) {
        throw AdvancedError(AdvancedError::Code::invalidRecurrence);
    }
}

void Ledger::addRecurringRule(RecurringRule rule) {
    validateRecurringRule(rule);
    const bool taken = std::any_of(data_.recurringRules.begin(), data_.recurringRules.end(),
                                   [&](const RecurringRule& existing) { return existing.id == rule.id; });
    if (taken) throw LedgerError(LedgerError::Code::duplicateID);
    data_.recurringRules.push_back(std::move(rule));
}

void Ledger::updateRecurringRule(RecurringRule rule) {
    validateRecurringRule(rule);
    const auto position =
        std::find_if(data_.recurringRules.begin(), data_.recurringRules.end(),
                     [&](const RecurringRule& existing) { return existing.id == rule.id; });
    if (position == data_.recurringRules.end()) throw LedgerError(LedgerError::Code::notFound);
    // Editing changes only the future: occurrences already dealt with are not created again,
    // even when the edited copy comes without them.
    if (position->lastGenerated && (!rule.lastGenerated || *rule.lastGenerated < *position->lastGenerated)) {
        rule.lastGenerated = position->lastGenerated;
    }
    *position = std::move(rule);
}

void Ledger::deleteRecurringRule(const Uuid& id) {
    std::erase_if(data_.recurringRules, [&](const RecurringRule& rule) { return rule.id == id; });
}

int Ledger::generateDueTransactions(Instant now, const Calendar& calendar) {
    // Everything is computed before the ledger changes, so a failure leaves it as it was.
    std::vector<Transaction> created;
    std::vector<std::pair<std::size_t, Instant>> dealtWith;
    for (std::size_t index = 0; index < data_.recurringRules.size(); ++index) {
        const RecurringRule& rule = data_.recurringRules[index];
        const std::vector<Instant> dueDates = rule.occurrences(rule.lastGenerated, now, calendar);
        if (dueDates.empty()) continue;
        const bool salary = isSalaryRule(rule);
        for (const Instant dueDate : dueDates) {
            // A skipped salary is still dealt with: it is never created later.
            if (salary && isUnemployed(data_.unemploymentPeriods, dueDate, calendar)) continue;
            created.push_back(movementFor(rule, dueDate));
        }
        dealtWith.emplace_back(index, dueDates.back());
    }

    if (!created.empty()) data_.transactions.reserve(data_.transactions.size() + created.size());
    for (Transaction& transaction : created) data_.transactions.push_back(std::move(transaction));
    for (const auto& [index, last] : dealtWith) data_.recurringRules[index].lastGenerated = last;
    return static_cast<int>(created.size());
}

}  // namespace vantello
