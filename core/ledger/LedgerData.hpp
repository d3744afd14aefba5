#pragma once
// The plain snapshot of everything a ledger holds: the fifteen collections that the ledger
// file stores. Handed between the ledger and the store; copying it is cheap because the
// movements are shared between copies until one changes.

#include "core/base/Decimal.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Account.hpp"
#include "core/ledger/Asset.hpp"
#include "core/ledger/CategoryRule.hpp"
#include "core/ledger/Loan.hpp"
#include "core/ledger/Person.hpp"
#include "core/ledger/RecurringRule.hpp"
#include "core/ledger/SavedSearch.hpp"
#include "core/ledger/SavingsGoal.hpp"
#include "core/ledger/SharedEntry.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/ledger/UnemploymentPeriod.hpp"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace vantello {

struct LedgerData {
    SharedList<Transaction> transactions;
    std::vector<TransactionCategory> customCategories;
    std::map<std::string, Decimal> budgets;  // monthly budget per expense category id
    std::vector<Account> accounts;
    std::vector<RecurringRule> recurringRules;
    std::vector<CategoryRule> categoryRules;  // in priority order
    std::vector<UnemploymentPeriod> unemploymentPeriods;
    std::vector<SavedSearch> savedSearches;
    std::vector<SavingsGoal> savingsGoals;
    std::vector<Loan> loans;
    std::vector<Asset> assets;
    std::set<std::string> ignoredSubscriptions;
    std::set<std::string> dismissedAlerts;
    std::vector<Person> people;
    std::vector<SharedEntry> sharedEntries;

    bool operator==(const LedgerData&) const = default;
};

}  // namespace vantello
