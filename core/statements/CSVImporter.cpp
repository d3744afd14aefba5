#include "core/statements/CSVImporter.hpp"

#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/base/Uuid.hpp"
#include "core/statements/CSVRowMarks.hpp"
#include "core/statements/StatementAmount.hpp"
#include "core/statements/StatementDate.hpp"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace vantello::CSVImporter {
namespace {

using AmountMode = CSVImportOptions::AmountMode;

// Category names folded once per conversion rather than once per row.
struct FoldedCategory {
    std::string foldedName;
    TransactionKind kind;
    std::string_view id;
};

std::vector<FoldedCategory> foldedCategories(const std::vector<TransactionCategory>& categories) {
    std::vector<FoldedCategory> folded;
    folded.reserve(categories.size());
    for (const auto& category : categories) {
        folded.push_back({Text::folded(Text::trimmed(category.name)), category.kind, category.id});
    }
    return folded;
}

std::string_view cellAt(const std::vector<std::string>& cells, std::optional<int> column) {
    if (!column || *column < 0 || static_cast<std::size_t>(*column) >= cells.size()) return {};
    return cells[static_cast<std::size_t>(*column)];
}

CSVImportRow problemRow(int line, std::string message) { return {line, std::nullopt, std::move(message)}; }

std::string unreadableAmount(std::string_view cell) {
    return L10n::tr("Importo non leggibile: «{text}»", {{"text", cell}});
}

bool isAsciiWhitespace(UChar32 c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Bank descriptions come padded and broken over lines; runs of white space become one space.
std::string collapsedWhitespace(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool pendingSpace = false;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    for (std::int64_t offset = 0; offset < length;) {
        const std::int64_t start = offset;
        UChar32 c = bytes[offset];
        if (c < 0x80 && !isAsciiWhitespace(c)) {
            while (offset < length && bytes[offset] < 0x80 && !isAsciiWhitespace(bytes[offset])) ++offset;
        } else if (c < 0x80) {
            ++offset;
        } else {
            U8_NEXT(bytes, offset, length, c);
        }
        const bool white = c < 0x80 ? isAsciiWhitespace(c) : c >= 0 && Text::isWhitespace(static_cast<char32_t>(c));
        if (white) {
            pendingSpace = !result.empty();
            continue;
        }
        if (pendingSpace) result.push_back(' ');
        pendingSpace = false;
        result.append(text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(offset - start)));
    }
    return result;
}

std::string categoryID(std::string_view cell, TransactionKind kind, const CSVImportOptions& options,
                       bool hasCategoryColumn, const std::vector<FoldedCategory>& categories) {
    const std::string& fallback = kind == TransactionKind::income ? options.incomeCategoryID
                                                                  : options.expenseCategoryID;
    if (!hasCategoryColumn) return fallback;
    const std::string name = Text::trimmed(cell);
    if (name.empty()) return fallback;
    const std::string folded = Text::folded(name);
    const auto match = std::find_if(categories.begin(), categories.end(), [&](const FoldedCategory& category) {
        return category.kind == kind && category.foldedName == folded;
    });
    return match != categories.end() ? std::string(match->id) : fallback;
}

struct SignedAmount {
    std::optional<Decimal> value;  // absent when the cells hold no amount
    std::optional<std::string> problem;
};

SignedAmount signedAmount(const std::vector<std::string>& cells, const CSVImportOptions& options) {
    const auto cell = cellAt(cells, options.amountColumn);
    const auto reading = StatementAmount::read(cell);
    switch (reading.status) {
        case StatementAmount::Status::empty: return {};
        case StatementAmount::Status::unreadable: return {std::nullopt, unreadableAmount(cell)};
        case StatementAmount::Status::amount: break;
    }
    // A side written beside the amount ("S"/"H", "Af"/"Bij") wins over the amount's own sign.
    const auto side = options.signColumn ? CSVRowMarks::sideOf(cellAt(cells, options.signColumn)) : std::nullopt;
    if (!side) return {reading.value, std::nullopt};
    const Decimal magnitude = reading.value.magnitude();
    return {*side == CSVRowMarks::Side::moneyOut ? -magnitude : magnitude, std::nullopt};
}

// Income wins when both columns hold money; the sign written in either column is ignored.
SignedAmount separateAmount(const std::vector<std::string>& cells, const CSVImportOptions& options) {
    for (const bool income : {true, false}) {
        const auto cell = cellAt(cells, income ? options.incomeColumn : options.expenseColumn);
        const auto reading = StatementAmount::read(cell);
        if (reading.status == StatementAmount::Status::unreadable) return {std::nullopt, unreadableAmount(cell)};
        if (reading.status == StatementAmount::Status::amount && !reading.value.isZero()) {
            const Decimal magnitude = reading.value.magnitude();
            return {income ? magnitude : -magnitude, std::nullopt};
        }
    }
    return {};
}

CSVImportRow converted(const std::vector<std::string>& cells, int line, const CSVImportOptions& options,
                       const std::vector<FoldedCategory>& categories, const Calendar& calendar) {
    if (!options.dateColumn) return problemRow(line, L10n::tr("Scegli la colonna della data."));
    const auto dateCell = cellAt(cells, options.dateColumn);
    const auto date = StatementDate::read(dateCell, options.dateOrder, calendar);
    if (!date) return problemRow(line, L10n::tr("Data non leggibile: «{text}»", {{"text", dateCell}}));

    // Movements not booked (pending, declined, reverted) and balance lines are shown, not imported.
    if (const auto status = cellAt(cells, options.statusColumn);
        options.statusColumn && CSVRowMarks::isNotBooked(status)) {
        return problemRow(line,
                          L10n::tr("Movimento non contabilizzato: «{text}»", {{"text", Text::trimmedView(status)}}));
    }
    const auto description = cellAt(cells, options.descriptionColumn);
    if (CSVRowMarks::isBalanceLine(description)) {
        return problemRow(line, L10n::tr("Riga di saldo, non un movimento: «{text}»",
                                         {{"text", Text::trimmedView(description)}}));
    }

    const bool separate = options.amountMode == AmountMode::separate;
    if (separate && (!options.incomeColumn || !options.expenseColumn)) {
        return problemRow(line, L10n::tr("Scegli le colonne di entrate e uscite."));
    }
    if (!separate && !options.amountColumn) {
        return problemRow(line, L10n::tr("Scegli la colonna dell'importo."));
    }
    auto amount = separate ? separateAmount(cells, options) : signedAmount(cells, options);
    if (amount.problem) return problemRow(line, std::move(*amount.problem));
    if (!amount.value || amount.value->isZero()) {
        return problemRow(line, L10n::tr("Importo assente o uguale a zero."));
    }

    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = amount.value->sign() < 0 ? TransactionKind::expense : TransactionKind::income;
    transaction.amount = amount.value->magnitude();
    transaction.date = *date;
    transaction.categoryID = categoryID(cellAt(cells, options.categoryColumn), transaction.kind, options,
                                        options.categoryColumn.has_value(), categories);
    transaction.note = collapsedWhitespace(description);
    return {line, std::move(transaction), std::nullopt};
}

}  // namespace

std::vector<CSVImportRow> rows(const CSV::Table& table, const CSVImportOptions& options,
                               const std::vector<TransactionCategory>& categories, const Calendar& calendar) {
    std::size_t first = 0;
    if (options.hasHeader && !table.empty()) {
        first = std::min(static_cast<std::size_t>(std::max(options.headerRow, 0)), table.size() - 1) + 1;
    }
    const auto folded = foldedCategories(categories);
    std::vector<CSVImportRow> result;
    result.reserve(table.size() - first);
    for (std::size_t index = first; index < table.size(); ++index) {
        result.push_back(converted(table[index], static_cast<int>(index) + 1, options, folded, calendar));
    }
    return result;
}

CSVImportRow row(const std::vector<std::string>& cells, int line, const CSVImportOptions& options,
                 const std::vector<TransactionCategory>& categories, const Calendar& calendar) {
    return converted(cells, line, options, foldedCategories(categories), calendar);
}

}  // namespace vantello::CSVImporter
