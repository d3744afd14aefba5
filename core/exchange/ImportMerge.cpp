// Merging the movements of a bank statement into the ledger: category rules, duplicates,
// transfers between own accounts.
//
// Three lookups are built once per import and kept current as movements are appended: the
// duplicate keys, the identifiers and the transfer candidates by amount. Only what an imported
// movement could meet goes into them, which gives the same answers as taking the whole ledger:
// a duplicate has the imported movement's amount and account (every imported movement is on
// the chosen account), a transfer's other half has its amount and another account, and an
// identifier only matters when the statement holds it too. So one pass over the ledger reads
// each movement's amount and identifier from the movement itself, checks them against small
// tables made from the statement, and looks further only at the few that pass. The tables are
// flat open-addressing arrays of hashes and ledger positions: no allocation per movement.

#include "core/base/CivilDays.hpp"
#include "core/base/Text.hpp"
#include "core/base/UserError.hpp"
#include "core/ledger/Ledger.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vantello {

namespace {

// Elapsed time, not calendar days: a daylight saving change does not widen or narrow it.
constexpr std::int64_t transferWindowSeconds = 3 * 86'400;

constexpr std::uint32_t noPosition = std::numeric_limits<std::uint32_t>::max();

std::uint64_t mixed(std::uint64_t value) {
    value ^= value >> 30;
    value *= 0xBF58476D1CE4E5B9ULL;
    value ^= value >> 27;
    value *= 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

std::uint64_t combined(std::uint64_t seed, std::uint64_t value) {
    return mixed(seed ^ (value + 0x9E3779B97F4A7C15ULL));
}

std::uint64_t amountHash(const Decimal& amount) { return mixed(amount.hash()); }
std::uint64_t idHash(const Uuid& id) { return mixed(std::hash<Uuid>()(id)); }

// Eight bytes at a time with the ASCII capitals among them lowered; bytes outside ASCII pass
// unchanged.
std::uint64_t loweredWord(std::uint64_t word) {
    constexpr std::uint64_t ones = 0x0101010101010101ULL;
    constexpr std::uint64_t highBits = 0x8080808080808080ULL;
    const std::uint64_t low7 = word & ~highBits;
    const std::uint64_t atLeastA = low7 + (0x80 - 'A') * ones;
    const std::uint64_t aboveZ = low7 + (0x80 - 'Z' - 1) * ones;
    const std::uint64_t capitals = atLeastA & ~aboveZ & ~word & highBits;
    return word | (capitals >> 2);
}

// A hash of the text read eight bytes at a time, ASCII capitals lowered when asked; `ascii`
// tells whether every byte was ASCII.
std::uint64_t wordHash(std::string_view text, bool lowerCapitals, bool& ascii) {
    std::uint64_t hash = mixed(text.size());
    std::uint64_t allBits = 0;
    const auto add = [&](std::uint64_t word) {
        allBits |= word;
        hash = mixed(hash ^ (lowerCapitals ? loweredWord(word) : word));
    };
    std::size_t index = 0;
    for (; index + 8 <= text.size(); index += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + index, sizeof word);
        add(word);
    }
    if (index < text.size()) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + index, text.size() - index);
        add(word);
    }
    ascii = (allBits & 0x8080808080808080ULL) == 0;
    return hash;
}

// The hash of the note as Text::lowercased writes it. ASCII notes, nearly all of them, are
// lowered on the fly instead of being copied; a lower-cased text has no capitals left to lower.
std::uint64_t lowercasedHash(std::string_view note) {
    bool ascii = true;
    const std::uint64_t hash = wordHash(note, true, ascii);
    return ascii ? hash : wordHash(Text::lowercased(note), true, ascii);
}

std::uint64_t plainHash(std::string_view text) {
    bool ascii = true;
    return wordHash(text, false, ascii);
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

bool equalLowercased(std::string_view a, std::string_view b) {
    if (isAscii(a) && isAscii(b)) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
            return lower(x) == lower(y);
        });
    }
    return Text::lowercased(a) == Text::lowercased(b);
}

// An open-addressing table of entries carrying their own well-mixed `hash`; it doubles when
// half full. Entries with equal hashes may coexist; `find` asks the caller which one it wants.
template <typename Entry>
class FlatTable {
public:
    explicit FlatTable(std::size_t expected) : slots_(std::bit_ceil(std::max<std::size_t>(16, expected * 2))) {}

    template <typename Matches>
    [[nodiscard]] Entry* find(std::uint64_t hash, Matches&& matches) {
        const std::size_t mask = slots_.size() - 1;
        for (std::size_t slot = hash & mask; slots_[slot].used; slot = (slot + 1) & mask) {
            if (slots_[slot].entry.hash == hash && matches(slots_[slot].entry)) return &slots_[slot].entry;
        }
        return nullptr;
    }

    Entry& insert(Entry entry) {
        if ((count_ + 1) * 2 > slots_.size()) grow();
        ++count_;
        return place(std::move(entry));
    }

private:
    struct Slot {
        Entry entry;
        bool used = false;
    };

