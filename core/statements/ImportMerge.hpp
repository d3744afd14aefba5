#pragma once
// Merging the movements of a bank statement into the ledger: category rules first, then
// duplicates, then transfers between the user's own accounts.

#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"

#include <string_view>
#include <vector>

namespace vantello {

// What became of the imported movements: each one lands in exactly one count.
struct ImportResult {
    int transfers = 0;   // merged with the other half of a transfer already in the ledger
    int added = 0;
    int duplicates = 0;  // already in the ledger (same day, kind, amount, note, account)
    int invalid = 0;     // refused: identifier already present or failed validation
    // Movements equal (as duplicates are) to an earlier one of the same statement: two tram
    // tickets of one day. It says whether counting repeated rows would change anything.
    int repeatedInStatement = 0;

    // Whether the ledger changed: only an added movement or a made transfer changes it.
    [[nodiscard]] bool changed() const { return added > 0 || transfers > 0; }
    bool operator==(const ImportResult&) const = default;
};

// How equal movements of one statement are taken. `oneDuplicate`: a movement equal to one already
// in the ledger or earlier in the statement is a duplicate, so two equal movements of one day
// are one. `counted`: N equal movements in the statement with M already in the ledger add N − M.
enum class RepeatedMovements { oneDuplicate, counted };

// Files the movements of a statement on `accountID`, lets the category rules re-file those in a
// fallback category, skips duplicates and, with `detectTransfers`, turns an opposite movement of
// the same amount on another account within three days into one transfer. A movement whose
// name-based identifier (the bank's own id of it, see StatementRecord) is already in the ledger
// was imported before and is a duplicate too. Never throws; days are taken in `calendar`.
ImportResult importTransactions(Ledger& ledger, std::vector<Transaction> transactions, std::string_view accountID,
                                bool detectTransfers, const Calendar& calendar,
                                RepeatedMovements repeated = RepeatedMovements::oneDuplicate);

}  // namespace vantello
