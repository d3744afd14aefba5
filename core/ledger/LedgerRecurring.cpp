#include "core/ledger/LedgerRecurring.hpp"

#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/RecordLookup.hpp"

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

void validateRecurringRule(const Ledger& ledger, const RecurringRule& rule) {
    if (rule.amount.sign() <= 0) throw LedgerError(LedgerError::Code::amountNotPositive);
    const bool transfer = isTransferRule(rule);
    if (!transfer) {
        const std::optional<TransactionCategory> category = ledger.category(rule.categoryID);
        if (!category) throw LedgerError(LedgerError::Code::unknownCategory, rule.categoryID);
        if (category->kind != rule.kind) throw LedgerError(LedgerError::Code::categoryKindMismatch);
    }
    if (!ledger.account(rule.accountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
    if (rule.endDate && *rule.endDate < rule.startDate) {
        throw AdvancedError(AdvancedError::Code::invalidRecurrence);
    }
    if (transfer) {
        if (!rule.transferToAccountID) throw AdvancedError(AdvancedError::Code::transferWithoutDestination);
        if (!ledger.account(*rule.transferToAccountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
        if (*rule.transferToAccountID == rule.accountID) {
            throw AdvancedError(AdvancedError::Code::transferToSameAccount);
        }
    }
}

void addRecurringRule(Ledger& ledger, RecurringRule rule) {
    validateRecurringRule(ledger, rule);
    if (findByID(ledger.recurringRules(), rule.id)) throw LedgerError(LedgerError::Code::duplicateID);
    ledger.change([&](LedgerData& data) { data.recurringRules.push_back(std::move(rule)); });
}

void updateRecurringRule(Ledger& ledger, RecurringRule rule) {
    validateRecurringRule(ledger, rule);
    ledger.change([&](LedgerData& data) {
        RecurringRule& existing =
            existingRecord(data.recurringRules, rule.id, LedgerError(LedgerError::Code::notFound));
        // Occurrences already dealt with are not created again, even when the edited copy comes
        // without them.
        if (existing.lastGenerated && (!rule.lastGenerated || *rule.lastGenerated < *existing.lastGenerated)) {
            rule.lastGenerated = existing.lastGenerated;
        }
        existing = std::move(rule);
    });
}

void deleteRecurringRule(Ledger& ledger, const Uuid& id) {
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.recurringRules, [&](const RecurringRule& rule) { return rule.id == id; });
    });
}

int generateDueTransactions(Ledger& ledger, Instant now, const Calendar& calendar) {
    // Everything is computed before the ledger changes, so a failure leaves it as it was.
    const std::vector<RecurringRule>& rules = ledger.recurringRules();
    std::vector<Transaction> created;
    std::vector<std::pair<std::size_t, Instant>> dealtWith;
    for (std::size_t index = 0; index < rules.size(); ++index) {
        const RecurringRule& rule = rules[index];
        const std::vector<Instant> dueDates = rule.occurrences(rule.lastGenerated, now, calendar);
        if (dueDates.empty()) continue;
        const bool salary = isSalaryRule(rule);
        for (const Instant dueDate : dueDates) {
            // A skipped salary is still dealt with: it is never created later.
            if (salary && isUnemployed(ledger.unemploymentPeriods(), dueDate, calendar)) continue;
            created.push_back(movementFor(rule, dueDate));
        }
        dealtWith.emplace_back(index, dueDates.back());
    }
    if (dealtWith.empty()) return 0;

    ledger.change([&](LedgerData& data) {
        data.transactions.reserve(data.transactions.size() + created.size());
        for (Transaction& transaction : created) data.transactions.push_back(std::move(transaction));
        for (const auto& [index, last] : dealtWith) data.recurringRules[index].lastGenerated = last;
    });
    return static_cast<int>(created.size());
}

}  // namespace vantello
