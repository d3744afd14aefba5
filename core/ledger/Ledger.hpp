#pragma once
// The one aggregate of a user's financial data: movements, categories, budgets, accounts,
// rules, plans, wealth records, people and shared entries. A plain value: every operation
// validates first and then changes the ledger completely, or throws its typed error
// (LedgerError, CategoryError, AdvancedError, SharedError) and leaves it exactly as it was.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/LedgerData.hpp"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

// One line of the history with a person: a share of an expense or a settlement entry.
struct SharedHistoryItem {
    Uuid id;
    Instant date;
    std::string description;
    Decimal effect;  // signed: positive means the person owes the user more
    bool operator==(const SharedHistoryItem&) const = default;
};

class Ledger {
public:
    enum class Direction { up, down };

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

    // ---- accounts
    Account addAccount(std::string_view name, std::string symbol, Decimal openingBalance,
                       std::optional<Decimal> lowBalanceThreshold);
    void updateAccount(Account account);
    // Moves the account's movements and rules to the main account, dissolving transfers that
    // would go from the main account to itself; returns how many movements changed.
    int deleteAccount(std::string_view id);
    // Opening balance plus income, minus expenses, minus transfers out, plus transfers in.
    [[nodiscard]] Decimal balance(std::string_view accountID) const;
    [[nodiscard]] std::map<std::string, Decimal> balances() const;

    // ---- recurring rules
    void addRecurringRule(RecurringRule rule);
    void updateRecurringRule(RecurringRule rule);
    void deleteRecurringRule(const Uuid& id);  // the movements it created stay
    // Creates every occurrence due up to `now` (salary rules skip days without work) and
    // returns how many movements were created.
    int generateDueTransactions(Instant now, const Calendar& calendar);

    // ---- category rules
    CategoryRule addCategoryRule(std::string_view pattern, std::string categoryID);
    void updateCategoryRule(CategoryRule rule);
    void deleteCategoryRule(const Uuid& id);
    void moveCategoryRule(const Uuid& id, Direction direction);
    // Re-files the movements sitting in a fallback category; returns how many moved.
    int applyCategoryRules();
    // The category the rules give a movement of `kind` with `note` filed in the fallback of its
    // kind, or nothing when no rule applies. CategoryRuleMatcher answers this for many notes.
    [[nodiscard]] std::optional<std::string> categoryByRules(std::string_view note, TransactionKind kind) const;

    // ---- statement import
    // What became of the imported movements: each one lands in exactly one count.
    struct ImportResult {
        int transfers = 0;   // merged with the other half of a transfer already in the ledger
        int added = 0;
        int duplicates = 0;  // already in the ledger (same day, kind, amount, note, account)
        int invalid = 0;     // refused: identifier already present or failed validation
        bool operator==(const ImportResult&) const = default;
    };
    // Files the movements of a statement on `accountID`, lets the category rules re-file those in
    // a fallback category, skips duplicates and, with `detectTransfers`, turns an opposite
    // movement of the same amount on another account within three days into one transfer. Never
    // throws; days are taken in `calendar`. Kept in core/exchange/ImportMerge.cpp.
    ImportResult importTransactions(std::vector<Transaction> transactions, std::string_view accountID,
                                    bool detectTransfers, const Calendar& calendar);

    // ---- people and shared expenses
    Person addPerson(std::string_view name);
    void renamePerson(const Uuid& id, std::string_view name);
    // The person's shares leave every movement and the person's entries are deleted.
    void deletePerson(const Uuid& id);
    void addSharedEntry(SharedEntry entry);
    void updateSharedEntry(SharedEntry entry);
    void deleteSharedEntry(const Uuid& id);
    [[nodiscard]] Decimal personBalance(const Uuid& personID) const;
    // Newest first.
    [[nodiscard]] std::vector<SharedHistoryItem> personHistory(const Uuid& personID) const;
    // One share per chosen person of amount ÷ (people + 1), rounded down to cents; the rest
    // stays with the user.
    [[nodiscard]] static std::vector<PersonShare> equalSplit(const Decimal& amount,
                                                             const std::vector<Uuid>& people);

    bool operator==(const Ledger&) const = default;

private:
    void validateShares(const Transaction& transaction) const;
    void validateRecurringRule(const RecurringRule& rule) const;

    LedgerData data_;
};

}  // namespace vantello
