// People, the shares of expenses they owe, and the entries that settle them.

#include "core/ledger/Ledger.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/SharedError.hpp"

#include <algorithm>
#include <utility>

namespace vantello {

namespace {

std::vector<Person>::const_iterator findPerson(const std::vector<Person>& people, const Uuid& id) {
    return std::find_if(people.begin(), people.end(), [&id](const Person& person) { return person.id == id; });
}

bool hasPerson(const std::vector<Person>& people, const Uuid& id) {
    return findPerson(people, id) != people.end();
}

// The trimmed name, once it is known not to be empty or another person's name.
std::string checkedPersonName(const std::vector<Person>& people, std::string_view name,
                              const std::optional<Uuid>& excludedID) {
    std::string trimmed = Text::trimmed(name);
    if (trimmed.empty()) throw SharedError(SharedError::Code::emptyName);
    for (const Person& other : people) {
        if (other.id != excludedID && Text::equalIgnoringCaseAndAccents(other.name, trimmed)) {
            throw SharedError(SharedError::Code::duplicateName);
        }
    }
    return trimmed;
}

void checkEntry(const std::vector<Person>& people, const SharedEntry& entry) {
    if (entry.amount.sign() <= 0) throw SharedError(SharedError::Code::amountNotPositive);
    if (!hasPerson(people, entry.personID)) throw SharedError(SharedError::Code::unknownPerson);
}

}  // namespace

void Ledger::validateShares(const Transaction& transaction) const {
    const auto& shares = transaction.shares;
    if (shares.empty()) return;
    if (transaction.kind != TransactionKind::expense || transaction.isTransfer() ||
        transaction.categoryID == transferCategoryID) {
        throw SharedError(SharedError::Code::sharesOnlyOnExpenses);
    }
    for (const PersonShare& share : shares) {
        if (!hasPerson(data_.people, share.personID)) throw SharedError(SharedError::Code::unknownPerson);
    }
    Decimal sum;
    for (const PersonShare& share : shares) {
        if (share.amount.sign() <= 0) throw SharedError(SharedError::Code::amountNotPositive);
        sum += share.amount;
    }
    if (sum > transaction.amount) throw SharedError(SharedError::Code::sharesTooLarge);
}

// ---- people

Person Ledger::addPerson(std::string_view name) {
    Person person{Uuid::random(), checkedPersonName(data_.people, name, std::nullopt)};
    data_.people.push_back(person);
    return person;
}

void Ledger::renamePerson(const Uuid& id, std::string_view name) {
    const auto found = findPerson(data_.people, id);
    if (found == data_.people.end()) throw SharedError(SharedError::Code::unknownPerson);
    std::string checked = checkedPersonName(data_.people, name, id);
    data_.people[static_cast<std::size_t>(found - data_.people.begin())].name = std::move(checked);
}

void Ledger::deletePerson(const Uuid& id) {
    const auto found = findPerson(data_.people, id);
    if (found == data_.people.end()) return;

    const auto isTheirs = [&id](const PersonShare& share) { return share.personID == id; };
    auto& transactions = data_.transactions;
    for (std::size_t i = 0; i < transactions.size(); ++i) {
        const auto& shares = transactions[i].shares;
        if (std::any_of(shares.begin(), shares.end(), isTheirs)) {
            transactions.update(i, [&](Transaction& transaction) { std::erase_if(transaction.shares, isTheirs); });
        }
    }
    std::erase_if(data_.sharedEntries, [&id](const SharedEntry& entry) { return entry.personID == id; });
    data_.people.erase(found);
}

// ---- settlement entries

void Ledger::addSharedEntry(SharedEntry entry) {
    checkEntry(data_.people, entry);
    data_.sharedEntries.push_back(std::move(entry));
}

void Ledger::updateSharedEntry(SharedEntry entry) {
    checkEntry(data_.people, entry);
    auto& entries = data_.sharedEntries;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&entry](const SharedEntry& existing) { return existing.id == entry.id; });
    // Entries vanish with their person, so an entry no longer there is reported the same way
    // rather than dropping the user's edit silently.
    if (found == entries.end()) throw SharedError(SharedError::Code::unknownPerson);
    *found = std::move(entry);
}

void Ledger::deleteSharedEntry(const Uuid& id) {
    std::erase_if(data_.sharedEntries, [&id](const SharedEntry& entry) { return entry.id == id; });
}

// ---- balances and history

Decimal Ledger::personBalance(const Uuid& personID) const {
    Decimal balance;
    for (const Transaction& transaction : data_.transactions) {
        for (const PersonShare& share : transaction.shares) {
            if (share.personID == personID) balance += share.amount;
        }
    }
    for (const SharedEntry& entry : data_.sharedEntries) {
        if (entry.personID == personID) balance += entry.effect();
    }
    return balance;
}

std::vector<SharedHistoryItem> Ledger::personHistory(const Uuid& personID) const {
    std::vector<SharedHistoryItem> items;
    for (const Transaction& transaction : data_.transactions) {
        for (const PersonShare& share : transaction.shares) {
            if (share.personID != personID) continue;
            std::string description = transaction.note;
            if (description.empty()) {
                const auto found = category(transaction.categoryID);
                description = found ? found->name : transaction.categoryID;
            }
            items.push_back({transaction.id, transaction.date, std::move(description), share.amount});
        }
    }
    for (const SharedEntry& entry : data_.sharedEntries) {
        if (entry.personID != personID) continue;
        std::string description = SharedEntry::historyLabel(entry.kind);
        if (!entry.note.empty()) description += " · " + entry.note;
        items.push_back({entry.id, entry.date, std::move(description), entry.effect()});
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const SharedHistoryItem& a, const SharedHistoryItem& b) { return a.date > b.date; });
    return items;
}

std::vector<PersonShare> Ledger::equalSplit(const Decimal& amount, const std::vector<Uuid>& people) {
    if (people.empty()) return {};
    const Decimal parts(static_cast<std::int64_t>(people.size()) + 1);
    // Rounded toward zero: a cent left over stays with the user, never the other way round.
    const Decimal part = amount.dividedBy(parts).value_or(Decimal{}).rounded(2, RoundingMode::down);
    std::vector<PersonShare> shares;
    shares.reserve(people.size());
    for (const Uuid& person : people) shares.push_back({person, part});
    return shares;
}

}  // namespace vantello
