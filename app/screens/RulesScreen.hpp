#pragma once
// The category rules screen: the rules in priority order, with adding, changing, deleting and
// moving them up or down through the model, and a box that tells which category a note would
// get.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTreeView;

namespace vantello::app {

class RuleListModel;

class RulesScreen : public QWidget {
    Q_OBJECT
public:
    explicit RulesScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] RuleListModel& listModel() const { return *rules_; }
    [[nodiscard]] std::optional<Uuid> selectedRuleID() const;
    // Selects the rule's row; false when it is not listed.
    bool selectRule(const Uuid& ruleID);

public Q_SLOTS:
    void addRule();
    void editSelected();
    // Asks, then deletes the selected rule.
    void deleteSelected();
    // One place up or down the priority list, keeping the rule selected.
    void moveSelectedUp();
    void moveSelectedDown();

private:
    void showState();
    void showTry();
    void moveSelected(bool up);

    LedgerViewModel& model_;
    RuleListModel* rules_;
    QStackedWidget* pages_;
    QTreeView* list_;
    QPushButton* editButton_;
    QPushButton* deleteButton_;
    QPushButton* upButton_;
    QPushButton* downButton_;
    QLineEdit* tryEdit_;
    QComboBox* tryKind_;
    QLabel* tryResult_;
};

}  // namespace vantello::app
