#pragma once
// The sheet that adds or changes a category rule: the text looked for in the note and the
// category it files under. The core's reason for refusing it is shown inside.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QDialog>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace vantello::app {

class EditorChoiceModel;

class RuleEditor : public QDialog {
    Q_OBJECT
public:
    // A new rule when `ruleID` is absent (or unknown), otherwise that rule.
    RuleEditor(LedgerViewModel& model, std::optional<Uuid> ruleID, QWidget* parent = nullptr);

    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    void save();

private:
    LedgerViewModel& model_;
    std::optional<Uuid> ruleID_;
    EditorChoiceModel* categories_;
    QLineEdit* patternEdit_;
    QComboBox* categoryPicker_;
    QLabel* errorLabel_;
};

}  // namespace vantello::app
