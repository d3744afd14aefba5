#pragma once
// The sheet that adds an account (name, icon, opening balance, low-balance threshold) or edits
// one (name, icon, threshold). Amounts are typed the Italian way ("1.250,00"); what was typed
// goes to a save function, and the sheet stays open with the message when it is refused.

#include <QDialog>
#include <QString>

#include "app/model/AccountActions.hpp"

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantello::app {

class AccountDialog : public QDialog {
    Q_OBJECT
public:
    // Returns the reason the account cannot be saved, nothing when it was.
    using Save = std::function<std::optional<QString>(const AccountForm& typed)>;

    // `isNew` offers the opening balance; an edit keeps it as it is.
    AccountDialog(const AccountForm& form, bool isNew, Save save, QWidget* parent = nullptr);

    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    void save();

private:
    void updateSaveButton();

    Save save_;
    QLineEdit* name_;
    QComboBox* icon_;
    QLineEdit* opening_ = nullptr;
    QLineEdit* threshold_;
    QLabel* error_;
    QPushButton* saveButton_;
};

}  // namespace vantello::app
