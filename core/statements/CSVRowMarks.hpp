#pragma once
// What the words of a statement cell say about its row: a status that keeps the movement out of
// the ledger, a balance line among the movements, the side of an amount written beside it.

#include <optional>
#include <string_view>

namespace vantello::CSVRowMarks {

// A status cell of a movement not booked, or never to be: pending ("IN SOSPESO", "PENDING",
// "Vorgemerkt"), declined, reverted or not approved ("NON CONTABILIZZATO", "NOT APPROVED").
[[nodiscard]] bool isNotBooked(std::string_view statusCell);

// A description opening with an opening, closing or booked balance ("Saldo iniziale",
// "Saldo finale", "Saldo contabile", "Closing balance", "Anfangssaldo"...).
[[nodiscard]] bool isBalanceLine(std::string_view description);

enum class Side { moneyOut, moneyIn };

// "S"/"H" (Soll/Haben), "Af"/"Bij", "D"/"C", "DR"/"CR", "Debit"/"Credit", "Dare"/"Avere",
// "-"/"+"; nothing for any other text.
[[nodiscard]] std::optional<Side> sideOf(std::string_view signCell);

}  // namespace vantello::CSVRowMarks
