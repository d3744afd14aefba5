#pragma once
// The category rules in priority order (the first that matches wins) for the rules screen: the
// text looked for and the category it files under. Worked out once per change of the ledger.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QAbstractTableModel>
#include <QIcon>
#include <QJsonArray>
#include <QString>

#include <optional>
#include <vector>

namespace vantello::app {

class RuleListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { PriorityColumn, PatternColumn, CategoryColumn, ColumnCount };
    static constexpr int idRole = Qt::UserRole + 1;  // the rule's id text

    explicit RuleListModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] std::optional<Uuid> ruleID(int row) const;
    [[nodiscard]] int rowOf(const Uuid& ruleID) const;
    [[nodiscard]] QJsonArray rowsAsJson() const;

    void refresh();

private:
    struct Row {
        Uuid id;
        QString pattern;
        QString category;
        QIcon icon;
    };

    LedgerViewModel& model_;
    std::vector<Row> rows_;
};

// What the rules would do with a movement of `kind` described by `note`: "Andrebbe in «Spesa»",
// or that it stays in the fallback category; empty for an empty note.
[[nodiscard]] QString ruleTryText(const Ledger& ledger, const QString& note, TransactionKind kind);

}  // namespace vantello::app
