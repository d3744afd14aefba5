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

// What names a column, compared with folded (lower-case, accent-free) and trimmed column names:
// a name that contains one of `words`, or that equals one of `words` or of `names` (words too
// short or too common to look for inside a longer name); a name holding an exclusion word is
// taken only when no other matches.
struct Keywords {
    Words words;
    Words exclusions = {};
    Words names = {};
};

constexpr std::array<std::string_view, 5> dateWords{"data", "date", "datum", "fecha", "buchungstag"};
// The value date loses to the booking date whichever comes first.
constexpr std::array<std::string_view, 5> dateExclusions{"valuta", "value", "valeur", "valor", "wertstellung"};
constexpr std::array<std::string_view, 9> amountWords{"importo", "amount", "ammontare", "valore", "betrag",
                                                      "umsatz",  "montant", "importe", "bedrag"};
// Payment services write gross, fee and net; the net amount is what moved.
constexpr std::array<std::string_view, 2> amountNames{"netto", "net"};
constexpr std::array<std::string_view, 8> incomeWords{"entrate", "accrediti", "avere",   "income",
                                                      "credit",  "paid in",   "money in", "abono"};
constexpr std::array<std::string_view, 2> incomeNames{"haben", "bij"};
constexpr std::array<std::string_view, 8> expenseWords{"uscite", "addebiti", "dare",      "expense",
                                                       "debit",  "paid out", "money out", "cargo"};
constexpr std::array<std::string_view, 2> expenseNames{"soll", "af"};
constexpr std::array<std::string_view, 14> descriptionWords{
    "descrizione", "causale",          "description", "dettagli", "details",      "memo",        "nota",
    "note",        "descripcion",      "libelle",     "concepto", "omschrijving", "beschreibung", "verwendungszweck"};
// Payment services' reports tell a movement by the other party's name.
constexpr std::array<std::string_view, 2> descriptionNames{"name", "nome"};
constexpr std::array<std::string_view, 2> categoryWords{"categoria", "category"};
constexpr std::array<std::string_view, 2> statusWords{"stato", "status"};
constexpr std::array<std::string_view, 2> statusNames{"state", "esito"};
constexpr std::array<std::string_view, 12> signNames{"s/h",   "soll/haben", "af bij",       "af/bij",
                                                     "d/c",   "dr/cr",      "cr/dr",        "segno",
                                                     "sign",  "+/-",        "debit/credit", "dare/avere"};

constexpr Keywords dateKeywords{dateWords, dateExclusions};
constexpr Keywords amountKeywords{amountWords, {}, amountNames};
constexpr Keywords incomeKeywords{incomeWords, {}, incomeNames};
constexpr Keywords expenseKeywords{expenseWords, {}, expenseNames};
constexpr Keywords descriptionKeywords{descriptionWords, {}, descriptionNames};
constexpr Keywords categoryKeywords{categoryWords};
constexpr Keywords statusKeywords{statusWords, {}, statusNames};
constexpr Keywords signKeywords{{}, {}, signNames};

// Statements open with a few lines about the holder, the period and the balance; the column
// names are looked for this far down.
constexpr std::size_t headerSearchRows = 20;
// Enough dates to meet a day above 12 in any ordinary month of movements.
constexpr std::size_t dateOrderSampleRows = 50;

bool containsAny(const std::string& name, Words words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return name.find(word) != std::string::npos; });
}

bool equalsAny(const std::string& name, Words words) {
    return std::find(words.begin(), words.end(), name) != words.end();
}

// A column and the rule that found it.
struct Found {
    std::optional<int> column;
    std::string_view rule = "notFound";
};

// The first column named exactly by a keyword; failing that, the first whose name holds a
// keyword and no exclusion word; failing that, the first whose name holds a keyword.
Found columnNamed(const std::vector<std::string>& names, const Keywords& keywords) {
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (equalsAny(names[index], keywords.words) || equalsAny(names[index], keywords.names)) {
            return {static_cast<int>(index), "headerExactName"};
        }
    }
    std::optional<int> firstMatch;
    for (std::size_t index = 0; index < names.size(); ++index) {
        if (!containsAny(names[index], keywords.words)) continue;
        if (!containsAny(names[index], keywords.exclusions)) return {static_cast<int>(index), "headerKeyword"};
        if (!firstMatch) firstMatch = static_cast<int>(index);
    }
    if (firstMatch) return {firstMatch, "headerKeyword"};
    return {};
}

