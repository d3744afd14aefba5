#pragma once
// What an import does, in figures and in words: the counts foreseen before the user confirms,
// and the one line the message bar shows afterwards.

#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/statements/ImportMerge.hpp"
#include "core/statements/StatementImport.hpp"

#include <QString>

#include <string_view>

namespace vantello::app {

// The merge of the statement's movements into `accountID`, run on a copy of `ledger`: what
// confirming with these choices would add, skip and pair, and how many movements repeat within
// the file.
[[nodiscard]] ImportResult expectedImport(const Ledger& ledger, const StatementImport& statement,
                                          std::string_view accountID, bool detectTransfers, const Calendar& calendar,
                                          RepeatedMovements repeated);

// "Importati 12 movimenti · 3 già presenti · 2 giroconti · 1 riga non valida": the movements
// added always, the other counts when there are any. `unreadableRows` are the statement's rows
// that never became a movement; they count as invalid with those the merge refused.
[[nodiscard]] QString importSummaryText(const ImportResult& result, int unreadableRows);

}  // namespace vantello::app
