#include "core/ledger/LedgerSharing.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/RecordLookup.hpp"
#include "core/ledger/SharedError.hpp"

#include <algorithm>
#include <utility>

namespace vantello {

namespace {

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
    if (!findByID(people, entry.personID)) throw SharedError(SharedError::Code::unknownPerson);
}

}  // namespace

// ---- people

Person addPerson(Ledger& ledger, std::string_view name) {
    Person person{Uuid::random(), checkedPersonName(ledger.people(), name, std::nullopt)};
    ledger.change([&](LedgerData& data) { data.people.push_back(person); });
    return person;
}

void renamePerson(Ledger& ledger, const Uuid& id, std::string_view name) {
    ledger.change([&](LedgerData& data) {
        Person& person = existingRecord(data.people, id, SharedError(SharedError::Code::unknownPerson));
        person.name = checkedPersonName(data.people, name, id);
    });
}

void deletePerson(Ledger& ledger, const Uuid& id) {
    if (!findByID(ledger.people(), id)) return;

    const auto isTheirs = [&id](const PersonShare& share) { return share.personID == id; };
    ledger.change([&](LedgerData& data) {
        auto& transactions = data.transactions;
        for (std::size_t i = 0; i < transactions.size(); ++i) {
            const auto& shares = transactions[i].shares;
            if (std::any_of(shares.begin(), shares.end(), isTheirs)) {
                transactions.update(i, [&](Transaction& transaction) { std::erase_if(transaction.shares, isTheirs); });
            }
        }
        std::erase_if(data.sharedEntries, [&id](const SharedEntry& entry) { return entry.personID == id; });
        std::erase_if(data.people, [&id](const Person& person) { return person.id == id; });
    });
}

// ---- settlement entries

void addSharedEntry(Ledger& ledger, SharedEntry entry) {
    checkEntry(ledger.people(), entry);
    ledger.change([&](LedgerData& data) { data.sharedEntries.push_back(std::move(entry)); });
}

void updateSharedEntry(Ledger& ledger, SharedEntry entry) {
    checkEntry(ledger.people(), entry);
    // Entries vanish with their person, so an entry no longer there is reported the same way
    // rather than dropping the user's edit silently.
    ledger.change([&](LedgerData& data) {
        existingRecord(data.sharedEntries, entry.id, SharedError(SharedError::Code::unknownPerson)) = std::move(entry);
    });
}

void deleteSharedEntry(Ledger& ledger, const Uuid& id) {
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.sharedEntries, [&id](const SharedEntry& entry) { return entry.id == id; });
    });
}

// ---- balances and history

Decimal personBalance(const Ledger& ledger, const Uuid& personID) {
    Decimal balance;
    for (const Transaction& transaction : ledger.transactions()) {
        for (const PersonShare& share : transaction.shares) {
            if (share.personID == personID) balance += share.amount;
        }
    }
    for (const SharedEntry& entry : ledger.sharedEntries()) {
        if (entry.personID == personID) balance += entry.effect();
    }
    return balance;
}

std::map<Uuid, Decimal> peopleBalances(const Ledger& ledger) {
    std::map<Uuid, Decimal> balances;
    for (const Person& person : ledger.people()) balances[person.id];
    for (const Transaction& transaction : ledger.transactions()) {
        for (const PersonShare& share : transaction.shares) balances[share.personID] += share.amount;
    }
    for (const SharedEntry& entry : ledger.sharedEntries()) balances[entry.personID] += entry.effect();
    return balances;
}

namespace {

// Hands `take` each share and settlement entry of the people `wanted` accepts, as a history line.
template <typename Wanted, typename Take>
void walkSharedHistory(const Ledger& ledger, Wanted&& wanted, Take&& take) {
    for (const Transaction& transaction : ledger.transactions()) {
        for (const PersonShare& share : transaction.shares) {
            if (!wanted(share.personID)) continue;
            std::string description = transaction.note;
            if (description.empty()) {
                const auto found = ledger.category(transaction.categoryID);
                description = found ? found->name : transaction.categoryID;
            }
            take(share.personID, SharedHistoryItem{transaction.id, transaction.date, std::move(description), share.amount});
        }
    }
    for (const SharedEntry& entry : ledger.sharedEntries()) {
        if (!wanted(entry.personID)) continue;
        std::string description = SharedEntry::historyLabel(entry.kind);
        if (!entry.note.empty()) description += " · " + entry.note;
        take(entry.personID, SharedHistoryItem{entry.id, entry.date, std::move(description), entry.effect()});
    }
}

void newestFirst(std::vector<SharedHistoryItem>& items) {
    std::stable_sort(items.begin(), items.end(),
                     [](const SharedHistoryItem& a, const SharedHistoryItem& b) { return a.date > b.date; });
}

}  // namespace

std::vector<SharedHistoryItem> personHistory(const Ledger& ledger, const Uuid& personID) {
    std::vector<SharedHistoryItem> items;
    walkSharedHistory(
        ledger, [&](const Uuid& person) { return person == personID; },
        [&](const Uuid&, SharedHistoryItem item) { items.push_back(std::move(item)); });
    newestFirst(items);
    return items;
}

std::map<Uuid, std::vector<SharedHistoryItem>> peopleHistories(const Ledger& ledger) {
    std::map<Uuid, std::vector<SharedHistoryItem>> histories;
    for (const Person& person : ledger.people()) histories[person.id];
    walkSharedHistory(
        ledger, [](const Uuid&) { return true; },
        [&](const Uuid& person, SharedHistoryItem item) { histories[person].push_back(std::move(item)); });
    for (auto& [person, items] : histories) newestFirst(items);
    return histories;
}

std::vector<PersonShare> equalSplit(const Decimal& amount, const std::vector<Uuid>& people) {
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
