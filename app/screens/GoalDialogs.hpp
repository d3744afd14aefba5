#pragma once
// The window-modal sheets of the goals screen: the goal's editor (name, symbol, target, optional
// deadline) and the contributions sheet (a deposit or withdrawal to add, the ones recorded to
// remove). Escape cancels, Enter confirms; a message of the core stays shown inside the sheet.

#include <QDialog>

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/SavingsGoal.hpp"

#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QTreeView;
class QPushButton;
class QRadioButton;

namespace vantello::app {

class GoalContributionsModel;

class GoalEditor : public QDialog {
    Q_OBJECT
public:
    // A new goal when `goal` is empty, otherwise that goal's fields to change.
    GoalEditor(LedgerViewModel& model, std::optional<SavingsGoal> goal, QWidget* parent = nullptr);

public Q_SLOTS:
    // Saves through the model; closes when the core accepts, shows its message otherwise.
    void save();

private:
    LedgerViewModel& model_;
    SavingsGoal goal_;
    QLineEdit* name_;
    QComboBox* symbol_;
    QLineEdit* target_;
    QCheckBox* hasDeadline_;
    QDateEdit* deadline_;
    QLabel* error_;
};

class GoalContributionDialog : public QDialog {
    Q_OBJECT
public:
    GoalContributionDialog(LedgerViewModel& model, const SavingsGoal& goal, QWidget* parent = nullptr);

    [[nodiscard]] GoalContributionsModel& contributions() const { return *contributions_; }

public Q_SLOTS:
    // Records the typed deposit or withdrawal; the sheet stays open for the next one.
    void addTyped();
    void removeSelected();

private:
    LedgerViewModel& model_;
    Uuid goalID_;
    GoalContributionsModel* contributions_;
    QRadioButton* deposit_;
    QRadioButton* withdrawal_;
    QLineEdit* amount_;
    QDateEdit* date_;
    QLineEdit* note_;
    QLabel* error_;
    QTreeView* list_;
    QPushButton* remove_;
};

}  // namespace vantello::app
