#include "app/screens/RuleEditor.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/EditorChoices.hpp"
#include "app/model/RuleActions.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

// Expense categories first, then income ones, each named with its kind when both kinds share
// a name.
std::vector<EditorChoice> ruleCategoryChoices(const Ledger& ledger) {
    std::vector<EditorChoice> choices = categoryChoices(ledger, TransactionKind::expense);
    for (EditorChoice& choice : categoryChoices(ledger, TransactionKind::income)) {
        choice.text = uiText("{categoria} (entrata)", {{"categoria", choice.text.toStdString()}});
        choices.push_back(std::move(choice));
    }
    return choices;
}

}  // namespace

RuleEditor::RuleEditor(LedgerViewModel& model, std::optional<Uuid> ruleID, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(QStringLiteral("ruleEditor"));
    setWindowModality(Qt::WindowModal);
    const Ledger& ledger = model_.ledger();
    const CategoryRule* rule = nullptr;
    if (ruleID) {
        const auto found = std::ranges::find(ledger.categoryRules(), *ruleID, &CategoryRule::id);
        if (found != ledger.categoryRules().end()) {
            rule = &*found;
            ruleID_ = ruleID;
        }
    }
    setWindowTitle(rule ? uiText("Modifica regola") : uiText("Nuova regola"));
    setAccessibleName(windowTitle());

    auto* layout = new QVBoxLayout(this);
    auto* explanation = new QLabel(uiText("I movimenti la cui nota contiene questo testo (maiuscole e accenti non "
                                          "contano) vanno nella categoria scelta."));
    explanation->setWordWrap(true);
    layout->addWidget(explanation);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    patternEdit_ = named(new QLineEdit, "patternEdit", uiText("Se la nota contiene"));
    patternEdit_->setPlaceholderText(uiText("per esempio Esselunga"));
    form->addRow(uiText("Se la nota contiene"), patternEdit_);
    categories_ = new EditorChoiceModel(this);
    categories_->setChoices(ruleCategoryChoices(ledger));
    categoryPicker_ = named(new QComboBox, "categoryPicker", uiText("Categoria"));
    categoryPicker_->setModel(categories_);
    form->addRow(uiText("Categoria"), categoryPicker_);
    layout->addLayout(form);

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
    connect(buttons, &QDialogButtonBox::accepted, this, &RuleEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    if (rule) {
        patternEdit_->setText(QString::fromStdString(rule->pattern));
        categoryPicker_->setCurrentIndex(categories_->rowOf(rule->categoryID).value_or(0));
    }
    connect(patternEdit_, &QLineEdit::textEdited, errorLabel_, &QWidget::hide);
    setMinimumWidth(420);
    patternEdit_->setFocus();
}

QString RuleEditor::errorText() const { return errorLabel_->isHidden() ? QString() : errorLabel_->text(); }

void RuleEditor::save() {
    const int row = categoryPicker_->currentIndex();
    const std::string categoryID = row < 0 ? std::string() : categories_->idAt(row);
    if (const auto error = saveCategoryRule(model_, ruleID_, patternEdit_->text(), categoryID)) {
        errorLabel_->setText(*error);
        errorLabel_->show();
        return;
    }
    accept();
}

}  // namespace vantello::app
