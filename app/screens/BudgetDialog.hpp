#pragma once
// The sheet that sets a category's monthly budget: the expense category and the amount typed
// the Italian way. The core's or the parser's message stays inside it until the amount is good.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QDialog>

#include "app/model/LedgerViewModel.hpp"

#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantello::app {

class BudgetDialog : public QDialog {
    Q_OBJECT
public:
    // Opens on `categoryID` with its budget filled in when it has one; on the first expense
    // category without a budget when empty.
    BudgetDialog(LedgerViewModel& model, const std::string& categoryID, QWidget* parent = nullptr);

    [[nodiscard]] std::string categoryID() const;

public Q_SLOTS:
    // Sets the budget through the model and closes, or shows why not and stays open.
    void save();

private:
    void fillAmount();

    LedgerViewModel& model_;
    QComboBox* category_;
    QLineEdit* amount_;
    QLabel* error_;
    QPushButton* saveButton_;
};

}  // namespace vantello::app