    Entry& place(Entry entry) {
        const std::size_t mask = slots_.size() - 1;
        std::size_t slot = entry.hash & mask;
        while (slots_[slot].used) slot = (slot + 1) & mask;
        slots_[slot] = {std::move(entry), true};
        return slots_[slot].entry;
    }

    void grow() {
        std::vector<Slot> old(slots_.size() * 2);
        old.swap(slots_);
        for (Slot& slot : old) {
            if (slot.used) place(std::move(slot.entry));
        }
    }

    std::vector<Slot> slots_;
    std::size_t count_ = 0;
};

const auto anyEntry = [](const auto&) { return true; };

// The movements at their ledger positions as they were before the import: a movement rewritten
// into a transfer keeps its old duplicate key, so its old form is kept aside.
class Positions {
public:
    explicit Positions(const SharedList<Transaction>& ledger) : ledger_(ledger) {}

    [[nodiscard]] const Transaction& current(std::uint32_t position) const { return ledger_[position]; }
    [[nodiscard]] const Transaction& original(std::uint32_t position) const {
        const auto found = rewritten_.find(position);
        return found == rewritten_.end() ? ledger_[position] : found->second;
    }
    void keepOriginal(std::uint32_t position) { rewritten_.try_emplace(position, ledger_[position]); }

private:
    const SharedList<Transaction>& ledger_;
    std::unordered_map<std::uint32_t, Transaction> rewritten_;
};

// The duplicate keys: calendar day, kind, amount, note lower-cased, account. An entry holds the
// key's hash, its day and the position of a movement with that key; a matching hash is
// confirmed against that movement.
class DuplicateKeys {
public:
    struct Key {
        std::uint64_t hash;
        std::int32_t day;
    };

    DuplicateKeys(const Calendar& calendar, const Positions& positions, std::size_t expected)
        : calendar_(calendar), positions_(positions), entries_(expected) {}

    [[nodiscard]] Key keyOf(const Transaction& transaction) const {
        const CivilDate date = calendar_.civilDate(transaction.date);
        const auto day = static_cast<std::int32_t>(CivilDays::daysFromCivil(date.year, date.month, date.day));
        std::uint64_t hash = combined(static_cast<std::uint64_t>(day), static_cast<std::uint64_t>(transaction.kind));
        hash = combined(hash, transaction.amount.hash());
        hash = combined(hash, lowercasedHash(transaction.note));
        hash = combined(hash, plainHash(transaction.accountID));
        return {hash, day};
    }

    [[nodiscard]] bool contains(const Transaction& transaction, const Key& key) {
        return entries_.find(key.hash, [&](const Entry& entry) {
            if (entry.day != key.day) return false;
            const Transaction& other = positions_.original(entry.position);
            return other.kind == transaction.kind && other.amount == transaction.amount &&
                   other.accountID == transaction.accountID && equalLowercased(other.note, transaction.note);
        }) != nullptr;
    }

    void insert(const Key& key, std::uint32_t position) { entries_.insert({key.hash, key.day, position}); }

private:
    struct Entry {
        std::uint64_t hash = 0;
        std::int32_t day = 0;
        std::uint32_t position = noPosition;
    };

    const Calendar& calendar_;
    const Positions& positions_;
    FlatTable<Entry> entries_;
};

class Identifiers {
public:
    explicit Identifiers(std::size_t expected) : entries_(expected) {}

    [[nodiscard]] bool contains(const Uuid& id) {
        return entries_.find(idHash(id), [&id](const Entry& entry) { return entry.id == id; }) != nullptr;
    }
    void insert(const Uuid& id) {
        if (!contains(id)) entries_.insert({idHash(id), id});
    }

private:
    struct Entry {
        std::uint64_t hash = 0;
        Uuid id;
    };
    FlatTable<Entry> entries_;
};

// Transfer candidates: ledger positions by amount in ascending order, one chain per kind (a
// transfer's other half is always of the other kind). Chains are keyed by the amount's hash, so
// a chain may also hold another amount with that hash; the caller compares amounts anyway.
class AmountIndex {
public:
    explicit AmountIndex(std::size_t expected) : chains_(expected) {}

    void add(const Transaction& transaction, std::uint32_t position) {
        const std::uint64_t hash = amountHash(transaction.amount);
        Chains* chains = chains_.find(hash, anyEntry);
        if (!chains) chains = &chains_.insert({hash, {noPosition, noPosition}, {noPosition, noPosition}});
        const std::size_t kind = kindIndex(transaction.kind);
        const auto link = static_cast<std::uint32_t>(links_.size());
        links_.push_back({position, noPosition});
        if (chains->head[kind] == noPosition) {
            chains->head[kind] = link;
        } else {
            links_[chains->tail[kind]].next = link;
        }
        chains->tail[kind] = link;
    }

