#pragma once
// What the scenarios screen shows, worked out by the core once per change of the ledger or of the
// adjustments: the projection with and without them, the monthly savings as tiles, the goals'
// dates (as an item model), and the list of adjustments being edited (as an item model). Also
// the reading of what the user types into the adjustments editor.

#include "app/model/LedgerViewModel.hpp"
#include "app/model/MonthTiles.hpp"
#include "core/planning/Scenario.hpp"

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QJsonArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace vantello::app {

// The adjustments being edited, one line each ("Ristoranti: −20 %").
class ScenarioAdjustmentsModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ScenarioAdjustmentsModel(LedgerViewModel& model, QObject* parent = nullptr);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QJsonArray rowsAsJson() const;
    // The text of one adjustment, categories named from the ledger.
    [[nodiscard]] static QString describe(const ScenarioAdjustment& adjustment, const Ledger& ledger);

private:
    LedgerViewModel& model_;
};

// Every savings goal with the month it is reached without and with the scenario.
class ScenarioGoalsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { goalColumn, baselineColumn, scenarioColumn, columns };
    using QAbstractTableModel::QAbstractTableModel;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void setGoals(const std::vector<ScenarioResult::GoalImpact>& goals, const Calendar& calendar);
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    struct Row {
        QString name;
        QString symbol;
        QString baseline;
        QString scenario;
        bool sooner = false;  // the scenario reaches it earlier
        bool later = false;
    };
    std::vector<Row> rows_;
};

class ScenarioOutlook : public QObject {
    Q_OBJECT
public:
    explicit ScenarioOutlook(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] const ScenarioResult& result() const { return result_; }
    // "Risparmio al mese oggi", "… con lo scenario", "Differenza in 12 mesi".
    [[nodiscard]] const std::vector<MonthTile>& tiles() const { return tiles_; }
    // The short names of the projection's months ("apr", "mag"…), one per point.
    [[nodiscard]] const QStringList& monthLabels() const { return monthLabels_; }
    [[nodiscard]] ScenarioAdjustmentsModel& adjustments() { return adjustments_; }
    [[nodiscard]] ScenarioGoalsModel& goals() { return goals_; }

    // Works out everything again when the ledger or the adjustments changed since last time.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    LedgerViewModel& model_;
    ScenarioAdjustmentsModel adjustments_;
    ScenarioGoalsModel goals_;
    std::optional<std::tuple<std::uint64_t, std::vector<ScenarioAdjustment>, Instant>> inputs_;
    ScenarioResult result_;
    std::vector<MonthTile> tiles_;
    QStringList monthLabels_;
};

// The kinds of change the editor offers.
enum class ScenarioChangeKind { category, income, monthlyExpense };

// Reads the typed value of a new adjustment: a percent ("-10", "+5,5 %") for a category or the
// income, an amount ("50,00") for a monthly expense. The reason in the user's language when the
// text cannot stand for one.
[[nodiscard]] std::variant<ScenarioAdjustment::Change, QString> scenarioChange(ScenarioChangeKind kind,
                                                                               const std::string& categoryID,
                                                                               const QString& typed);
// Adds the change at the end of the adjustments being edited (unsaved, as the model keeps them).
void addScenarioAdjustment(LedgerViewModel& model, ScenarioAdjustment::Change change);
void removeScenarioAdjustment(LedgerViewModel& model, const Uuid& id);

}  // namespace vantello::app