struct Columns {
    Found date, amount, income, expense, description, category, sign, status;

    [[nodiscard]] bool namesAmount() const { return amount.column || (income.column && expense.column); }
    [[nodiscard]] bool namesDateOrAmount() const { return date.column || namesAmount(); }
    [[nodiscard]] bool namesDateAndAmount() const { return date.column && namesAmount(); }
    [[nodiscard]] bool namesAny() const {
        return date.column || amount.column || income.column || expense.column || description.column ||
               category.column;
    }
};

Columns columnsNamedIn(const CSV::Row& row) {
    std::vector<std::string> names;
    names.reserve(row.size());
    for (const auto& cell : row) names.push_back(Text::folded(Text::trimmed(cell)));
    Columns columns;
    // "Soll/Haben" or "Dare/Avere" names the side of the amount, not money in or out.
    columns.sign = columnNamed(names, signKeywords);
    if (columns.sign.column) names[static_cast<std::size_t>(*columns.sign.column)].clear();
    columns.date = columnNamed(names, dateKeywords);
    columns.amount = columnNamed(names, amountKeywords);
    columns.income = columnNamed(names, incomeKeywords);
    columns.expense = columnNamed(names, expenseKeywords);
    columns.description = columnNamed(names, descriptionKeywords);
    columns.category = columnNamed(names, categoryKeywords);
    columns.status = columnNamed(names, statusKeywords);
    return columns;
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

struct HeaderRow {
    std::optional<std::size_t> row;
    std::string_view rule = "noHeaderFound";
};

// The row that names the columns: the first row when it names the date or the amount, else the
// first of the opening rows that names both, else the first row of words below the first that
// names the amount (its date column is then found in the data); the first row again when it
// names anything at all; failing all of these, a row of words right above the first movement.
HeaderRow headerRowOf(const CSV::Table& table) {
    if (mayNameColumns(table.front()) && columnsNamedIn(table.front()).namesDateOrAmount()) {
        return {0, "firstRowNames"};
    }
    const std::size_t end = std::min(table.size(), headerSearchRows);
    for (std::size_t index = 0; index < end; ++index) {
        if (mayNameColumns(table[index]) && columnsNamedIn(table[index]).namesDateAndAmount()) {
            return {index, "namedRowBelow"};
        }
    }
    for (std::size_t index = 1; index < end; ++index) {
        if (isTextOnly(table[index]) && columnsNamedIn(table[index]).namesAmount()) {
            return {index, "amountNamedRowBelow"};
        }
    }
    if (mayNameColumns(table.front()) && columnsNamedIn(table.front()).namesAny()) return {0, "firstRowAnyName"};
    if (const auto row = unnamedHeaderRowOf(table)) return {row, "wordsAboveFirstMovement"};
    return {};
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
    for (const Found* found : {&columns.date, &columns.amount, &columns.income, &columns.expense,
                               &columns.description, &columns.category, &columns.sign, &columns.status}) {
        if (found->column) taken.insert(*found->column);
    }
    const auto width = static_cast<int>(firstData.size());
    const auto cell = [&](int index) -> const std::string& { return firstData[static_cast<std::size_t>(index)]; };
    const auto take = [&](Found& found, int index) {
        found = {index, "dataCells"};
        taken.insert(index);
    };
    if (!columns.date.column) {
        for (int index = 0; index < width; ++index) {
            if (!taken.contains(index) && readsAsDate(cell(index))) {
                take(columns.date, index);
                break;
            }
        }
    }
    if (!columns.namesAmount()) {
        // Reference numbers read as amounts too; money shows a sign, cents or the euro sign.
        for (const bool moneyOnly : {true, false}) {
            for (int index = 0; index < width && !columns.amount.column; ++index) {
                if (taken.contains(index) || !readsAsAmount(cell(index))) continue;
                if (!moneyOnly || looksLikeMoney(cell(index))) take(columns.amount, index);
            }
        }
    }
    if (!columns.description.column) {
        std::size_t longest = 0;
        for (int index = 0; index < width; ++index) {
            const auto& text = cell(index);
            if (taken.contains(index) || !hasLetter(text) || readsAsDate(text) || readsAsAmount(text)) continue;
            if (text.size() > longest) {
                longest = text.size();
                columns.description = {index, "dataCells"};
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

struct DateOrderGuess {
    DateOrder order = DateOrder::dayMonthYear;
    std::string_view rule = "default";
};

// A four-digit first part is a year; a first part above 12 is a day; a second part above 12 is
// a day after the month. Without any of these the Italian day-month-year stands.
DateOrderGuess dateOrderOfDates(const CSV::Table& table, std::size_t firstData, int column) {
    bool dayFirst = false;
    bool monthFirst = false;
    const std::size_t end = std::min(table.size(), firstData + dateOrderSampleRows);
    for (std::size_t index = firstData; index < end; ++index) {
        const auto& row = table[index];
        if (static_cast<std::size_t>(column) >= row.size()) continue;
        const auto numbers = StatementDate::writtenNumbers(row[static_cast<std::size_t>(column)]);
        if (!numbers) continue;
        if (numbers->digitCounts[0] == 4) return {DateOrder::yearMonthDay, "dates"};
        if (numbers->values[0] > 12) dayFirst = true;
        if (numbers->values[1] > 12) monthFirst = true;
    }
    if (monthFirst && !dayFirst) return {DateOrder::monthDayYear, "dates"};
    if (dayFirst) return {DateOrder::dayMonthYear, "dates"};
    return {};
}

DateOrderGuess dateOrderOf(const CSV::Table& table, const HeaderRow& header, std::size_t firstData, int column) {
    if (header.row && static_cast<std::size_t>(column) < table[*header.row].size()) {
        const auto named = dateOrderNamedIn(Text::folded(table[*header.row][static_cast<std::size_t>(column)]));
        if (named) return {*named, "columnName"};
    }
    return dateOrderOfDates(table, firstData, column);
}

// Money out and money in named as such are two columns even when their names also hold an
// amount keyword ("Debit Amount", "Credit Amount").
bool namesSeparateColumns(const Columns& columns) {
    const auto& amount = columns.amount.column;
    return columns.income.column && columns.expense.column && columns.income.column != columns.expense.column &&
           (!amount || amount == columns.income.column || amount == columns.expense.column);
}

}  // namespace

CSVImportGuess CSVImportGuess::of(const CSV::Table& table) {
    CSVImportGuess guess;
    if (table.empty()) return guess;

    const HeaderRow header = headerRowOf(table);
    Columns columns = header.row ? columnsNamedIn(table[*header.row]) : Columns{};
    const bool separate = namesSeparateColumns(columns);
    if (separate && columns.amount.column) columns.amount = {};
    const std::size_t firstData = header.row ? *header.row + 1 : 0;
    if (firstData < table.size()) fillFromData(columns, table[firstData]);

    CSVImportOptions& options = guess.options;
    options.hasHeader = header.row.has_value();
    options.headerRow = static_cast<int>(header.row.value_or(0));
    options.dateColumn = columns.date.column;
    options.amountColumn = columns.amount.column;
    options.incomeColumn = columns.income.column;
    options.expenseColumn = columns.expense.column;
    options.descriptionColumn = columns.description.column;
    options.categoryColumn = columns.category.column;
    options.signColumn = columns.sign.column;
    options.statusColumn = columns.status.column;
    if (separate) options.amountMode = CSVImportOptions::AmountMode::separate;

    DateOrderGuess dateOrder;
    if (columns.date.column) dateOrder = dateOrderOf(table, header, firstData, *columns.date.column);
    options.dateOrder = dateOrder.order;

    guess.rules = {{"hasHeader", std::string(header.rule)},
                   {"headerRow", std::string(header.rule)},
                   {"dateColumn", std::string(columns.date.rule)},
                   {"dateOrder", std::string(dateOrder.rule)},
                   {"amountMode", separate ? "incomeAndExpenseColumns" : "oneAmountColumn"},
                   {"amountColumn", std::string(columns.amount.rule)},
                   {"incomeColumn", std::string(columns.income.rule)},
                   {"expenseColumn", std::string(columns.expense.rule)},
                   {"descriptionColumn", std::string(columns.description.rule)},
                   {"categoryColumn", std::string(columns.category.rule)},
                   {"signColumn", std::string(columns.sign.rule)},
                   {"statusColumn", std::string(columns.status.rule)}};
    return guess;
}

CSVImportOptions CSVImportOptions::guessed(const CSV::Table& table) { return CSVImportGuess::of(table).options; }

}  // namespace vantello