    // The first position of a movement of `kind` with this amount's hash that `accepts`, in
    // ascending order, or noPosition.
    template <typename Accepts>
    [[nodiscard]] std::uint32_t first(const Decimal& amount, TransactionKind kind, Accepts&& accepts) {
        const Chains* chains = chains_.find(amountHash(amount), anyEntry);
        if (!chains) return noPosition;
        for (std::uint32_t link = chains->head[kindIndex(kind)]; link != noPosition; link = links_[link].next) {
            if (accepts(links_[link].position)) return links_[link].position;
        }
        return noPosition;
    }

private:
    struct Chains {
        std::uint64_t hash = 0;
        std::uint32_t head[2] = {noPosition, noPosition};  // links, by kind
        std::uint32_t tail[2] = {noPosition, noPosition};
    };
    struct Link {
        std::uint32_t position;
        std::uint32_t next;
    };

    static std::size_t kindIndex(TransactionKind kind) { return kind == TransactionKind::expense ? 0 : 1; }

    FlatTable<Chains> chains_;
    std::vector<Link> links_;
};

struct HashOnly {
    std::uint64_t hash = 0;
};

TransactionKind opposite(TransactionKind kind) {
    return kind == TransactionKind::expense ? TransactionKind::income : TransactionKind::expense;
}

bool withinTransferWindow(Instant a, Instant b) {
    const std::int64_t difference = unixSeconds(a) - unixSeconds(b);
    return difference <= transferWindowSeconds && difference >= -transferWindowSeconds;
}

// The existing movement becomes the whole transfer: it leaves the expense side's account and
// reaches the income side's. Amount, date and note stay; a transfer carries no shares.
void makeTransfer(Transaction& existing, const std::string& importedAccountID) {
    if (existing.kind == TransactionKind::income) {
        existing.transferToAccountID = std::move(existing.accountID);
        existing.accountID = importedAccountID;
    } else {
        existing.transferToAccountID = importedAccountID;
    }
    existing.kind = TransactionKind::expense;
    existing.categoryID = std::string(transferCategoryID);
    existing.shares.clear();
}

}  // namespace

Ledger::ImportResult Ledger::importTransactions(std::vector<Transaction> transactions, std::string_view accountID,
                                                bool detectTransfers, const Calendar& calendar) {
    ImportResult result;
    if (transactions.empty()) return result;
    // Nothing could be filed on an unknown account: validation would refuse every movement.
    if (!account(accountID)) {
        result.invalid = static_cast<int>(transactions.size());
        return result;
    }
    const std::string chosenAccount(accountID);
    SharedList<Transaction>& ledger = data_.transactions;

    // What the statement holds, to pick out the movements of the ledger worth looking at.
    FlatTable<HashOnly> importedAmounts(transactions.size());
    Identifiers importedIDs(transactions.size());
    for (Transaction& imported : transactions) {
        imported.accountID = chosenAccount;
        const std::uint64_t hash = amountHash(imported.amount);
        if (!importedAmounts.find(hash, anyEntry)) importedAmounts.insert({hash});
        importedIDs.insert(imported.id);
    }

    Positions positions(ledger);
    DuplicateKeys keys(calendar, positions, transactions.size());
    Identifiers ids(transactions.size());  // ledger identifiers that the statement also holds
    AmountIndex candidates(detectTransfers ? transactions.size() : 0);
    std::uint32_t position = 0;
    for (const Transaction& existing : ledger) {
        if (importedIDs.contains(existing.id)) ids.insert(existing.id);
        if (importedAmounts.find(amountHash(existing.amount), anyEntry)) {
            if (existing.accountID == chosenAccount) {
                keys.insert(keys.keyOf(existing), position);
            } else if (detectTransfers && !existing.isTransfer()) {
                candidates.add(existing, position);
            }
        }
        ++position;
    }

    for (Transaction& imported : transactions) {
        if (imported.categoryID == fallbackCategoryID(imported.kind)) {
            if (auto category = categoryByRules(imported.note, imported.kind)) imported.categoryID = std::move(*category);
        }

        const DuplicateKeys::Key key = keys.keyOf(imported);
        if (keys.contains(imported, key)) {
            ++result.duplicates;
            continue;
        }

        if (detectTransfers && !imported.isTransfer()) {
            const std::uint32_t match =
                candidates.first(imported.amount, opposite(imported.kind), [&](std::uint32_t candidate) {
                    const Transaction& existing = positions.current(candidate);
                    return !existing.isTransfer() && existing.amount == imported.amount &&
                           withinTransferWindow(existing.date, imported.date);
                });
            if (match != noPosition) {
                positions.keepOriginal(match);
                ledger.update(match, [&chosenAccount](Transaction& other) { makeTransfer(other, chosenAccount); });
                ++result.transfers;
                continue;
            }
        }

        bool valid = !ids.contains(imported.id);
        if (valid) {
            try {
                validate(imported);
            } catch (const UserError&) {
                valid = false;
            }
        }
        if (!valid) {
            ++result.invalid;
            continue;
        }

        // An appended movement is on the chosen account, so it can be a later row's duplicate
        // but never the other half of its transfer: it joins the keys and identifiers only.
        keys.insert(key, static_cast<std::uint32_t>(ledger.size()));
        ids.insert(imported.id);
        ledger.push_back(std::move(imported));
        ++result.added;
    }
    return result;
}

}  // namespace vantello
