#pragma once
// The categories of one kind as the categories screen lists them: the built-in ones in their
// order, then the user's own, each with its icon and whether it is built in.

// Qt's headers first: moc cannot read the standard library's <concepts> before them.
#include <QAbstractTableModel>
#include <QJsonArray>

#include "core/ledger/Ledger.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::app {

class CategoryListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { nameColumn, originColumn, columnCount_ };
    enum Role { IdRole = Qt::UserRole + 1, SymbolRole, BuiltInRole };

    explicit CategoryListModel(TransactionKind kind, QObject* parent = nullptr);

    // Reads the categories of the model's kind from `ledger` again.
    void setLedger(const Ledger& ledger);

    [[nodiscard]] TransactionKind kind() const { return kind_; }
    [[nodiscard]] const TransactionCategory* category(int row) const;
    // The row of the category, -1 when it is not listed.
    [[nodiscard]] int rowOf(std::string_view categoryID) const;
    // [{"id", "name", "symbol", "builtIn"}] in row order.
    [[nodiscard]] QJsonArray rowsAsJson() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row {
        TransactionCategory category;
        bool builtIn = false;
    };
    TransactionKind kind_;
    std::vector<Row> rows_;
};

// How many movements of the ledger are filed under the category (those a deletion moves to the
// fallback category). One walk over the movements: call it when asked, not per paint.
[[nodiscard]] int movementsInCategory(const Ledger& ledger, std::string_view categoryID);

}  // namespace vantello::app
