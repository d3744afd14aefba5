#pragma once
// The window-modal sheet the wealth and shared-expenses screens add and edit with: a form, a
// line for the message of the core (the sheet stays open on it), Salva and Annulla. Escape
// cancels, Enter saves.

#include <QDate>
#include <QDialog>
#include <QString>

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"

#include <functional>
#include <optional>

class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vantello::app {

class WealthSheet : public QDialog {
    Q_OBJECT
public:
    // `save` returns the message to show, or nothing when it did its work and the sheet closes.
    WealthSheet(const QString& title, QWidget* parent);

    void setSave(std::function<std::optional<QString>()> save) { save_ = std::move(save); }
    [[nodiscard]] QFormLayout* form() const { return form_; }
    [[nodiscard]] QLabel* errorLabel() const { return error_; }
    void showError(const QString& message);

    // A named line edit for an amount typed the Italian way ("1.250,00").
    QLineEdit* addAmountRow(const QString& label, const char* objectName);
    QLineEdit* addTextRow(const QString& label, const char* objectName);
    QDateEdit* addDateRow(const QString& label, const char* objectName, QDate date);

    // The amount typed, or the message asking for one.
    [[nodiscard]] static std::optional<Decimal> amountOf(const QLineEdit& edit);
    [[nodiscard]] static QDate dateOf(Instant moment, const Calendar& calendar);
    // Noon of the day, so that a zone change never moves it to another day.
    [[nodiscard]] static Instant momentOf(QDate date, const Calendar& calendar);

public Q_SLOTS:
    void accept() override;

private:
    QFormLayout* form_;
    QLabel* error_;
    QPushButton* saveButton_;
    std::function<std::optional<QString>()> save_;
};

// Asks before something is deleted for good, window-modal, and runs `onConfirm` on "Elimina".
void confirmDeletion(QWidget* parent, const QString& question, const QString& detail, std::function<void()> onConfirm);

}  // namespace vantello::app
