#pragma once
// The recurring movements screen: every rule with its amount, account, frequency and next
// date, with adding, changing and deleting through the editor sheet and the model.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QWidget>

#include <optional>

class QPushButton;
class QStackedWidget;
class QTreeView;

namespace vantello::app {

class RecurringRulesModel;

class RecurringScreen : public QWidget {
    Q_OBJECT
public:
    explicit RecurringScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] RecurringRulesModel& listModel() const { return *rules_; }
    [[nodiscard]] std::optional<Uuid> selectedRuleID() const;

public Q_SLOTS:
    // Opens the editor sheet for a new rule.
    void addRule();
    // Opens the editor sheet for the selected rule; nothing when none is selected.
    void editSelected();
    // Asks, then deletes the selected rule (the movements it created stay).
    void deleteSelected();

private:
    void showState();

    LedgerViewModel& model_;
    RecurringRulesModel* rules_;
    QStackedWidget* pages_;
    QTreeView* list_;
    QPushButton* editButton_;
    QPushButton* deleteButton_;
};

}  // namespace vantello::app
