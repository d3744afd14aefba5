#include "app/screens/BudgetDialog.hpp"

#include "app/model/BudgetActions.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantello::app {

BudgetDialog::BudgetDialog(LedgerViewModel& model, const std::string& categoryID, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(QStringLiteral("budgetDialog"));
    setWindowTitle(uiText("Imposta budget"));
    setWindowModality(Qt::WindowModal);
    setAccessibleName(windowTitle());

    category_ = new QComboBox(this);
    category_->setObjectName(QStringLiteral("budgetCategory"));
    category_->setAccessibleName(uiText("Categoria"));
    const Ledger& ledger = model_.ledger();
    int chosen = -1;
    for (const TransactionCategory& category : ledger.categories(TransactionKind::expense)) {
        category_->addItem(symbolIcon(category.symbol), QString::fromStdString(category.name),
                           QString::fromStdString(category.id));
        const int row = category_->count() - 1;
        if (category.id == categoryID) chosen = row;
        if (categoryID.empty() && chosen < 0 && !ledger.budgets().contains(category.id)) chosen = row;
    }
    category_->setCurrentIndex(std::max(chosen, 0));

    amount_ = new QLineEdit(this);
    amount_->setObjectName(QStringLiteral("budgetAmount"));
    amount_->setAccessibleName(uiText("Budget mensile"));
    amount_->setPlaceholderText(QStringLiteral("250,00"));
    amount_->setAlignment(Qt::AlignRight);

    error_ = new QLabel(this);
    error_->setObjectName(QStringLiteral("budgetError"));
    error_->setWordWrap(true);
    error_->hide();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    saveButton_ = buttons->button(QDialogButtonBox::Save);
    saveButton_->setText(uiText("Salva"));
    saveButton_->setObjectName(QStringLiteral("budgetSaveButton"));
    saveButton_->setAccessibleName(saveButton_->text());
    saveButton_->setDefault(true);
    auto* cancel = buttons->button(QDialogButtonBox::Cancel);
    cancel->setText(uiText("Annulla"));
    cancel->setObjectName(QStringLiteral("budgetCancelButton"));
    cancel->setAccessibleName(cancel->text());
    connect(buttons, &QDialogButtonBox::accepted, this, &BudgetDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout;
    form->addRow(uiText("Categoria"), category_);
    form->addRow(uiText("Budget mensile"), amount_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(uiText("Quanto vuoi spendere al massimo ogni mese in questa categoria?"), this));
    layout->addLayout(form);
    layout->addWidget(error_);
    layout->addWidget(buttons);

    connect(category_, &QComboBox::currentIndexChanged, this, &BudgetDialog::fillAmount);
    connect(amount_, &QLineEdit::textEdited, error_, &QLabel::hide);
    fillAmount();
    amount_->setFocus();
    setMinimumWidth(380);
}

std::string BudgetDialog::categoryID() const { return category_->currentData().toString().toStdString(); }

void BudgetDialog::fillAmount() {
    const auto& budgets = model_.ledger().budgets();
    const auto found = budgets.find(categoryID());
    amount_->setText(found == budgets.end()
                         ? QString()
                         : typedAmountText(found->second));
    amount_->selectAll();
    error_->hide();
}

void BudgetDialog::save() {
    if (const auto problem = setCategoryBudget(model_, categoryID(), amount_->text())) {
        error_->setText(*problem);
        QPalette colours = error_->palette();
        colours.setColor(QPalette::WindowText, currentPalette().expense);
        error_->setPalette(colours);
        error_->show();
        amount_->setFocus();
        return;
    }
    accept();
}

}  // namespace vantello::app
