#include "core/ledger/Ledger.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/RecordLookup.hpp"
#include "core/ledger/SharedError.hpp"

#include <algorithm>
#include <utility>

namespace vantello {

namespace {

constexpr std::size_t maximumCategoryNameLength = 40;

std::optional<std::size_t> indexOf(const SharedList<Transaction>& transactions, const Uuid& id) {
    const auto found = std::find_if(transactions.begin(), transactions.end(),
                                    [&id](const Transaction& transaction) { return transaction.id == id; });
    if (found == transactions.end()) return std::nullopt;
    return static_cast<std::size_t>(found - transactions.begin());
}

std::vector<TransactionCategory>::const_iterator findCustom(const std::vector<TransactionCategory>& custom,
                                                            std::string_view id) {
    return std::find_if(custom.begin(), custom.end(),
                        [id](const TransactionCategory& category) { return category.id == id; });
}

// The trimmed name, once it is known not to be empty, too long, or already used by another
// category of the same kind (built-in or custom; `excludedID` is the category being renamed).
std::string checkedCategoryName(const Ledger& ledger, std::string_view name, TransactionKind kind,
                                std::string_view excludedID) {
    std::string trimmed = Text::trimmed(name);
    if (trimmed.empty()) throw CategoryError(CategoryError::Code::emptyName);
    if (Text::characterCount(trimmed) > maximumCategoryNameLength) {
        throw CategoryError(CategoryError::Code::nameTooLong);
    }
    for (const TransactionCategory& other : ledger.categories(kind)) {
        if (other.id != excludedID && Text::equalIgnoringCaseAndAccents(other.name, trimmed)) {
            throw CategoryError(CategoryError::Code::duplicateName);
        }
    }
    return trimmed;
}

}  // namespace

// ---- construction

Ledger::Ledger() { data_.accounts.push_back(Account::main()); }

Ledger::Ledger(LedgerData data) : data_(std::move(data)) {
    keepMainAccount();
    data_.transactions.stableSort([](const Transaction& a, const Transaction& b) { return a.date > b.date; });
}

// ---- lookups

std::optional<TransactionCategory> Ledger::category(std::string_view id) const {
    if (id == transferCategoryID) return transferCategory();
    if (const TransactionCategory* builtIn = builtInCategory(id)) return *builtIn;
    const auto custom = findCustom(data_.customCategories, id);
    if (custom != data_.customCategories.end()) return *custom;
    return std::nullopt;
}

std::vector<TransactionCategory> Ledger::categories(TransactionKind kind) const {
    std::vector<TransactionCategory> result;
    for (const auto& category : builtInCategories()) {
        if (category.kind == kind) result.push_back(category);
    }
    for (const auto& category : data_.customCategories) {
        if (category.kind == kind) result.push_back(category);
    }
    return result;
}

std::vector<TransactionCategory> Ledger::allCategories() const {
    std::vector<TransactionCategory> result = categories(TransactionKind::expense);
    std::vector<TransactionCategory> income = categories(TransactionKind::income);
    result.insert(result.end(), std::make_move_iterator(income.begin()), std::make_move_iterator(income.end()));
    return result;
}

const Account* Ledger::account(std::string_view id) const { return findByID(data_.accounts, id); }

const Transaction* Ledger::transaction(const Uuid& id) const {
    const auto index = indexOf(data_.transactions, id);
    return index ? &data_.transactions[*index] : nullptr;
}

void Ledger::keepMainAccount() {
    if (!findByID(data_.accounts, mainAccountID)) data_.accounts.insert(data_.accounts.begin(), Account::main());
}

// ---- movements

void Ledger::validate(const Transaction& transaction) const {
    if (transaction.amount.sign() <= 0) throw LedgerError(LedgerError::Code::amountNotPositive);

    const bool inTransferCategory = transaction.categoryID == transferCategoryID;
    if (!inTransferCategory) {
        const auto found = category(transaction.categoryID);
        if (!found) throw LedgerError(LedgerError::Code::unknownCategory, transaction.categoryID);
        if (found->kind != transaction.kind) throw LedgerError(LedgerError::Code::categoryKindMismatch);
    }

    if (!account(transaction.accountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
    if (inTransferCategory && !transaction.transferToAccountID) {
        throw AdvancedError(AdvancedError::Code::transferWithoutDestination);
    }
    if (transaction.transferToAccountID) {
        if (!account(*transaction.transferToAccountID)) throw AdvancedError(AdvancedError::Code::unknownAccount);
        if (*transaction.transferToAccountID == transaction.accountID) {
            throw AdvancedError(AdvancedError::Code::transferToSameAccount);
        }
    }

    validateShares(transaction);
}

void Ledger::validateShares(const Transaction& transaction) const {
    const auto& shares = transaction.shares;
    if (shares.empty()) return;
    if (transaction.kind != TransactionKind::expense || transaction.isTransfer() ||
        transaction.categoryID == transferCategoryID) {
        throw SharedError(SharedError::Code::sharesOnlyOnExpenses);
    }
    for (const PersonShare& share : shares) {
        if (!findByID(data_.people, share.personID)) throw SharedError(SharedError::Code::unknownPerson);
    }
    Decimal sum;
    for (const PersonShare& share : shares) {
        if (share.amount.sign() <= 0) throw SharedError(SharedError::Code::amountNotPositive);
        sum += share.amount;
    }
    if (sum > transaction.amount) throw SharedError(SharedError::Code::sharesTooLarge);
}


void Ledger::add(Transaction transaction) {
    validate(transaction);
    if (indexOf(data_.transactions, transaction.id)) throw LedgerError(LedgerError::Code::duplicateID);
    data_.transactions.push_back(std::move(transaction));
}

void Ledger::update(Transaction transaction) {
    validate(transaction);
    const auto index = indexOf(data_.transactions, transaction.id);
    if (!index) throw LedgerError(LedgerError::Code::notFound);
    data_.transactions.set(*index, std::move(transaction));
}

void Ledger::deleteTransaction(const Uuid& id) {
    data_.transactions.eraseIf([&id](const Transaction& transaction) { return transaction.id == id; });
}

// ---- custom categories and budgets

TransactionCategory Ledger::addCategory(std::string_view name, std::string symbol, TransactionKind kind) {
    TransactionCategory category{"custom-" + Uuid::random().text(), checkedCategoryName(*this, name, kind, {}),
                                 std::move(symbol), kind};
    data_.customCategories.push_back(category);
    return category;
}

void Ledger::renameCategory(std::string_view id, std::string_view name, std::string symbol) {
    const auto found = findCustom(data_.customCategories, id);
    if (found == data_.customCategories.end()) throw CategoryError(CategoryError::Code::notCustom);
    std::string checked = checkedCategoryName(*this, name, found->kind, id);

    auto& category = data_.customCategories[static_cast<std::size_t>(found - data_.customCategories.begin())];
    category.name = std::move(checked);
    category.symbol = std::move(symbol);
}

void Ledger::deleteCategory(std::string_view id) {
    const auto found = findCustom(data_.customCategories, id);
    if (found == data_.customCategories.end()) throw CategoryError(CategoryError::Code::notCustom);

    const std::string fallback(fallbackCategoryID(found->kind));
    auto& transactions = data_.transactions;
    for (std::size_t i = 0; i < transactions.size(); ++i) {
        if (transactions[i].categoryID == id) {
            transactions.update(i, [&fallback](Transaction& transaction) { transaction.categoryID = fallback; });
        }
    }
    data_.budgets.erase(std::string(id));
    data_.customCategories.erase(found);
}

void Ledger::setBudget(std::string_view categoryID, std::optional<Decimal> amount) {
    const auto found = category(categoryID);
    if (!found) throw LedgerError(LedgerError::Code::unknownCategory, categoryID);
    // Transfers are neither spending nor income, so they never get a budget either.
    if (found->kind != TransactionKind::expense || categoryID == transferCategoryID) {
        throw LedgerError(LedgerError::Code::budgetOnlyForExpenses);
    }
    if (amount && amount->sign() > 0) {
        data_.budgets.insert_or_assign(std::string(categoryID), *amount);
    } else {
        data_.budgets.erase(std::string(categoryID));
    }
}

}  // namespace vantello
