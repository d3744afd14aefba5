#include "core/statements/ImportMerge.hpp"

#include "core/base/Text.hpp"
#include "core/base/UserError.hpp"
#include "core/ledger/CategoryRuleMatcher.hpp"
#include "core/statements/NameBasedUuid.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace vantello {

namespace {

// Elapsed time, not calendar days: a daylight saving change does not widen or narrow it.
constexpr std::int64_t transferWindowSeconds = 3 * 86'400;

// Two movements with equal keys are the same movement read twice: the time of day and the case
// of the note do not count.
struct DuplicateKey {
    CivilDate day;
    TransactionKind kind;
    Decimal amount;
    std::string note;  // lower-cased
    std::string account;

    DuplicateKey(const Transaction& transaction, const Calendar& calendar)
        : day(calendar.civilDate(transaction.date)),
          kind(transaction.kind),
          amount(transaction.amount),
          note(Text::lowercased(transaction.note)),
          account(transaction.accountID) {}

    bool operator==(const DuplicateKey&) const = default;
};

struct DuplicateKeyHash {
    std::size_t operator()(const DuplicateKey& key) const noexcept {
        std::size_t hash = std::hash<std::string>()(key.note);
        const auto add = [&hash](std::size_t value) {
            hash ^= value + 0x9E3779B97F4A7C15ULL + (hash << 6) + (hash >> 2);
        };
        add(key.amount.hash());
        add(static_cast<std::size_t>((key.day.year * 16 + key.day.month) * 32 + key.day.day));
        add(static_cast<std::size_t>(key.kind));
        add(std::hash<std::string>()(key.account));
        return hash;
    }
};

bool withinTransferWindow(Instant a, Instant b) {
    const std::int64_t difference = unixSeconds(a) - unixSeconds(b);
    return difference <= transferWindowSeconds && difference >= -transferWindowSeconds;
}

// Ledger positions of the candidates for the other half of a transfer, by amount, ascending.
using PositionsByAmount = std::unordered_map<Decimal, std::vector<std::uint32_t>>;

// The first candidate that can be the other half of the imported movement's transfer: the same
// money the other way, not yet made a transfer, close enough in time.
std::optional<std::uint32_t> otherHalf(const Transaction& imported, const PositionsByAmount& candidates,
                                       const SharedList<Transaction>& ledger) {
    const auto listed = candidates.find(imported.amount);
    if (listed == candidates.end()) return std::nullopt;
    for (const std::uint32_t position : listed->second) {
        const Transaction& existing = ledger[position];
        if (existing.kind != imported.kind && !existing.isTransfer() &&
            withinTransferWindow(existing.date, imported.date)) {
            return position;
        }
    }
    return std::nullopt;
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

// The merge itself, on the ledger's movements, which `ledger` is read through as well: the
// lookups it makes (accounts, categories, people, rules) never look at the movements.
ImportResult merge(const Ledger& ledger, SharedList<Transaction>& movements, std::vector<Transaction> transactions,
                   const std::string& chosenAccount, bool detectTransfers, const Calendar& calendar,
                   RepeatedMovements repeated) {
    ImportResult result;
    const bool counted = repeated == RepeatedMovements::counted;
    // Every lookup is sized for the whole statement up front: on a large statement, growing the
    // tables step by step would be a good part of the merge's time.
    std::unordered_set<Decimal> importedAmounts(transactions.size());
    std::unordered_set<Uuid> importedIDs(transactions.size());
    std::vector<DuplicateKey> importedKeys;
    importedKeys.reserve(transactions.size());
    {
        std::unordered_set<std::reference_wrapper<const DuplicateKey>, DuplicateKeyHash, std::equal_to<DuplicateKey>>
            statementKeys(transactions.size());
        for (Transaction& imported : transactions) {
            imported.accountID = chosenAccount;
            importedAmounts.insert(imported.amount);
            importedIDs.insert(imported.id);
            importedKeys.emplace_back(imported, calendar);
            if (!statementKeys.insert(importedKeys.back()).second) ++result.repeatedInStatement;
        }
    }

    // A duplicate has an imported movement's amount and account, and the other half of a
    // transfer its amount and another account (a rewritten one is a transfer and never matches
    // again); an identifier matters only when the statement holds it too. So the lookups take
    // only those movements of the ledger. That gives the same answers as taking all of them,
    // several times faster on a large ledger: most movements never need their day found, their
    // note lower-cased or a place in a table. `keys` holds how many movements are left to match
    // each key; only presence counts unless repeated movements are counted, and then a movement
    // the statement names by its bank id is matched by that id instead.
    std::unordered_map<DuplicateKey, int, DuplicateKeyHash> keys(transactions.size());
    std::unordered_set<Uuid> ids(transactions.size());
    PositionsByAmount candidates;
    std::uint32_t position = 0;
    for (const Transaction& existing : movements) {
        const bool namedByStatement = importedIDs.contains(existing.id);
        if (namedByStatement) ids.insert(existing.id);
        if (importedAmounts.contains(existing.amount)) {
            if (existing.accountID == chosenAccount) {
                const bool matchedByID = counted && namedByStatement && isNameBased(existing.id);
                if (!matchedByID) ++keys[DuplicateKey(existing, calendar)];
            } else if (detectTransfers && !existing.isTransfer()) {
                candidates[existing.amount].push_back(position);
            }
        }
        ++position;
    }

    const CategoryRuleMatcher rules(ledger);
    for (std::size_t index = 0; index < transactions.size(); ++index) {
        Transaction& imported = transactions[index];
        if (imported.categoryID == fallbackCategoryID(imported.kind)) {
            if (auto category = rules.categoryFor(imported.note, imported.kind)) {
                imported.categoryID = std::move(*category);
            }
        }

        if (isNameBased(imported.id) && ids.contains(imported.id)) {
            ++result.duplicates;  // the same bank record, imported before
            continue;
        }
        DuplicateKey& key = importedKeys[index];
        if (const auto match = keys.find(key); match != keys.end() && match->second > 0) {
            if (counted) --match->second;
            ++result.duplicates;
            continue;
        }

        if (detectTransfers && !imported.isTransfer()) {
            if (const std::optional<std::uint32_t> match = otherHalf(imported, candidates, movements)) {
                movements.update(*match, [&](Transaction& existing) { makeTransfer(existing, chosenAccount); });
                ++result.transfers;
                continue;
            }
        }

        bool valid = !ids.contains(imported.id);
        if (valid) {
            try {
                ledger.validate(imported);
            } catch (const UserError&) {
                valid = false;
            }
        }
        if (!valid) {
            ++result.invalid;
            continue;
        }

        // On the chosen account, an appended movement can be a later row's duplicate (unless
        // repeated movements are counted) but never the other half of its transfer.
        if (!counted) keys.try_emplace(std::move(key), 1);
        ids.insert(imported.id);
        movements.push_back(std::move(imported));
        ++result.added;
    }
    return result;
}

}  // namespace

ImportResult importTransactions(Ledger& ledger, std::vector<Transaction> transactions, std::string_view accountID,
                                bool detectTransfers, const Calendar& calendar, RepeatedMovements repeated) {
    ImportResult result;
    if (transactions.empty()) return result;
    // Nothing could be filed on an unknown account: validation would refuse every movement.
    if (!ledger.account(accountID)) {
        result.invalid = static_cast<int>(transactions.size());
        return result;
    }
    return ledger.change([&](LedgerData& data) {
        return merge(ledger, data.transactions, std::move(transactions), std::string(accountID), detectTransfers,
                     calendar, repeated);
    });
}

}  // namespace vantello
