#pragma once
// The savings goals: one card per goal with its progress bar, status, saved and target amounts,
// the monthly amount the deadline needs and the date reached at the current pace, and the
// actions to create, edit and delete goals and record their deposits and withdrawals.

#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

class QLabel;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace vantello::app {

class GoalListModel;

class GoalsScreen : public QWidget {
    Q_OBJECT
public:
    explicit GoalsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const GoalListModel& listModel() const { return *goals_; }

public Q_SLOTS:
    // Each opens its window-modal sheet over the screen.
    void createGoal();
    void editGoal(int row);
    void editContributions(int row);
    // Asks first when the goal has contributions that would be lost.
    void removeGoal(int row);

private:
    void rebuildCards();

    LedgerViewModel& model_;
    GoalListModel* goals_;
    QStackedWidget* pages_;
    QWidget* cards_;
    QVBoxLayout* cardsLayout_;
};

}  // namespace vantello::app
