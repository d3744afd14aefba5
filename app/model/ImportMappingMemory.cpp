#include "app/model/ImportMappingMemory.hpp"

#include "core/base/Json.hpp"
#include "core/base/Text.hpp"

#include <QCryptographicHash>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace vantello::app {

namespace {

const QString preferenceKey = QStringLiteral("importMappings");
constexpr int noColumn = -1;  // "none": the importer reads an empty cell there

Json storedMappings(const Preferences& preferences) {
    const std::string text = preferences.value(preferenceKey).toString().toStdString();
    Json stored = Json::parse(text, nullptr, false);
    return stored.is_object() ? stored : Json::object();
}

void storeMappings(Preferences& preferences, const Json& mappings) {
    preferences.setValue(preferenceKey, QString::fromStdString(mappings.dump()));
}

// A stored column: absent when the entry lacks it, or holds something that is not one.
std::optional<int> columnIn(const Json& entry, const char* key) {
    const auto found = entry.find(key);
    if (found == entry.end() || !found->is_number_integer()) return std::nullopt;
    const auto value = found->get<std::int64_t>();
    if (value < noColumn || value > 10'000) return std::nullopt;
    return static_cast<int>(value);
}

void putColumn(Json& entry, const char* key, const std::optional<int>& column) {
    if (column) entry[key] = *column;
}

// The widest row of the table: a column beyond it names nothing in this file.
int tableWidth(const CSV::Table& table) {
    std::size_t width = 0;
    for (const auto& row : table) width = std::max(width, row.size());
    return static_cast<int>(width);
}

bool fitsWidth(const std::optional<int>& column, int width) { return !column || *column < width; }

int readableRows(const StatementImport& statement) {
    return static_cast<int>(std::count_if(statement.rows.begin(), statement.rows.end(),
                                          [](const CSVImportRow& row) { return row.transaction.has_value(); }));
}

}  // namespace

std::optional<QString> ImportMappingMemory::fingerprint(const StatementImport& statement) {
    if (statement.format != StatementFormat::csv || !statement.guessedOptions.hasHeader) return std::nullopt;
    const int row = statement.guessedOptions.headerRow;
    if (row < 0 || static_cast<std::size_t>(row) >= statement.table.size()) return std::nullopt;
    std::string joined;
    bool named = false;
    for (const std::string& cell : statement.table[static_cast<std::size_t>(row)]) {
        const std::string folded = Text::folded(Text::trimmed(cell));
        named = named || !folded.empty();
        joined += folded;
        joined += '\x1f';
    }
    if (!named) return std::nullopt;
    const QByteArray digest = QCryptographicHash::hash(QByteArray::fromStdString(joined), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex().left(32));
}

CSVImportOverrides ImportMappingMemory::mappingOf(const StatementImport& statement) {
    const CSVImportOptions& options = statement.options;
    CSVImportOverrides mapping;
    mapping.separator = statement.separator;
    if (options.hasHeader) {
        mapping.headerRow = options.headerRow;
    } else {
        mapping.noHeader = true;
    }
    mapping.dateColumn = options.dateColumn;
    mapping.dateOrder = options.dateOrder;
    if (options.amountMode == CSVImportOptions::AmountMode::separate) {
        mapping.incomeColumn = options.incomeColumn;
        mapping.expenseColumn = options.expenseColumn;
    } else {
        mapping.amountColumn = options.amountColumn;
    }
    mapping.descriptionColumn = options.descriptionColumn.value_or(noColumn);
    mapping.categoryColumn = options.categoryColumn.value_or(noColumn);
    return mapping;
}

std::optional<CSVImportOverrides> ImportMappingMemory::recall(const QString& fingerprint,
                                                              const StatementImport& statement) const {
    const Json mappings = storedMappings(preferences_);
    const auto found = mappings.find(fingerprint.toStdString());
    if (found == mappings.end() || !found->is_object()) return std::nullopt;
    const Json& entry = *found;

    CSVImportOverrides mapping;
    const auto separator = entry.find("separator");
    if (separator == entry.end() || !separator->is_string() || separator->get<std::string>().size() != 1) {
        return std::nullopt;
    }
    mapping.separator = separator->get<std::string>().front();
    mapping.headerRow = columnIn(entry, "headerRow");
    mapping.noHeader = !mapping.headerRow;
    mapping.dateColumn = columnIn(entry, "dateColumn");
    const auto order = entry.find("dateOrder");
    if (order != entry.end() && order->is_string())
        mapping.dateOrder = dateOrderFromRawValue(order->get<std::string>());
    mapping.amountColumn = columnIn(entry, "amountColumn");
    mapping.incomeColumn = columnIn(entry, "incomeColumn");
    mapping.expenseColumn = columnIn(entry, "expenseColumn");
    mapping.descriptionColumn = columnIn(entry, "descriptionColumn");
    mapping.categoryColumn = columnIn(entry, "categoryColumn");

    // The columns a movement cannot do without must name real ones.
    const auto isColumn = [](const std::optional<int>& column) { return column && *column >= 0; };
    if (!isColumn(mapping.dateColumn) || !mapping.dateOrder) return std::nullopt;
    const bool separate = isColumn(mapping.incomeColumn) && isColumn(mapping.expenseColumn);
    if (!separate && !isColumn(mapping.amountColumn)) return std::nullopt;
    if (separate) mapping.amountColumn.reset();
    if (mapping.headerRow &&
        (*mapping.headerRow < 0 || static_cast<std::size_t>(*mapping.headerRow) >= statement.table.size())) {
        return std::nullopt;
    }
    // "None" where the guess found nothing either is no choice of the user's.
    if (mapping.descriptionColumn == noColumn && !statement.guessedOptions.descriptionColumn) {
        mapping.descriptionColumn.reset();
    }
    if (mapping.categoryColumn == noColumn && !statement.guessedOptions.categoryColumn) mapping.categoryColumn.reset();

    if (*mapping.separator == statement.separator) {
        const int width = tableWidth(statement.table);
        for (const auto& column : {mapping.dateColumn, mapping.amountColumn, mapping.incomeColumn,
                                   mapping.expenseColumn, mapping.descriptionColumn, mapping.categoryColumn}) {
            if (!fitsWidth(column, width)) return std::nullopt;
        }
    }
    return mapping;
}

bool ImportMappingMemory::proposeRemembered(LedgerViewModel& model, const QString& fingerprint) const {
    const auto& session = model.importSession();
    if (!session) return false;
    const auto mapping = recall(fingerprint, session->statement);
    if (!mapping) return false;
    const StatementImport& guessed = session->statement;
    if (mapping->appliedTo(guessed.guessedOptions) == guessed.options && *mapping->separator == guessed.separator) {
        return false;  // the guess already reads the file this way
    }
    const CSVImportOverrides before = session->overrides;
    const bool guessReads = readableRows(guessed) > 0;
    if (model.reviseImport(*mapping)) return false;  // nothing changed: the error left the session as it was

    // A separator of its own makes another table: its columns are checked again on it.
    const StatementImport& revised = model.importSession()->statement;
    const int width = tableWidth(revised.table);
    bool fits = true;
    for (const auto& column : {mapping->dateColumn, mapping->amountColumn, mapping->incomeColumn,
                               mapping->expenseColumn, mapping->descriptionColumn, mapping->categoryColumn}) {
        fits = fits && fitsWidth(column, width);
    }
    if (fits && (!guessReads || readableRows(revised) > 0)) return true;
    model.reviseImport(before);
    return false;
}

void ImportMappingMemory::remember(const QString& fingerprint, const StatementImport& statement) {
    if (statement.format != StatementFormat::csv) return;
    const CSVImportOverrides mapping = mappingOf(statement);
    Json entry = Json::object();
    entry["separator"] = std::string(1, *mapping.separator);
    putColumn(entry, "headerRow", mapping.headerRow);
    putColumn(entry, "dateColumn", mapping.dateColumn);
    entry["dateOrder"] = std::string(rawValue(*mapping.dateOrder));
    putColumn(entry, "amountColumn", mapping.amountColumn);
    putColumn(entry, "incomeColumn", mapping.incomeColumn);
    putColumn(entry, "expenseColumn", mapping.expenseColumn);
    putColumn(entry, "descriptionColumn", mapping.descriptionColumn);
    putColumn(entry, "categoryColumn", mapping.categoryColumn);

    Json mappings = storedMappings(preferences_);
    std::int64_t latest = 0;
    for (const auto& [key, stored] : mappings.items()) {
        if (stored.is_object() && stored.contains("use") && stored["use"].is_number_integer()) {
            latest = std::max(latest, stored["use"].get<std::int64_t>());
        }
    }
    entry["use"] = latest + 1;  // an order of use, so that the least recent bank goes first
    mappings[fingerprint.toStdString()] = entry;

    while (mappings.size() > static_cast<std::size_t>(maximumBanks)) {
        auto oldest = mappings.begin();
        std::int64_t oldestUse = INT64_MAX;
        for (auto it = mappings.begin(); it != mappings.end(); ++it) {
            const std::int64_t use = it->is_object() && it->contains("use") && (*it)["use"].is_number_integer()
                                         ? (*it)["use"].get<std::int64_t>()
                                         : 0;
            if (use < oldestUse) {
                oldestUse = use;
                oldest = it;
            }
        }
        mappings.erase(oldest);
    }
    storeMappings(preferences_, mappings);
}

void ImportMappingMemory::forget(const QString& fingerprint) {
    Json mappings = storedMappings(preferences_);
    if (mappings.erase(fingerprint.toStdString()) > 0) storeMappings(preferences_, mappings);
}

}  // namespace vantello::app
