#pragma once
// Which column of a statement table holds what, and how its dates and amounts are written:
// proposed by `guessed` when a file is opened, then changed freely on the import screen.

#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/CSV.hpp"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantello {

struct CSVImportOptions {
    // Order of a date's parts, in the order of the "Formato della data" picker.
    enum class DateOrder { dayMonthYear, yearMonthDay, monthDayYear };
    enum class AmountMode {
        signed_,   // one column, negative for expenses ("signed")
        separate,  // one column for income and one for expenses
    };

    // The row at `headerRow` names the columns; it and every row above it are not imported.
    bool hasHeader = true;
    std::optional<int> dateColumn;
    DateOrder dateOrder = DateOrder::dayMonthYear;
    AmountMode amountMode = AmountMode::signed_;
    std::optional<int> amountColumn;
    std::optional<int> incomeColumn;
    std::optional<int> expenseColumn;
    std::optional<int> descriptionColumn;
    std::optional<int> categoryColumn;
    std::string expenseCategoryID{otherExpensesCategoryID};
    std::string incomeCategoryID{otherIncomeCategoryID};
    // The side of the amount written beside it ("S"/"H", "Af"/"Bij", "D"/"C"): in one column,
    // it wins over the amount's own sign.
    std::optional<int> signColumn;
    // The state of the movement: rows not yet booked, declined or reverted are not imported.
    std::optional<int> statusColumn;
    // Zero-based; statements often open with the holder, the period and the balance before the
    // column names. Ignored without a header.
    int headerRow = 0;

    // The options proposed for a freshly opened table: columns found by their names (Italian,
    // English, German, French, Spanish or Dutch; a name equal to a keyword before one that only
    // holds it), else by what the first data row holds; the date order from the column name or
    // from the dates themselves.
    [[nodiscard]] static CSVImportOptions guessed(const CSV::Table& table);

    bool operator==(const CSVImportOptions&) const = default;
};

// Which rule proposed each option, by the option's name ("dateColumn" → "headerKeyword"): short,
// stable codes that the import preview shows so that the user sees why a column was taken.
//   header:  "firstRowNames", "namedRowBelow", "amountNamedRowBelow", "firstRowAnyName",
//            "wordsAboveFirstMovement", "noHeaderFound"
//   columns: "headerExactName", "headerKeyword", "dataCells", "notFound"
//   dateOrder: "columnName", "dates", "default"
//   amountMode: "incomeAndExpenseColumns", "oneAmountColumn"
//   "user" where the user's choice replaced the guess; the separator's rule comes from
//   CSV::guessSeparator.
using CSVGuessRules = std::map<std::string, std::string, std::less<>>;

struct CSVImportGuess {
    CSVImportOptions options;
    CSVGuessRules rules;

    [[nodiscard]] static CSVImportGuess of(const CSV::Table& table);
};

// The rules of a guess with "user" for every option that `chosen` holds differently.
[[nodiscard]] CSVGuessRules rulesAfterChoices(CSVGuessRules rules, const CSVImportOptions& guessed,
                                              const CSVImportOptions& chosen);

inline constexpr std::array<CSVImportOptions::DateOrder, 3> allDateOrders{
    CSVImportOptions::DateOrder::dayMonthYear, CSVImportOptions::DateOrder::yearMonthDay,
    CSVImportOptions::DateOrder::monthDayYear};
inline constexpr std::array<CSVImportOptions::AmountMode, 2> allAmountModes{
    CSVImportOptions::AmountMode::signed_, CSVImportOptions::AmountMode::separate};

// Raw values "dayMonthYear", "yearMonthDay", "monthDayYear", "signed", "separate".
[[nodiscard]] std::string_view rawValue(CSVImportOptions::DateOrder order);
[[nodiscard]] std::string_view rawValue(CSVImportOptions::AmountMode mode);
[[nodiscard]] std::optional<CSVImportOptions::DateOrder> dateOrderFromRawValue(std::string_view text);
[[nodiscard]] std::optional<CSVImportOptions::AmountMode> amountModeFromRawValue(std::string_view text);

// The labels of the import screen's pickers, localised.
[[nodiscard]] std::string label(CSVImportOptions::DateOrder order);
[[nodiscard]] std::string label(CSVImportOptions::AmountMode mode);

}  // namespace vantello
