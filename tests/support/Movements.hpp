#pragma once
// Movements and rules for tests, with only what a test cares about spelled out.

#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>

namespace vantello::testing {

inline Decimal amount(const char* text) { return *Decimal::fromCanonical(text); }

inline Transaction expense(const char* value, Instant date, std::string category = "spesa",
                           std::string account = std::string(mainAccountID)) {
    Transaction made;
    made.id = Uuid::random();
    made.kind = TransactionKind::expense;
    made.amount = amount(value);
    made.date = date;
    made.categoryID = std::move(category);
    made.accountID = std::move(account);
    return made;
}

inline Transaction income(const char* value, Instant date, std::string category = "stipendio",
                          std::string account = std::string(mainAccountID)) {
    Transaction made = expense(value, date, std::move(category), std::move(account));
    made.kind = TransactionKind::income;
    return made;
}

inline Transaction transfer(const char* value, Instant date, std::string from, std::string to) {
    Transaction made = expense(value, date, std::string(transferCategoryID), std::move(from));
    made.transferToAccountID = std::move(to);
    return made;
}

// The movement with a description.
inline Transaction noted(Transaction transaction, std::string note) {
    transaction.note = std::move(note);
    return transaction;
}

inline RecurringRule monthlyRule(TransactionKind kind, const char* value, std::string category, Instant start) {
    RecurringRule rule;
    rule.id = Uuid::random();
    rule.kind = kind;
    rule.amount = amount(value);
    rule.categoryID = std::move(category);
    rule.accountID = std::string(mainAccountID);
    rule.frequency = RecurringRule::Frequency::monthly;
    rule.startDate = start;
    return rule;
}

}  // namespace vantello::testing
