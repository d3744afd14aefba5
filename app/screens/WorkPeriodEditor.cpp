#include "app/screens/WorkPeriodEditor.hpp"

#include "app/model/DisplayText.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QCheckBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

QDate qtDate(CivilDate day) { return {day.year, day.month, day.day}; }

Instant noonOf(const QDate& date, const Calendar& calendar) {
    return calendar.date({date.year(), date.month(), date.day()}, 12).value_or(Instant{});
}

}  // namespace

WorkPeriodEditor::WorkPeriodEditor(LedgerViewModel& model, UnemploymentDraft draft, QWidget* parent)
    : QDialog(parent), model_(model), draft_(std::move(draft)) {
    setObjectName(QStringLiteral("workPeriodEditor"));
    setWindowModality(Qt::WindowModal);
    setWindowTitle(draft_.isNew ? uiText("Nuovo periodo senza lavoro") : uiText("Modifica periodo senza lavoro"));
    setAccessibleName(windowTitle());

    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    startEdit_ = named(new QDateEdit, "startEdit", uiText("Primo giorno senza lavoro"));
    startEdit_->setCalendarPopup(true);
    form->addRow(uiText("Primo giorno senza lavoro"), startEdit_);
    hasEndCheck_ = named(new QCheckBox(uiText("Ultimo giorno senza lavoro")), "hasEndCheck",
                         uiText("Il periodo è finito"));
    endEdit_ = named(new QDateEdit, "endEdit", uiText("Ultimo giorno senza lavoro"));
    endEdit_->setCalendarPopup(true);
    form->addRow(hasEndCheck_, endEdit_);
    noteEdit_ = named(new QLineEdit, "noteEdit", uiText("Nota"));
    form->addRow(uiText("Nota"), noteEdit_);
    layout->addLayout(form);
    auto* hint = new QLabel(uiText("Senza ultimo giorno il periodo è in corso: gli stipendi ricorrenti si fermano "
                                   "finché non lo chiudi."));
    hint->setWordWrap(true);
    layout->addWidget(hint);

    errorLabel_ = named(new QLabel, "errorLabel", uiText("Errore"));
    errorLabel_->setWordWrap(true);
    QPalette errorPalette = errorLabel_->palette();
    errorPalette.setColor(QPalette::WindowText, currentPalette().expense);
    errorLabel_->setPalette(errorPalette);
    errorLabel_->hide();
    layout->addWidget(errorLabel_);

    auto* buttons = new QDialogButtonBox;
    auto* saveButton = named(buttons->addButton(uiText("Salva"), QDialogButtonBox::AcceptRole), "saveButton",
                             uiText("Salva"));
    named(buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole), "cancelButton", uiText("Annulla"));
    saveButton->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &WorkPeriodEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    const Calendar& calendar = model_.calendar();
    startEdit_->setDate(qtDate(calendar.civilDate(draft_.start)));
    endEdit_->setDate(qtDate(calendar.civilDate(draft_.end)));
    hasEndCheck_->setChecked(draft_.hasEnd);
    endEdit_->setEnabled(draft_.hasEnd);
    noteEdit_->setText(QString::fromStdString(draft_.note));
    connect(hasEndCheck_, &QCheckBox::toggled, endEdit_, &QWidget::setEnabled);
    setMinimumWidth(420);
    startEdit_->setFocus();
}

QString WorkPeriodEditor::errorText() const { return errorLabel_->isHidden() ? QString() : errorLabel_->text(); }

void WorkPeriodEditor::save() {
    UnemploymentDraft draft = draft_;
    const Calendar& calendar = model_.calendar();
    draft.start = noonOf(startEdit_->date(), calendar);
    draft.hasEnd = hasEndCheck_->isChecked();
    draft.end = noonOf(endEdit_->date(), calendar);
    draft.note = noteEdit_->text().toStdString();
    if (const auto error = model_.saveWorkPeriod(draft)) {
        errorLabel_->setText(*error);
        errorLabel_->show();
        return;
    }
    accept();
}

}  // namespace vantello::app
