#pragma once
// The savings goals as the goals screen shows them, one row per goal in the ledger's order, each
// with what its card needs already worked out by the core (saved, missing, pace, status, the
// date reached). Rows are rebuilt once per change of the ledger; painting only reads them.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/SavingsGoal.hpp"
#include "core/planning/GoalProgress.hpp"

#include <QAbstractListModel>
#include <QHash>
#include <QJsonArray>
#include <QString>

#include <optional>
#include <vector>

namespace vantello::app {

class GoalListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IdRole = Qt::UserRole + 1,  // the goal's id text
        SymbolRole,                 // its symbol name
        ProgressRole,               // saved ÷ target, 0...1 (double: drawing only)
        StatusRole,                 // GoalStatus as int
        StatusTextRole,             // "In linea", "In ritardo"…
        SavedTextRole,
        TargetTextRole,
        RemainingTextRole,
        MonthlyNeededTextRole,  // empty when the goal has no deadline or is reached
        PaceTextRole,           // the amount saved per month so far
        ProjectedDateTextRole,  // empty when nothing has been saved yet
        DeadlineTextRole,       // empty without a deadline
        ContributionCountRole,
    };

    explicit GoalListModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // The goal of a row and what the core derives from it; nothing outside the list.
    [[nodiscard]] const SavingsGoal* goal(int row) const;
    [[nodiscard]] const GoalProgress* progress(int row) const;
    [[nodiscard]] int rowOf(const Uuid& goalID) const;

    // Every row with its texts, for tests and diagnostics.
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    void rebuild();

    struct Row {
        SavingsGoal goal;
        GoalProgress progress;
    };

    LedgerViewModel& model_;
    std::vector<Row> rows_;
};

// A goal's status as its card and the list name it.
[[nodiscard]] QString goalStatusText(GoalStatus status);

}  // namespace vantello::app
