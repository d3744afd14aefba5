#include "app/screens/QuickAddPanel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QComboBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantello::app {

QuickAddPanel::QuickAddPanel(ProfilesController& profiles, QWidget* parent) : QWidget(parent), profiles_(profiles) {
    setObjectName(QStringLiteral("quickAddPanel"));
    setWindowTitle(uiText("Aggiunta rapida"));
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);

    amount_ = new QLineEdit(this);
    amount_->setObjectName(QStringLiteral("quickAddAmount"));
    amount_->setAccessibleName(uiText("Importo"));
    amount_->setPlaceholderText(QStringLiteral("0,00"));
    amount_->setAlignment(Qt::AlignRight);
    form->addRow(uiText("Importo"), amount_);

    kind_ = new QComboBox(this);
    kind_->setObjectName(QStringLiteral("quickAddKind"));
    kind_->setAccessibleName(uiText("Tipo"));
    kind_->addItem(uiText("Uscita"), static_cast<int>(TransactionKind::expense));
    kind_->addItem(uiText("Entrata"), static_cast<int>(TransactionKind::income));
    form->addRow(uiText("Tipo"), kind_);

    category_ = new QComboBox(this);
    category_->setObjectName(QStringLiteral("quickAddCategory"));
    category_->setAccessibleName(uiText("Categoria"));
    form->addRow(uiText("Categoria"), category_);

    note_ = new QLineEdit(this);
    note_->setObjectName(QStringLiteral("quickAddNote"));
    note_->setAccessibleName(uiText("Nota"));
    note_->setClearButtonEnabled(true);
    form->addRow(uiText("Nota"), note_);
    layout->addLayout(form);

    message_ = new QLabel(this);
    message_->setObjectName(QStringLiteral("quickAddMessage"));
    message_->setWordWrap(true);
    message_->hide();
    layout->addWidget(message_);

    add_ = new QPushButton(uiText("Aggiungi"), this);
    add_->setObjectName(QStringLiteral("quickAddButton"));
    add_->setAccessibleName(uiText("Aggiungi"));
    layout->addWidget(add_, 0, Qt::AlignRight);

    setTabOrder(amount_, kind_);
    setTabOrder(kind_, category_);
    setTabOrder(category_, note_);
    setTabOrder(note_, add_);

    connect(add_, &QPushButton::clicked, this, &QuickAddPanel::add);
    connect(kind_, &QComboBox::currentIndexChanged, this, &QuickAddPanel::fillCategories);
    connect(&profiles_, &ProfilesController::modelChanged, this, &QuickAddPanel::followModel);
    followModel();
    setMinimumWidth(300);
}

void QuickAddPanel::followModel() {
    disconnect(ledgerConnection_);
    // Custom categories come and go with the ledger.
    ledgerConnection_ = connect(&profiles_.model(), &LedgerViewModel::ledgerChanged, this, &QuickAddPanel::fillCategories);
    fillCategories();
}

TransactionKind QuickAddPanel::kind() const {
    return static_cast<TransactionKind>(kind_->currentData().toInt());
}

void QuickAddPanel::fillCategories() {
    const QString chosen = category_->currentData().toString();
    category_->clear();
    for (const TransactionCategory& category : profiles_.model().ledger().categories(kind())) {
        category_->addItem(symbolIcon(category.symbol), QString::fromStdString(category.name),
                           QString::fromStdString(category.id));
    }
    const int keep = category_->findData(chosen);
    category_->setCurrentIndex(keep >= 0 ? keep : 0);
}

void QuickAddPanel::showMessage(const QString& text, bool isError) {
    message_->setText(text);
    message_->setVisible(!text.isEmpty());
    QPalette colours = message_->palette();
    colours.setColor(QPalette::WindowText,
                     isError ? currentPalette().expense : QGuiApplication::palette().color(QPalette::WindowText));
    message_->setPalette(colours);
}

void QuickAddPanel::add() {
    LedgerViewModel& model = profiles_.model();
    TransactionDraft draft = model.newDraft(kind());
    draft.amountText = amount_->text().trimmed().toStdString();
    if (const QString category = category_->currentData().toString(); !category.isEmpty()) {
        draft.categoryID = category.toStdString();
    }
    draft.note = note_->text().trimmed().toStdString();
    if (const auto problem = model.saveDraft(draft)) {
        showMessage(*problem, true);
        amount_->setFocus();
        amount_->selectAll();
        return;
    }
    const Decimal amount = draft.parsedAmount().value_or(Decimal());
    const QString summary = uiText("Aggiunto {importo} in {categoria}",
                                   {{"importo", movementAmountText(amount, draft.kind).toStdString()},
                                    {"categoria", category_->currentText().toStdString()}});
    amount_->clear();
    note_->clear();
    showMessage(summary, false);
    amount_->setFocus();
    Q_EMIT added(summary);
}

void QuickAddPanel::focusAmount() {
    amount_->setFocus();
    amount_->selectAll();
}

void QuickAddPanel::keyPressEvent(QKeyEvent* event) {
    // The line edits pass Enter on; the open list of a combo box keeps it.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        add();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace vantello::app
