#pragma once
// The text of a CSV file of movements that a spreadsheet in the user's locale opens directly:
// date, kind, category, amount with the locale's decimal separator, and note.

#include "core/base/Calendar.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace vantello::CSVExport {

enum class Order {
    byDate,   // oldest first; movements of the same moment keep their order
    asGiven,  // as the caller lists them (a screen exporting what it shows)
};

// The header row ("Data", "Tipo", "Categoria", "Importo", "Nota", localised) and one row per
// movement, joined by CR LF without a line break after the last row. The decimal separator is
// the ICU locale's ("." when it has none); cells are separated by ";" when that separator is
// ",", else by ",". Amounts have two fraction digits and no sign; dates are the calendar day in
// `calendar` ("2024-03-05"); categories are named from `categories`, transfers by the transfer
// category, unknown ids by the id itself.
[[nodiscard]] std::string text(const std::vector<Transaction>& transactions,
                               const std::vector<TransactionCategory>& categories, const Calendar& calendar,
                               std::string_view localeName, Order order = Order::byDate);

}  // namespace vantello::CSVExport
