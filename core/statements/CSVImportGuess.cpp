// The options proposed when a statement is opened: which row names the columns, which column
// holds what, and how the dates are written.

#include "core/base/Text.hpp"
#include "core/statements/CSVImportOptions.hpp"
#include "core/statements/StatementAmount.hpp"
#include "core/statements/StatementDate.hpp"

#include <algorithm>
#include <array>
#include <set>
#include <span>

namespace vantello {
namespace {

using DateOrder = CSVImportOptions::DateOrder;
using Words = std::span<const std::string_view>;

// Keywords are compared with folded (lower-case, accent-free) column names.
constexpr std::array<std::string_view, 2> dateWords{"data", "date"};
// The value date loses to the booking date whichever comes first.
constexpr std::array<std::string_view, 2> dateExclusions{"valuta", "value"};
constexpr std::array<std::string_view, 4> amountWords{"importo", "amount", "ammontare", "valore"};
constexpr std::array<std::string_view, 5> incomeWords{"entrate", "accrediti", "avere", "income", "credit"};
constexpr std::array<std::string_view, 5> expenseWords{"uscite", "addebiti", "dare", "expense", "debit"};
constexpr std::array<std::string_view, 8> descriptionWords{
    "descrizione", "causale", "description", "dettagli", "details", "memo", "nota", "note"};
constexpr std::array<std::string_view, 2> categoryWords{"categoria", "category"};

// Statements open with a few lines about the holder, the period and the balance; the column
// names are looked for this far down.
constexpr std::size_t headerSearchRows = 20;
// Enough dates to meet a day above 12 in any ordinary month of movements.
constexpr std::size_t dateOrderSampleRows = 50;

bool containsAny(const std::string& name, Words words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return name.find(word) != std::string::npos; });
}

// The first column whose name holds a keyword and no exclusion word; failing that, the first
// whose name holds a keyword.
std::optional<int> columnNamed(const std::vector<std::string>& names, Words words, Words exclusions = {}) {
    std::optional<int> firstMatch;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (!containsAny(names[index], words)) continue;
        if (!containsAny(names[index], exclusions)) return static_cast<int>(index);
        if (!firstMatch) firstMatch = static_cast<int>(index);
    }
    return firstMatch;
}

struct Columns {
    std::optional<int> date, amount, income, expense, description, category;

    [[nodiscard]] bool namesDateOrAmount() const { return date || amount || (income && expense); }
    [[nodiscard]] bool namesDateAndAmount() const { return date && (amount || (income && expense)); }
    [[nodiscard]] bool namesAny() const { return date || amount || income || expense || description || category; }
};

Columns columnsNamedIn(const CSV::Row& row) {
    std::vector<std::string> names;
    names.reserve(row.size());
    for (const auto& cell : row) names.push_back(Text::folded(Text::trimmed(cell)));
    return {columnNamed(names, dateWords, dateExclusions),
            columnNamed(names, amountWords),
            columnNamed(names, incomeWords),
            columnNamed(names, expenseWords),
            columnNamed(names, descriptionWords),
            columnNamed(names, categoryWords)};
}

bool readsAsDate(std::string_view cell) {
    return std::any_of(allDateOrders.begin(), allDateOrders.end(),
                       [&](DateOrder order) { return StatementDate::civilDate(cell, order).has_value(); });
}

bool readsAsAmount(std::string_view cell) {
    return StatementAmount::read(cell).status == StatementAmount::Status::amount;
}

// A row holding a date is a movement, whatever words its description contains.
bool mayNameColumns(const CSV::Row& row) {
    return std::none_of(row.begin(), row.end(), [](const std::string& cell) { return readsAsDate(cell); });
}

bool hasLetter(std::string_view cell) {
    return std::any_of(cell.begin(), cell.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
    });
}

// Words only: no cell reads as a date or an amount, and some cell holds letters.
bool isTextOnly(const CSV::Row& row) {
    return mayNameColumns(row) &&
           std::none_of(row.begin(), row.end(), [](const std::string& cell) { return readsAsAmount(cell); }) &&
           std::any_of(row.begin(), row.end(), [](const std::string& cell) { return hasLetter(cell); });
}

// Column names in a language or wording no keyword knows ("Buchungstag;Betrag") still read as
// text right above the first movement: the row before the first row holding a date, when that
// row holds words only. Without it the header would be read as a movement and the columns
// guessed from it.
std::optional<std::size_t> unnamedHeaderRowOf(const CSV::Table& table) {
    const std::size_t end = std::min(table.size(), headerSearchRows + 1);
    for (std::size_t index = 0; index < end; ++index) {
        if (mayNameColumns(table[index])) continue;
        if (index > 0 && isTextOnly(table[index - 1])) return index - 1;
        return std::nullopt;
    }
    return std::nullopt;
}

// The row that names the columns: the first row when it names the date or the amount, else the
// first of the opening rows that names both; the first row again when it names anything at all;
// failing all of these, a row of words right above the first movement.
std::optional<std::size_t> headerRowOf(const CSV::Table& table) {
    if (mayNameColumns(table.front()) && columnsNamedIn(table.front()).namesDateOrAmount()) return 0;
    const std::size_t end = std::min(table.size(), headerSearchRows);
    for (std::size_t index = 0; index < end; ++index) {
        if (mayNameColumns(table[index]) && columnsNamedIn(table[index]).namesDateAndAmount()) return index;
    }
    if (mayNameColumns(table.front()) && columnsNamedIn(table.front()).namesAny()) return 0;
    return unnamedHeaderRowOf(table);
}

