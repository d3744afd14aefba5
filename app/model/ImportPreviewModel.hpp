#pragma once
// The rows of an opened bank statement as the import sheet previews them: one table row per
// statement row, with the movement it became (date, description, category, signed amount) or,
// for a row that cannot be imported, the reason in place of the description and the row's own
// cells where the statement has them.

#include "core/base/Calendar.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/StatementImport.hpp"

#include <QAbstractTableModel>

#include <map>
#include <string>
#include <vector>

namespace vantello::app {

class ImportPreviewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { lineColumn, dateColumn, descriptionColumn, categoryColumn, amountColumn, columnCount_ };
    enum Role {
        problemRole = Qt::UserRole + 1,  // the reason a row is not imported, an empty string otherwise
        lineRole,                        // the 1-based line of the file or table
    };

    explicit ImportPreviewModel(const Calendar& calendar, QObject* parent = nullptr);

    // Shows the statement's rows; `categories` (built-in and custom) name the movements' ones.
    void setStatement(const StatementImport& statement, const std::vector<TransactionCategory>& categories);

    [[nodiscard]] int importableCount() const { return importable_; }
    [[nodiscard]] int problemCount() const { return static_cast<int>(rows_.size()) - importable_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    // What a row that could not be read still shows: its own cells, when the statement is a table.
    struct RawCells {
        QString date;
        QString description;
        QString amount;
    };

    [[nodiscard]] QVariant display(const CSVImportRow& row, const RawCells& raw, int column) const;
    [[nodiscard]] QVariant tooltip(const CSVImportRow& row, const RawCells& raw) const;

    Calendar calendar_;
    std::vector<CSVImportRow> rows_;
    std::vector<RawCells> raw_;  // beside rows_
    std::map<std::string, TransactionCategory, std::less<>> categories_;
    int importable_ = 0;
};

}  // namespace vantello::app
