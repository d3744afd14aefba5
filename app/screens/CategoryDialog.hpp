#pragma once
// The sheet that creates a custom category or changes one: name, icon and, for a new one,
// whether it is for expenses or income. It hands what was typed to a save function and stays
// open with the core's message when the save is refused.

#include <QDialog>
#include <QString>

#include "core/ledger/TransactionCategory.hpp"

#include <functional>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantello::app {

class CategoryDialog : public QDialog {
    Q_OBJECT
public:
    // Returns the reason the category cannot be saved, nothing when it was.
    using Save = std::function<std::optional<QString>(const TransactionCategory& typed)>;

    // `category` prefills the sheet; an empty id means a new category (the kind can be chosen).
    CategoryDialog(const TransactionCategory& category, Save save, QWidget* parent = nullptr);

    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    void save();

private:
    void updateSaveButton();

    TransactionCategory category_;
    Save save_;
    QLineEdit* name_;
    QComboBox* icon_;
    QComboBox* kind_;
    QLabel* error_;
    QPushButton* saveButton_;
};

}  // namespace vantello::app
