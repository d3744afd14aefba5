#include "app/screens/CategoryDialog.hpp"

#include "app/model/CategorySymbols.hpp"
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

namespace {
constexpr int maximumNameLength = 40;  // the core refuses longer names; the field stops there
}

CategoryDialog::CategoryDialog(const TransactionCategory& category, Save save, QWidget* parent)
    : QDialog(parent), category_(category), save_(std::move(save)) {
    const bool isNew = category_.id.empty();
    setObjectName(QStringLiteral("categoryDialog"));
    setWindowTitle(isNew ? uiText("Nuova categoria") : uiText("Modifica categoria"));
    setWindowModality(Qt::WindowModal);

    name_ = new QLineEdit(QString::fromStdString(category_.name));
    name_->setObjectName(QStringLiteral("categoryName"));
    name_->setAccessibleName(uiText("Nome della categoria"));
    name_->setMaxLength(maximumNameLength);
    name_->setMinimumWidth(260);

    icon_ = new QComboBox;
    icon_->setObjectName(QStringLiteral("categoryIcon"));
    icon_->setAccessibleName(uiText("Icona della categoria"));
    for (const SymbolChoice& choice : categorySymbolChoices()) {
        icon_->addItem(symbolIcon(choice.symbol), uiText(choice.italianLabel), QString::fromLatin1(choice.symbol));
    }
    // A symbol the picker does not offer (set elsewhere) stays choosable as it is.
    const QString symbol = QString::fromStdString(category_.symbol);
    if (!symbol.isEmpty() && icon_->findData(symbol) < 0) {
        icon_->insertItem(0, symbolIcon(category_.symbol), uiText("Icona attuale"), symbol);
    }
    icon_->setCurrentIndex(symbol.isEmpty() ? 0 : icon_->findData(symbol));

    kind_ = new QComboBox;
    kind_->setObjectName(QStringLiteral("categoryKind"));
    kind_->setAccessibleName(uiText("Tipo di categoria"));
    kind_->addItem(uiText("Uscite"), int(TransactionKind::expense));
    kind_->addItem(uiText("Entrate"), int(TransactionKind::income));
    kind_->setCurrentIndex(kind_->findData(int(category_.kind)));
    kind_->setEnabled(isNew);  // a category keeps its kind: its movements depend on it

    auto* form = new QFormLayout;
    form->addRow(uiText("Nome della categoria"), name_);
    form->addRow(uiText("Icona"), icon_);
    form->addRow(uiText("Per"), kind_);

    error_ = new QLabel;
    error_->setObjectName(QStringLiteral("categoryError"));
    error_->setWordWrap(true);
    error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPalette errorPalette = error_->palette();
    errorPalette.setColor(QPalette::WindowText, currentPalette().expense);
    error_->setPalette(errorPalette);
    error_->hide();

    auto* buttons = new QDialogButtonBox;
    saveButton_ = buttons->addButton(isNew ? uiText("Aggiungi") : uiText("Salva"), QDialogButtonBox::AcceptRole);
    saveButton_->setObjectName(QStringLiteral("categorySaveButton"));
    saveButton_->setAccessibleName(saveButton_->text());
    saveButton_->setDefault(true);
    QPushButton* cancel = buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("categoryCancelButton"));
    cancel->setAccessibleName(cancel->text());
    connect(buttons, &QDialogButtonBox::accepted, this, &CategoryDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &CategoryDialog::reject);
    connect(name_, &QLineEdit::textChanged, this, &CategoryDialog::updateSaveButton);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(error_);
    layout->addWidget(buttons);

    setTabOrder(name_, icon_);
    setTabOrder(icon_, kind_);
    updateSaveButton();
    name_->setFocus();
}

QString CategoryDialog::errorText() const { return error_->isHidden() ? QString() : error_->text(); }

void CategoryDialog::updateSaveButton() { saveButton_->setEnabled(!name_->text().trimmed().isEmpty()); }

void CategoryDialog::save() {
    if (!saveButton_->isEnabled()) return;
    TransactionCategory typed = category_;
    typed.name = name_->text().toStdString();
    typed.symbol = icon_->currentData().toString().toStdString();
    typed.kind = TransactionKind(kind_->currentData().toInt());
    if (const std::optional<QString> error = save_(typed)) {
        error_->setText(*error);
        error_->show();
        name_->setFocus();
        return;
    }
    accept();
}

}  // namespace vantello::app
