#pragma once
// The budgets of the month shown: every category with a budget, spent against its limit as a
// bar in its level's colour with the level's word beside it, the spending outside any budget on
// its own line, and setting, changing and removing a budget. Follows the selected month and
// account, the ledger and the theme; the ledger changes only through the budget actions.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

#include <string>

class QLabel;
class QListView;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace vantello::app {

class MonthSwitcher;

class BudgetDialog;
class BudgetListModel;

class BudgetsScreen : public QWidget {
    Q_OBJECT
public:
    explicit BudgetsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] BudgetListModel& listModel() const { return *list_; }
    // The category of the selected row; empty when none is selected.
    [[nodiscard]] std::string selectedCategoryID() const;

public Q_SLOTS:
    // Opens the budget sheet (window-modal, returned for the caller to follow) on the category,
    // or on the first one without a budget when empty.
    BudgetDialog* openBudgetDialog(const std::string& categoryID = {});
    // The selected row's sheet; nothing without a selection.
    void editSelected();
    // Takes the selected row's budget away (undone with Annulla like every change).
    void removeSelected();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void updateActions();

    LedgerViewModel& model_;
    BudgetListModel* list_;
    MonthSwitcher* monthSwitcher_ = nullptr;
    QPushButton* addBudget_;
    QPushButton* editBudget_;
    QPushButton* removeBudget_;
    QStackedWidget* pages_;
    QListView* view_;
    QLabel* unbudgeted_;
};

}  // namespace vantello::app
