#pragma once
// The what-if screen: the adjustments being tried (a category spent more or less, income up or
// down, a new monthly expense), the monthly savings and the twelve-month projection with and
// without them as a line chart, and when each savings goal would be reached. The adjustments
// live in the model, unsaved, so they survive leaving the screen but not the application.
// Raw sidebar name "scenarios".

#include "app/model/LedgerViewModel.hpp"

#include <QWidget>

#include <vector>

class QChart;
class QChartView;
class QComboBox;
class QLabel;
class QLineEdit;
class QLineSeries;
class QListView;
class QPushButton;
class QStackedWidget;
class QTreeView;

namespace vantello::app {

class ScenarioOutlook;
class SummaryTile;

class ScenariosScreen : public QWidget {
    Q_OBJECT
public:
    explicit ScenariosScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    // The figures shown, for tests and the main window's checks.
    [[nodiscard]] ScenarioOutlook& outlook() const { return *outlook_; }
    // The chart's scenario line, one point per projected month.
    [[nodiscard]] QLineSeries* scenarioSeries() const { return scenarioLine_; }
    [[nodiscard]] QLineSeries* baselineSeries() const { return baselineLine_; }

public Q_SLOTS:
    // Adds what the editor holds; a value that cannot be read is explained beside it.
    void addAdjustment();
    void removeSelectedAdjustment();
    void clearAdjustments();

protected:
    void changeEvent(QEvent* event) override;

private:
    void build();
    void refresh();
    void refreshCategories();
    void refreshEditor();
    void applyColours();

    LedgerViewModel& model_;
    ScenarioOutlook* outlook_;

    QComboBox* changeKind_ = nullptr;
    QComboBox* category_ = nullptr;
    QLineEdit* value_ = nullptr;
    QLabel* valueUnit_ = nullptr;
    QPushButton* add_ = nullptr;
    QLabel* problem_ = nullptr;
    QListView* adjustments_ = nullptr;
    QPushButton* remove_ = nullptr;
    QPushButton* clear_ = nullptr;
    QLabel* noAdjustments_ = nullptr;

    QStackedWidget* pages_ = nullptr;
    std::vector<SummaryTile*> tiles_;
    QChart* chart_ = nullptr;
    QChartView* chartView_ = nullptr;
    QLineSeries* baselineLine_ = nullptr;
    QLineSeries* scenarioLine_ = nullptr;
    QStackedWidget* goalsPages_ = nullptr;
    QTreeView* goals_ = nullptr;
};

}  // namespace vantello::app
