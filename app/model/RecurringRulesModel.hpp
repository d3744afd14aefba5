#pragma once
// The list of the recurring movements screen: every recurring rule with what it creates, where,
// how often and when next. Rows are worked out once per change of the ledger, never per paint.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/RecurringRule.hpp"

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>
#include <QJsonArray>
#include <QString>

#include <optional>
#include <vector>

namespace vantello::app {

class RecurringRulesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { DescriptionColumn, AccountColumn, FrequencyColumn, NextColumn, AmountColumn, ColumnCount };
    enum Role {
        IdRole = Qt::UserRole + 1,  // the rule's id text
        SignRole,                   // 1 income, −1 expense, 0 transfer
    };

    explicit RecurringRulesModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] std::optional<Uuid> ruleID(int row) const;
    [[nodiscard]] int rowOf(const Uuid& ruleID) const;
    [[nodiscard]] QJsonArray rowsAsJson() const;

    // Reads the rules again (the ledger changed or the language did).
    void refresh();

private:
    struct Row {
        Uuid id;
        QString description;
        QString category;
        QIcon icon;
        QString account;
        QString frequency;
        QString next;
        QString amount;
        int sign = 0;
    };

    LedgerViewModel& model_;
    std::vector<Row> rows_;
};

// "Ogni settimana", "Ogni mese", "Ogni anno".
[[nodiscard]] QString recurringFrequencyText(RecurringRule::Frequency frequency);

}  // namespace vantello::app
