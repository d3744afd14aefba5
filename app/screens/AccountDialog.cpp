#include "app/screens/AccountDialog.hpp"

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

AccountDialog::AccountDialog(const AccountForm& form, bool isNew, Save save, QWidget* parent)
    : QDialog(parent), save_(std::move(save)) {
    setObjectName(QStringLiteral("accountDialog"));
    setWindowTitle(isNew ? uiText("Nuovo conto") : uiText("Modifica conto"));
    setWindowModality(Qt::WindowModal);

    name_ = new QLineEdit(form.name);
    name_->setObjectName(QStringLiteral("accountName"));
    name_->setAccessibleName(uiText("Nome del conto"));
    name_->setMaxLength(maximumNameLength);
    name_->setMinimumWidth(260);

    icon_ = new QComboBox;
    icon_->setObjectName(QStringLiteral("accountIcon"));
    icon_->setAccessibleName(uiText("Icona del conto"));
    for (const SymbolChoice& choice : accountSymbolChoices()) {
        icon_->addItem(symbolIcon(choice.symbol), uiText(choice.italianLabel), QString::fromLatin1(choice.symbol));
    }
    const QString symbol = QString::fromStdString(form.symbol);
    if (!symbol.isEmpty() && icon_->findData(symbol) < 0) {
        icon_->insertItem(0, symbolIcon(form.symbol), uiText("Icona attuale"), symbol);
    }
    icon_->setCurrentIndex(symbol.isEmpty() ? 0 : icon_->findData(symbol));

    auto* fields = new QFormLayout;
    fields->addRow(uiText("Nome del conto"), name_);
    fields->addRow(uiText("Icona"), icon_);
    if (isNew) {
        opening_ = new QLineEdit(form.openingBalance);
        opening_->setObjectName(QStringLiteral("accountOpeningBalance"));
        opening_->setAccessibleName(uiText("Saldo iniziale"));
        opening_->setPlaceholderText(QStringLiteral("0,00"));
        opening_->setAlignment(Qt::AlignRight);
        fields->addRow(uiText("Saldo iniziale"), opening_);
    }
    threshold_ = new QLineEdit(form.lowBalanceThreshold);
    threshold_->setObjectName(QStringLiteral("accountThreshold"));
    threshold_->setAccessibleName(uiText("Avvisami quando il saldo scende sotto"));
    threshold_->setPlaceholderText(uiText("nessun avviso"));
    threshold_->setAlignment(Qt::AlignRight);
    fields->addRow(uiText("Avviso sotto"), threshold_);

    auto* hint = new QLabel(uiText("Importi come «1.250,00». Lascia vuota la soglia per non ricevere avvisi."));
    hint->setWordWrap(true);

    error_ = new QLabel;
    error_->setObjectName(QStringLiteral("accountError"));
    error_->setWordWrap(true);
    error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPalette errorPalette = error_->palette();
    errorPalette.setColor(QPalette::WindowText, currentPalette().expense);
    error_->setPalette(errorPalette);
    error_->hide();

    auto* buttons = new QDialogButtonBox;
    saveButton_ = buttons->addButton(isNew ? uiText("Aggiungi") : uiText("Salva"), QDialogButtonBox::AcceptRole);
    saveButton_->setObjectName(QStringLiteral("accountSaveButton"));
    saveButton_->setAccessibleName(saveButton_->text());
    saveButton_->setDefault(true);
    QPushButton* cancel = buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("accountCancelButton"));
    cancel->setAccessibleName(cancel->text());
    connect(buttons, &QDialogButtonBox::accepted, this, &AccountDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &AccountDialog::reject);
    connect(name_, &QLineEdit::textChanged, this, &AccountDialog::updateSaveButton);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(hint);
    layout->addWidget(error_);
    layout->addWidget(buttons);

    setTabOrder(name_, icon_);
    if (opening_) {
        setTabOrder(icon_, opening_);
        setTabOrder(opening_, threshold_);
    } else {
        setTabOrder(icon_, threshold_);
    }
    updateSaveButton();
    name_->setFocus();
}

QString AccountDialog::errorText() const { return error_->isHidden() ? QString() : error_->text(); }

void AccountDialog::updateSaveButton() { saveButton_->setEnabled(!name_->text().trimmed().isEmpty()); }

void AccountDialog::save() {
    if (!saveButton_->isEnabled()) return;
    AccountForm typed;
    typed.name = name_->text();
    typed.symbol = icon_->currentData().toString().toStdString();
    typed.openingBalance = opening_ ? opening_->text() : QString();
    typed.lowBalanceThreshold = threshold_->text();
    if (const std::optional<QString> error = save_(typed)) {
        error_->setText(*error);
        error_->show();
        return;
    }
    accept();
}

}  // namespace vantello::app