bool looksLikeMoney(std::string_view cell) {
    if (cell.find_first_of("-+(") != std::string_view::npos) return true;
    if (cell.find("\xE2\x82\xAC") != std::string_view::npos || cell.find("\xE2\x88\x92") != std::string_view::npos) {
        return true;  // "€" or the minus sign U+2212
    }
    const auto digitsEnd = cell.find_last_of("0123456789");
    const auto separator = cell.find_last_of(",.");
    return separator != std::string_view::npos && digitsEnd != std::string_view::npos && separator < digitsEnd &&
           digitsEnd - separator <= 2;
}

// Columns the names left open are taken from what the first data row holds: the first date, the
// first other amount (written like money if any is), and the longest text as the description.
void fillFromData(Columns& columns, const CSV::Row& firstData) {
    std::set<int> taken;
    for (const auto& column : {columns.date, columns.amount, columns.income, columns.expense,
                               columns.description, columns.category}) {
        if (column) taken.insert(*column);
    }
    const auto width = static_cast<int>(firstData.size());
    const auto cell = [&](int index) -> const std::string& { return firstData[static_cast<std::size_t>(index)]; };
    if (!columns.date) {
        for (int index = 0; index < width; ++index) {
            if (!taken.contains(index) && readsAsDate(cell(index))) {
                columns.date = index;
                taken.insert(index);
                break;
            }
        }
    }
    if (!columns.amount && !(columns.income && columns.expense)) {
        // Reference numbers read as amounts too; money shows a sign, cents or the euro sign.
        for (const bool moneyOnly : {true, false}) {
            for (int index = 0; index < width && !columns.amount; ++index) {
                if (taken.contains(index) || !readsAsAmount(cell(index))) continue;
                if (!moneyOnly || looksLikeMoney(cell(index))) columns.amount = index;
            }
        }
        if (columns.amount) taken.insert(*columns.amount);
    }
    if (!columns.description) {
        std::size_t longest = 0;
        for (int index = 0; index < width; ++index) {
            const auto& text = cell(index);
            if (taken.contains(index) || !hasLetter(text) || readsAsDate(text) || readsAsAmount(text)) continue;
            if (text.size() > longest) {
                longest = text.size();
                columns.description = index;
            }
        }
    }
}

// A column name such as "Data (gg/mm/aaaa)" or "Date (YYYY-MM-DD)" says how its dates are written.
std::optional<DateOrder> dateOrderNamedIn(std::string name) {
    std::replace_if(name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '/');
    constexpr std::array<std::string_view, 2> yearFirst{"yy/mm", "aa/mm"};
    constexpr std::array<std::string_view, 2> dayFirst{"dd/mm", "gg/mm"};
    constexpr std::array<std::string_view, 2> monthFirst{"mm/dd", "mm/gg"};
    if (containsAny(name, yearFirst)) return DateOrder::yearMonthDay;
    if (containsAny(name, dayFirst)) return DateOrder::dayMonthYear;
    if (containsAny(name, monthFirst)) return DateOrder::monthDayYear;
    return std::nullopt;
}

// A four-digit first part is a year; a first part above 12 is a day; a second part above 12 is
// a day after the month. Without any of these the Italian day-month-year stands.
DateOrder dateOrderOfDates(const CSV::Table& table, std::size_t firstData, int column) {
    bool dayFirst = false;
    bool monthFirst = false;
    const std::size_t end = std::min(table.size(), firstData + dateOrderSampleRows);
    for (std::size_t index = firstData; index < end; ++index) {
        const auto& row = table[index];
        if (static_cast<std::size_t>(column) >= row.size()) continue;
        const auto numbers = StatementDate::writtenNumbers(row[static_cast<std::size_t>(column)]);
        if (!numbers) continue;
        if (numbers->digitCounts[0] == 4) return DateOrder::yearMonthDay;
        if (numbers->values[0] > 12) dayFirst = true;
        if (numbers->values[1] > 12) monthFirst = true;
    }
    return monthFirst && !dayFirst ? DateOrder::monthDayYear : DateOrder::dayMonthYear;
}

}  // namespace

CSVImportOptions CSVImportOptions::guessed(const CSV::Table& table) {
    CSVImportOptions options;
    if (table.empty()) return options;

    const auto headerRow = headerRowOf(table);
    Columns columns = headerRow ? columnsNamedIn(table[*headerRow]) : Columns{};
    const std::size_t firstData = headerRow ? *headerRow + 1 : 0;
    if (firstData < table.size()) fillFromData(columns, table[firstData]);

    options.hasHeader = headerRow.has_value();
    options.headerRow = static_cast<int>(headerRow.value_or(0));
    options.dateColumn = columns.date;
    options.amountColumn = columns.amount;
    options.incomeColumn = columns.income;
    options.expenseColumn = columns.expense;
    options.descriptionColumn = columns.description;
    options.categoryColumn = columns.category;
    if (columns.income && columns.expense && !columns.amount) options.amountMode = AmountMode::separate;

    if (columns.date) {
        std::optional<DateOrder> named;
        if (headerRow && static_cast<std::size_t>(*columns.date) < table[*headerRow].size()) {
            named = dateOrderNamedIn(Text::folded(table[*headerRow][static_cast<std::size_t>(*columns.date)]));
        }
        options.dateOrder = named.value_or(dateOrderOfDates(table, firstData, *columns.date));
    }
    return options;
}

}  // namespace vantello
