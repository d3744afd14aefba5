#include "app/screens/WealthSheet.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/AmountParser.hpp"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantello::app {

WealthSheet::WealthSheet(const QString& title, QWidget* parent)
    : QDialog(parent), form_(new QFormLayout), error_(new QLabel(this)) {
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(380);

    error_->setObjectName(QStringLiteral("sheetError"));
    error_->setWordWrap(true);
    error_->hide();

    auto* buttons = new QDialogButtonBox(this);
    saveButton_ = buttons->addButton(uiText("Salva"), QDialogButtonBox::AcceptRole);
    saveButton_->setObjectName(QStringLiteral("saveButton"));
    saveButton_->setAccessibleName(uiText("Salva"));
    saveButton_->setDefault(true);
    QPushButton* cancel = buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    cancel->setAccessibleName(uiText("Annulla"));
    connect(buttons, &QDialogButtonBox::accepted, this, &WealthSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &WealthSheet::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(form_);
    column->addWidget(error_);
    column->addWidget(buttons);
}

void WealthSheet::showError(const QString& message) {
    QPalette colours = error_->palette();
    colours.setColor(QPalette::WindowText, currentPalette().expense);
    error_->setPalette(colours);
    error_->setText(message);
    error_->setAccessibleName(message);
    error_->show();
}

QLineEdit* WealthSheet::addTextRow(const QString& label, const char* objectName) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QString::fromLatin1(objectName));
    edit->setAccessibleName(label);
    form_->addRow(label, edit);
    return edit;
}

QLineEdit* WealthSheet::addAmountRow(const QString& label, const char* objectName) {
    QLineEdit* edit = addTextRow(label, objectName);
    edit->setAlignment(Qt::AlignRight);
    edit->setPlaceholderText(uiText("0,00"));
    return edit;
}

QDateEdit* WealthSheet::addDateRow(const QString& label, const char* objectName, QDate date) {
    auto* edit = new QDateEdit(date, this);
    edit->setObjectName(QString::fromLatin1(objectName));
    edit->setAccessibleName(label);
    edit->setCalendarPopup(true);
    form_->addRow(label, edit);
    return edit;
}

std::optional<Decimal> WealthSheet::amountOf(const QLineEdit& edit) {
    return AmountParser::parse(edit.text().trimmed().toStdString());
}

QDate WealthSheet::dateOf(Instant moment, const Calendar& calendar) {
    const CivilDate day = calendar.civilDate(moment);
    return {day.year, day.month, day.day};
}

Instant WealthSheet::momentOf(QDate date, const Calendar& calendar) {
    const std::optional<Instant> noon = calendar.date({date.year(), date.month(), date.day()}, 12);
    return noon ? *noon : calendar.startOfDay(clockNow());
}

void WealthSheet::accept() {
    if (!save_) {
        QDialog::accept();
        return;
    }
    if (const std::optional<QString> message = save_()) {
        showError(*message);
        return;
    }
    QDialog::accept();
}

void confirmDeletion(QWidget* parent, const QString& question, const QString& detail, std::function<void()> onConfirm) {
    auto* box = new QMessageBox(QMessageBox::Warning, question, question, QMessageBox::NoButton, parent);
    box->setObjectName(QStringLiteral("confirmDeletion"));
    box->setInformativeText(detail);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* remove = box->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    remove->setObjectName(QStringLiteral("confirmButton"));
    remove->setAccessibleName(uiText("Elimina"));
    QPushButton* cancel = box->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    cancel->setAccessibleName(uiText("Annulla"));
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    QObject::connect(box, &QMessageBox::buttonClicked, box, [remove, onConfirm = std::move(onConfirm)](QAbstractButton* clicked) {
        if (clicked == remove) onConfirm();
    });
    box->open();
}

}  // namespace vantello::app
