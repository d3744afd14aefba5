#pragma once
// People, the shares of expenses they owe, and the entries that settle them.

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/Ledger.hpp"

#include <map>
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

Person addPerson(Ledger& ledger, std::string_view name);
void renamePerson(Ledger& ledger, const Uuid& id, std::string_view name);
// The person's shares leave every movement and the person's entries are deleted.
void deletePerson(Ledger& ledger, const Uuid& id);
void addSharedEntry(Ledger& ledger, SharedEntry entry);
void updateSharedEntry(Ledger& ledger, SharedEntry entry);
void deleteSharedEntry(Ledger& ledger, const Uuid& id);

[[nodiscard]] Decimal personBalance(const Ledger& ledger, const Uuid& personID);
// Every person's balance in one walk over the movements; a person with nothing shared has zero.
[[nodiscard]] std::map<Uuid, Decimal> peopleBalances(const Ledger& ledger);
// Newest first.
[[nodiscard]] std::vector<SharedHistoryItem> personHistory(const Ledger& ledger, const Uuid& personID);
// Every person's history in one walk over the movements, each newest first.
[[nodiscard]] std::map<Uuid, std::vector<SharedHistoryItem>> peopleHistories(const Ledger& ledger);
// One share per chosen person of amount ÷ (people + 1), rounded down to cents; the rest stays
// with the user.
[[nodiscard]] std::vector<PersonShare> equalSplit(const Decimal& amount, const std::vector<Uuid>& people);

}  // namespace vantello
