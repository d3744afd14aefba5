#include "core/ledger/LedgerAccounts.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/RecordLookup.hpp"

#include <algorithm>

namespace vantello {

namespace {

constexpr std::size_t maximumNameLength = 40;

// The trimmed name, or the error that refuses it. `exceptID` is the account being edited, which
// may keep its own name.
std::string checkedAccountName(const std::vector<Account>& accounts, std::string_view name,
                               std::string_view exceptID) {
    std::string trimmed = Text::trimmed(name);
    if (trimmed.empty()) throw AdvancedError(AdvancedError::Code::emptyName);
    if (Text::characterCount(trimmed) > maximumNameLength) {
        throw AdvancedError(AdvancedError::Code::nameTooLong);
    }
    const bool taken = std::any_of(accounts.begin(), accounts.end(), [&](const Account& other) {
        return other.id != exceptID && Text::equalIgnoringCaseAndAccents(other.name, trimmed);
    });
    if (taken) throw AdvancedError(AdvancedError::Code::duplicateAccount);
    return trimmed;
}

// Moves references to `removedID` onto the main account; a transfer that would then go from
// the main account to itself is no transfer any more and becomes an ordinary expense.
template <typename Record>
bool moveToMainAccount(Record& record, std::string_view removedID) {
    bool touched = false;
    if (record.accountID == removedID) {
        record.accountID = std::string(mainAccountID);
        touched = true;
    }
    if (record.transferToAccountID && *record.transferToAccountID == removedID) {
        record.transferToAccountID = std::string(mainAccountID);
        touched = true;
    }
    if (record.transferToAccountID && *record.transferToAccountID == record.accountID) {
        record.transferToAccountID.reset();
        record.categoryID = std::string(otherExpensesCategoryID);
    }
    return touched;
}

template <typename Record>
bool refersTo(const Record& record, std::string_view accountID) {
    return record.accountID == accountID ||
           (record.transferToAccountID && *record.transferToAccountID == accountID);
}

// Calls apply(account, adds) for each account the movement changes: `adds` is false for money
// leaving the account. Income adds, an expense subtracts, a transfer subtracts from its account
// and adds to its destination.
template <typename Apply>
void forEachEffect(const Transaction& transaction, Apply&& apply) {
    if (transaction.transferToAccountID) {
        apply(transaction.accountID, false);
        apply(*transaction.transferToAccountID, true);
    } else {
        apply(transaction.accountID, transaction.kind == TransactionKind::income);
    }
}

}  // namespace

Account addAccount(Ledger& ledger, std::string_view name, std::string symbol, Decimal openingBalance,
                   std::optional<Decimal> lowBalanceThreshold) {
    Account account;
    account.name = checkedAccountName(ledger.accounts(), name, {});
    account.id = "conto-" + Uuid::random().text();
    account.symbol = std::move(symbol);
    account.openingBalance = std::move(openingBalance);
    account.lowBalanceThreshold = std::move(lowBalanceThreshold);
    ledger.change([&](LedgerData& data) { data.accounts.push_back(account); });
    return account;
}

void updateAccount(Ledger& ledger, Account account) {
    ledger.change([&](LedgerData& data) {
        Account& existing =
            existingRecord(data.accounts, account.id, AdvancedError(AdvancedError::Code::unknownAccount));
        account.name = checkedAccountName(data.accounts, account.name, account.id);
        existing = std::move(account);
    });
}

int deleteAccount(Ledger& ledger, std::string_view id) {
    if (id == mainAccountID) throw AdvancedError(AdvancedError::Code::mainAccount);
    if (!ledger.account(id)) throw AdvancedError(AdvancedError::Code::unknownAccount);
    // `id` may point into the account about to be erased.
    const std::string removedID(id);

    return ledger.change([&](LedgerData& data) {
        int touched = 0;
        SharedList<Transaction>& transactions = data.transactions;
        for (std::size_t index = 0; index < transactions.size(); ++index) {
            if (!refersTo(transactions[index], removedID)) continue;
            transactions.update(index, [&](Transaction& transaction) { moveToMainAccount(transaction, removedID); });
            ++touched;
        }
        for (RecurringRule& rule : data.recurringRules) moveToMainAccount(rule, removedID);
        std::erase_if(data.accounts, [&](const Account& account) { return account.id == removedID; });
        return touched;
    });
}

Decimal accountBalance(const Ledger& ledger, std::string_view accountID) {
    return accountBalances(ledger, {std::string(accountID)}).front();
}

std::vector<Decimal> accountBalances(const Ledger& ledger, const std::vector<std::string>& accountIDs) {
    std::vector<Decimal> totals;
    totals.reserve(accountIDs.size());
    for (const std::string& id : accountIDs) {
        const Account* account = ledger.account(id);
        totals.push_back(account ? account->openingBalance : Decimal());
    }
    // Accounts are few, so a straight look along the list is the quickest way to find one.
    for (const Transaction& transaction : ledger.transactions()) {
        forEachEffect(transaction, [&](const std::string& affected, bool adds) {
            for (std::size_t index = 0; index < accountIDs.size(); ++index) {
                if (affected != accountIDs[index]) continue;
                if (adds) {
                    totals[index] += transaction.amount;
                } else {
                    totals[index] -= transaction.amount;
                }
            }
        });
    }
    return totals;
}

std::map<std::string, Decimal> accountBalances(const Ledger& ledger) {
    std::vector<std::string> ids;
    for (const Account& account : ledger.accounts()) ids.push_back(account.id);
    std::vector<Decimal> totals = accountBalances(ledger, ids);
    // Movements on an account that no longer exists have no balance to go to.
    std::map<std::string, Decimal> balances;
    for (std::size_t index = 0; index < ids.size(); ++index) balances.emplace(ids[index], std::move(totals[index]));
    return balances;
}

}  // namespace vantello
