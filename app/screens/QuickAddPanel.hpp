#pragma once
// The quick add: amount, kind, category and note of a new movement, added to the data in use
// without opening the main window. Enter adds; a refused amount is said in the panel.

#include "app/model/ProfilesController.hpp"

#include <QMetaObject>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantello::app {

class QuickAddPanel : public QWidget {
    Q_OBJECT
public:
    explicit QuickAddPanel(ProfilesController& profiles, QWidget* parent = nullptr);

    // Adds the movement as typed; on success clears the fields and emits `added`.
    void add();
    // Puts the cursor in the amount, ready for a new movement.
    void focusAmount();

Q_SIGNALS:
    // A movement was added; `summary` says which ("Aggiunto −12,50 € in Spesa").
    void added(const QString& summary);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void followModel();
    void fillCategories();
    [[nodiscard]] TransactionKind kind() const;
    void showMessage(const QString& text, bool isError);

    ProfilesController& profiles_;
    QMetaObject::Connection ledgerConnection_;
    QLineEdit* amount_ = nullptr;
    QComboBox* kind_ = nullptr;
    QComboBox* category_ = nullptr;
    QLineEdit* note_ = nullptr;
    QLabel* message_ = nullptr;
    QPushButton* add_ = nullptr;
};

}  // namespace vantello::app
