#include "app/screens/RecurringEditor.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/EditorChoices.hpp"
#include "app/model/RecurringActions.hpp"
#include "app/model/RecurringRulesModel.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

QComboBox* picker(EditorChoiceModel* choices, const char* objectName, const QString& accessibleName) {
    auto* box = named(new QComboBox, objectName, accessibleName);
    box->setModel(choices);
    return box;
}


QDate qtDate(CivilDate day) { return {day.year, day.month, day.day}; }

Instant noonOf(const QDate& date, const Calendar& calendar) {
    return calendar.date({date.year(), date.month(), date.day()}, 12).value_or(Instant{});
}

void select(QComboBox* box, const EditorChoiceModel& choices, const std::string& id) {
    box->setCurrentIndex(choices.rowOf(id).value_or(box->count() > 0 ? 0 : -1));
}

std::string chosen(const QComboBox* box, const EditorChoiceModel& choices) {
    const int row = box->currentIndex();
    return row < 0 ? std::string() : choices.idAt(row);
}

}  // namespace

RecurringEditor::RecurringEditor(LedgerViewModel& model, std::optional<Uuid> ruleID, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(QStringLiteral("recurringEditor"));
    setWindowModality(Qt::WindowModal);
    const Ledger& ledger = model_.ledger();
    if (ruleID) {
        const auto found = std::ranges::find(ledger.recurringRules(), *ruleID, &RecurringRule::id);
        if (found != ledger.recurringRules().end()) {
            rule_ = *found;
            isNew_ = false;
        }
    }
    if (isNew_) {
        rule_.id = Uuid::random();
        rule_.startDate = model_.calendar().noon(model_.now());
        rule_.accountID = ledger.accounts().empty() ? std::string() : ledger.accounts().front().id;
    }
    setWindowTitle(isNew_ ? uiText("Nuovo movimento ricorrente") : uiText("Modifica movimento ricorrente"));
    setAccessibleName(windowTitle());

    categories_ = new EditorChoiceModel(this);
    accounts_ = new EditorChoiceModel(this);
    destinations_ = new EditorChoiceModel(this);
    accounts_->setChoices(accountChoices(ledger));
    destinations_->setChoices(accountChoices(ledger));

    auto* layout = new QVBoxLayout(this);
    form_ = new QFormLayout;
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout->addLayout(form_);

    kindPicker_ = named(new QComboBox, "kindPicker", uiText("Tipo"));
    kindPicker_->addItems({uiText("Uscita"), uiText("Entrata"), uiText("Giroconto")});
    form_->addRow(uiText("Tipo"), kindPicker_);
    amountEdit_ = named(new QLineEdit, "amountEdit", uiText("Importo"));
    amountEdit_->setPlaceholderText(QStringLiteral("0,00"));
    amountEdit_->setAlignment(Qt::AlignRight);
    form_->addRow(uiText("Importo"), amountEdit_);
    categoryPicker_ = picker(categories_, "categoryPicker", uiText("Categoria"));
    form_->addRow(uiText("Categoria"), categoryPicker_);
    accountPicker_ = picker(accounts_, "accountPicker", uiText("Conto"));
    form_->addRow(uiText("Conto"), accountPicker_);
    destinationPicker_ = picker(destinations_, "destinationPicker", uiText("Verso il conto"));
    form_->addRow(uiText("Verso il conto"), destinationPicker_);
    noteEdit_ = named(new QLineEdit, "noteEdit", uiText("Nota"));
    form_->addRow(uiText("Nota"), noteEdit_);
    frequencyPicker_ = named(new QComboBox, "frequencyPicker", uiText("Frequenza"));
    for (const auto frequency :
         {RecurringRule::Frequency::weekly, RecurringRule::Frequency::monthly, RecurringRule::Frequency::yearly}) {
        frequencyPicker_->addItem(recurringFrequencyText(frequency), static_cast<int>(frequency));
    }
    form_->addRow(uiText("Frequenza"), frequencyPicker_);
    startEdit_ = named(new QDateEdit, "startEdit", uiText("Dal"));
    startEdit_->setCalendarPopup(true);
    form_->addRow(uiText("Dal"), startEdit_);
    hasEndCheck_ = named(new QCheckBox(uiText("Fino al")), "hasEndCheck", uiText("Fino al"));
    endEdit_ = named(new QDateEdit, "endEdit", uiText("Ultima data"));
    endEdit_->setCalendarPopup(true);
    form_->addRow(hasEndCheck_, endEdit_);

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
    connect(buttons, &QDialogButtonBox::accepted, this, &RecurringEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    // What the rule holds now.
    const bool transfer = rule_.transferToAccountID.has_value();
    kindPicker_->setCurrentIndex(transfer ? transferChoice
                                          : (rule_.kind == TransactionKind::income ? incomeChoice : expenseChoice));
    fillCategories();
    select(categoryPicker_, *categories_, rule_.categoryID);
    select(accountPicker_, *accounts_, rule_.accountID);
    if (transfer) {
        select(destinationPicker_, *destinations_, *rule_.transferToAccountID);
    } else if (destinations_->choices().size() > 1) {
        destinationPicker_->setCurrentIndex(accountPicker_->currentIndex() == 0 ? 1 : 0);
    }
    if (!isNew_) amountEdit_->setText(QString::fromStdString(rule_.amount.toFixed(2, ',')));
    noteEdit_->setText(QString::fromStdString(rule_.note));
    frequencyPicker_->setCurrentIndex(frequencyPicker_->findData(static_cast<int>(rule_.frequency)));
    const Calendar& calendar = model_.calendar();
    startEdit_->setDate(qtDate(calendar.civilDate(rule_.startDate)));
    hasEndCheck_->setChecked(rule_.endDate.has_value());
    endEdit_->setDate(qtDate(calendar.civilDate(rule_.endDate.value_or(rule_.startDate))));
    endEdit_->setEnabled(hasEndCheck_->isChecked());
    showKind();

    connect(hasEndCheck_, &QCheckBox::toggled, endEdit_, &QWidget::setEnabled);
    connect(kindPicker_, &QComboBox::currentIndexChanged, this, [this] {
        const std::string previous = chosen(categoryPicker_, *categories_);
        fillCategories();
        select(categoryPicker_, *categories_, previous);
        showKind();
    });
    connect(amountEdit_, &QLineEdit::textEdited, errorLabel_, &QWidget::hide);
    chainTabOrder({kindPicker_, amountEdit_, categoryPicker_, accountPicker_, destinationPicker_, noteEdit_,
                 frequencyPicker_, startEdit_, hasEndCheck_, endEdit_});
    setMinimumWidth(440);
    amountEdit_->setFocus();
}

QString RecurringEditor::errorText() const { return errorLabel_->isHidden() ? QString() : errorLabel_->text(); }

void RecurringEditor::fillCategories() {
    const auto kind = kindPicker_->currentIndex() == incomeChoice ? TransactionKind::income : TransactionKind::expense;
    categories_->setChoices(categoryChoices(model_.ledger(), kind));
}

void RecurringEditor::showKind() {
    const bool transfer = kindPicker_->currentIndex() == transferChoice;
    form_->setRowVisible(categoryPicker_, !transfer);
    form_->setRowVisible(destinationPicker_, transfer);
    form_->labelForField(accountPicker_)->setProperty("text", transfer ? uiText("Dal conto") : uiText("Conto"));
    accountPicker_->setAccessibleName(transfer ? uiText("Dal conto") : uiText("Conto"));
}

void RecurringEditor::save() {
    RecurringRule rule = rule_;
    const int kind = kindPicker_->currentIndex();
    rule.kind = kind == incomeChoice ? TransactionKind::income : TransactionKind::expense;
    if (kind == transferChoice) {
        rule.categoryID = std::string(transferCategoryID);
        rule.transferToAccountID = chosen(destinationPicker_, *destinations_);
    } else {
        rule.categoryID = chosen(categoryPicker_, *categories_);
        rule.transferToAccountID.reset();
    }
    rule.accountID = chosen(accountPicker_, *accounts_);
    rule.note = noteEdit_->text().trimmed().toStdString();
    rule.frequency = static_cast<RecurringRule::Frequency>(frequencyPicker_->currentData().toInt());
    const Calendar& calendar = model_.calendar();
    rule.startDate = noonOf(startEdit_->date(), calendar);
    rule.endDate = hasEndCheck_->isChecked() ? std::optional(noonOf(endEdit_->date(), calendar)) : std::nullopt;
    if (const auto error = saveRecurringRule(model_, rule, amountEdit_->text(), isNew_)) {
        errorLabel_->setText(*error);
        errorLabel_->show();
        return;
    }
    accept();
}

}  // namespace vantello::app
