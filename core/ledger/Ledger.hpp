#pragma once
// The one aggregate of a user's financial data: movements, categories, budgets, accounts,
// rules, plans, wealth records, people and shared entries. A plain value holding the data, its
// invariants and the lookups, with the operations on movements, categories and budgets; the
// operations of the other areas live beside it (LedgerAccounts, LedgerRecurring,
// LedgerCategoryRules, LedgerSharing). Every operation validates first and then changes the
// ledger completely, or throws its typed error (LedgerError, CategoryError, AdvancedError,
// SharedError) and leaves it exactly as it was.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/LedgerData.hpp"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vantello {

class Ledger {
public:
    // An empty ledger holding only the main account.
    Ledger();
    // Puts the main account first when missing and sorts the movements newest first (stable).
    explicit Ledger(LedgerData data);

    [[nodiscard]] const LedgerData& data() const { return data_; }

    // ---- collections
    [[nodiscard]] const SharedList<Transaction>& transactions() const { return data_.transactions; }
    [[nodiscard]] const std::vector<TransactionCategory>& customCategories() const { return data_.customCategories; }
    [[nodiscard]] const std::map<std::string, Decimal>& budgets() const { return data_.budgets; }
    [[nodiscard]] const std::vector<Account>& accounts() const { return data_.accounts; }
    [[nodiscard]] const std::vector<RecurringRule>& recurringRules() const { return data_.recurringRules; }
    [[nodiscard]] const std::vector<CategoryRule>& categoryRules() const { return data_.categoryRules; }
    [[nodiscard]] const std::vector<UnemploymentPeriod>& unemploymentPeriods() const { return data_.unemploymentPeriods; }
    [[nodiscard]] const std::vector<Person>& people() const { return data_.people; }
    [[nodiscard]] const std::vector<SharedEntry>& sharedEntries() const { return data_.sharedEntries; }

    // ---- lookups
    // "giroconto" gives the transfer category; then the built-in list, then the custom ones.
    [[nodiscard]] std::optional<TransactionCategory> category(std::string_view id) const;
    // Built-in categories of the kind in table order, then custom ones in creation order.
    [[nodiscard]] std::vector<TransactionCategory> categories(TransactionKind kind) const;
    // Every category usable by movements: categories(expense) then categories(income).
    [[nodiscard]] std::vector<TransactionCategory> allCategories() const;
    [[nodiscard]] const Account* account(std::string_view id) const;
    [[nodiscard]] const Transaction* transaction(const Uuid& id) const;

    // ---- movements
    void add(Transaction transaction);
    void update(Transaction transaction);
    void deleteTransaction(const Uuid& id);  // an unknown id is ignored
    // Throws the first failed check of a movement: amount, category, accounts, shares.
    void validate(const Transaction& transaction) const;

    // ---- custom categories and budgets
    TransactionCategory addCategory(std::string_view name, std::string symbol, TransactionKind kind);
    void renameCategory(std::string_view id, std::string_view name, std::string symbol);
    void deleteCategory(std::string_view id);
    // Greater than zero stores the budget; nothing, zero or negative removes it.
    void setBudget(std::string_view categoryID, std::optional<Decimal> amount);

    // ---- the way in for the operations of each area (LedgerAccounts.hpp, LedgerRecurring.hpp,
    // LedgerCategoryRules.hpp, LedgerSharing.hpp, the statement merge). An operation checks
    // everything first and then makes its change through `change`, which hands it the
    // collections and afterwards puts the main account back should the change have dropped it.
    template <typename Change>
    decltype(auto) change(Change&& apply) {
        if constexpr (std::is_void_v<std::invoke_result_t<Change, LedgerData&>>) {
            std::forward<Change>(apply)(data_);
            keepMainAccount();
        } else {
            auto result = std::forward<Change>(apply)(data_);
            keepMainAccount();
            return result;
        }
    }

    bool operator==(const Ledger&) const = default;

private:
    void keepMainAccount();
    void validateShares(const Transaction& transaction) const;

    LedgerData data_;
};

}  // namespace vantello
