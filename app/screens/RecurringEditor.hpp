#pragma once
// The sheet that adds or changes a recurring movement: kind, amount, category, account (and a
// transfer's destination), note, frequency, start and optional end. The core's reason for
// refusing it is shown inside and the sheet stays open.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace vantello::app {

class EditorChoiceModel;

class RecurringEditor : public QDialog {
    Q_OBJECT
public:
    // A new rule when `ruleID` is absent (or unknown), otherwise that rule.
    RecurringEditor(LedgerViewModel& model, std::optional<Uuid> ruleID, QWidget* parent = nullptr);

    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    // Saves through the model; closes on success, shows the reason otherwise.
    void save();

private:
    enum KindChoice { expenseChoice, incomeChoice, transferChoice };

    void fillCategories();
    void showKind();

    LedgerViewModel& model_;
    RecurringRule rule_;
    bool isNew_ = true;
    EditorChoiceModel* categories_;
    EditorChoiceModel* accounts_;
    EditorChoiceModel* destinations_;
    QFormLayout* form_;
    QComboBox* kindPicker_;
    QLineEdit* amountEdit_;
    QComboBox* categoryPicker_;
    QComboBox* accountPicker_;
    QComboBox* destinationPicker_;
    QLineEdit* noteEdit_;
    QComboBox* frequencyPicker_;
    QDateEdit* startEdit_;
    QCheckBox* hasEndCheck_;
    QDateEdit* endEdit_;
    QLabel* errorLabel_;
};

}  // namespace vantello::app
