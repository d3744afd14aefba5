#pragma once
// Which column of a statement table holds what, and how its dates and amounts are written:
// proposed by `guessed` when a file is opened, then changed freely on the import screen.

#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/CSV.hpp"

#include <array>
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
    // Zero-based; statements often open with the holder, the period and the balance before the
    // column names. Ignored without a header.
    int headerRow = 0;

    // The options proposed for a freshly opened table: columns found by their names (Italian or
    // English), else by what the first data row holds; the date order from the column name or
    // from the dates themselves.
    [[nodiscard]] static CSVImportOptions guessed(const CSV::Table& table);

    bool operator==(const CSVImportOptions&) const = default;
};

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
