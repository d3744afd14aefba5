#include "app/screens/TransactionEditor.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/EditorAttachments.hpp"
#include "app/model/EditorChoices.hpp"
#include "app/model/EditorConversion.hpp"
#include "app/model/EditorShares.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/rates/Currencies.hpp"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateEdit>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vantello::app {

namespace {

enum KindButton { expenseButton = 0, incomeButton = 1, transferButton = 2 };

QString qt(const std::string& text) { return QString::fromStdString(text); }

QLocale interfaceLocale() { return QLocale(qt(interfaceLocaleName())); }

QDate qtDate(CivilDate day) { return {day.year, day.month, day.day}; }

// The interface language's short date with the year in full ("18/03/2026", "3/18/2026").
QString dateFormat() {
    QString format = interfaceLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy"))) format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

QComboBox* picker(EditorChoiceModel* choices, const char* objectName, const QString& accessibleName) {
    auto* box = named(new QComboBox, objectName, accessibleName);
    box->setModel(choices);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return box;
}

}  // namespace

TransactionEditor::TransactionEditor(LedgerViewModel& model, TransactionDraft draft, QWidget* parent)
    : QDialog(parent), model_(&model), draft_(std::move(draft)), originalDate_(draft_.date) {
    setObjectName(QStringLiteral("transactionEditor"));
    setWindowModality(Qt::WindowModal);
    setWindowTitle(draft_.isNew ? uiText("Nuovo movimento") : uiText("Modifica movimento"));
    setAccessibleName(windowTitle());

    categories_ = new EditorChoiceModel(this);
    accounts_ = new EditorChoiceModel(this);
    destinations_ = new EditorChoiceModel(this);
    currencies_ = new EditorChoiceModel(this);
    currencies_->setChoices(currencyChoices());
    shares_ = new EditorSharesModel(this);
    attachments_ = new EditorAttachmentsModel(model.attachmentStore(), this);

    buildControls();
    showDraft();
    publishDraft();

    connect(&model, &LedgerViewModel::ledgerChanged, this, [this] {
        showing_ = true;
        fillPickers();
        showing_ = false;
        publishDraft();
    });
    connect(&model, &LedgerViewModel::exchangeRatesChanged, this, &TransactionEditor::convert);
    // The profile switched under the sheet: nothing is left to save into.
    connect(&model, &QObject::destroyed, this, &TransactionEditor::reject);
}

TransactionEditor::~TransactionEditor() { finishEditing(false); }

QString TransactionEditor::errorText() const { return errorLabel_->text(); }

void TransactionEditor::buildControls() {
    auto* layout = new QVBoxLayout(this);
    form_ = new QFormLayout;
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    layout->addLayout(form_);

    // Kind
    expenseButton_ = named(new QRadioButton(uiText("Uscita")), "kindExpense", uiText("Uscita"));
    incomeButton_ = named(new QRadioButton(uiText("Entrata")), "kindIncome", uiText("Entrata"));
    transferButton_ = named(new QRadioButton(uiText("Giroconto")), "kindTransfer", uiText("Giroconto"));
    kindGroup_ = new QButtonGroup(this);
    kindGroup_->addButton(expenseButton_, expenseButton);
    kindGroup_->addButton(incomeButton_, incomeButton);
    kindGroup_->addButton(transferButton_, transferButton);
    auto* kindRow = new QHBoxLayout;
    kindRow->addWidget(expenseButton_);
    kindRow->addWidget(incomeButton_);
    kindRow->addWidget(transferButton_);
    kindRow->addStretch();
    form_->addRow(uiText("Tipo"), kindRow);
    connect(kindGroup_, &QButtonGroup::idClicked, this, &TransactionEditor::setKind);

    // Amount in euro
    amountEdit_ = named(new QLineEdit, "amountEdit", uiText("Importo in euro"));
    amountEdit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    amountEdit_->setPlaceholderText(uiText("0,00"));
    auto* amountRow = new QHBoxLayout;
    amountRow->addWidget(amountEdit_, 1);
    amountRow->addWidget(new QLabel(QStringLiteral("\u20AC")));
    form_->addRow(uiText("Importo"), amountRow);
    connect(amountEdit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        draft_.amountText = text.toStdString();
        publishDraft();
    });

    // Foreign currency
    currencyPicker_ = picker(currencies_, "currencyPicker", uiText("Valuta"));
    form_->addRow(uiText("Valuta"), currencyPicker_);
    connect(currencyPicker_, &QComboBox::activated, this, &TransactionEditor::currencyEdited);
    originalAmountEdit_ = named(new QLineEdit, "originalAmountEdit", uiText("Importo in valuta"));
    originalAmountEdit_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    originalAmountEdit_->setPlaceholderText(uiText("0,00"));
    form_->addRow(uiText("Importo in valuta"), originalAmountEdit_);
    connect(originalAmountEdit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        draft_.originalAmountText = text.toStdString();
        convert();
        publishDraft();
    });
    conversionLabel_ = new QLabel;
    conversionLabel_->setObjectName(QStringLiteral("conversionLabel"));
    form_->addRow(QString(), conversionLabel_);

    // Day
    dateEdit_ = named(new QDateEdit, "dateEdit", uiText("Data"));
    dateEdit_->setCalendarPopup(true);
    dateEdit_->setLocale(interfaceLocale());
    dateEdit_->setDisplayFormat(dateFormat());
    form_->addRow(uiText("Data"), dateEdit_);
    connect(dateEdit_, &QDateEdit::dateChanged, this, &TransactionEditor::setDay);

    // Category, accounts
    categoryPicker_ = picker(categories_, "categoryPicker", uiText("Categoria"));
    form_->addRow(uiText("Categoria"), categoryPicker_);
    connect(categoryPicker_, &QComboBox::activated, this, [this] {
        draft_.categoryID = chosenID(categoryPicker_);
        publishDraft();
    });
    accountPicker_ = picker(accounts_, "accountPicker", uiText("Conto"));
    form_->addRow(uiText("Conto"), accountPicker_);
    connect(accountPicker_, &QComboBox::activated, this, [this] {
        draft_.accountID = chosenID(accountPicker_);
        showing_ = true;
        fillPickers();
        showing_ = false;
        publishDraft();
    });
    destinationPicker_ = picker(destinations_, "destinationPicker", uiText("Verso il conto"));
    form_->addRow(uiText("Verso il conto"), destinationPicker_);
    connect(destinationPicker_, &QComboBox::activated, this, [this] {
        draft_.transferToAccountID = chosenID(destinationPicker_);
        publishDraft();
    });

    noteEdit_ = named(new QLineEdit, "noteEdit", uiText("Nota"));
    form_->addRow(uiText("Nota"), noteEdit_);
    connect(noteEdit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        draft_.note = text.toStdString();
        publishDraft();
    });

    // Shares with people
    sharesBox_ = new QWidget;
    sharesBox_->setObjectName(QStringLiteral("sharesBox"));
    auto* sharesLayout = new QVBoxLayout(sharesBox_);
    sharesLayout->setContentsMargins(0, 0, 0, 0);
    sharesView_ = named(new QTableView, "sharesView", uiText("Dividi con"));
    sharesView_->setModel(shares_);
    sharesView_->verticalHeader()->hide();
    sharesView_->horizontalHeader()->setSectionResizeMode(EditorSharesModel::personColumn, QHeaderView::Stretch);
    sharesView_->horizontalHeader()->setSectionResizeMode(EditorSharesModel::amountColumn,
                                                          QHeaderView::ResizeToContents);
    sharesView_->horizontalHeader()->setMinimumSectionSize(110);
    sharesView_->setSelectionBehavior(QAbstractItemView::SelectRows);
    sharesView_->setSelectionMode(QAbstractItemView::SingleSelection);
    sharesView_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                 QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    noPeopleLabel_ = new QLabel(uiText("Non hai ancora aggiunto nessuna persona."));
    noPeopleLabel_->setObjectName(QStringLiteral("noPeopleLabel"));
    noPeopleLabel_->setWordWrap(true);
    splitButton_ = named(new QPushButton(uiText("Dividi in parti uguali")), "splitButton",
                         uiText("Dividi in parti uguali"));
    splitButton_->setAutoDefault(false);
    sharesLayout->addWidget(noPeopleLabel_);
    sharesLayout->addWidget(sharesView_);
    sharesLayout->addWidget(splitButton_, 0, Qt::AlignLeft);
    form_->addRow(uiText("Dividi con"), sharesBox_);
    connect(shares_, &QAbstractItemModel::dataChanged, this, &TransactionEditor::sharesEdited);
    connect(shares_, &QAbstractItemModel::modelReset, this, &TransactionEditor::sharesEdited);
    connect(splitButton_, &QPushButton::clicked, this, &TransactionEditor::splitEqually);

    // Attachments
    auto* attachmentsBox = new QWidget;
    auto* attachmentsLayout = new QVBoxLayout(attachmentsBox);
    attachmentsLayout->setContentsMargins(0, 0, 0, 0);
    attachmentsView_ = named(new QListView, "attachmentsView", uiText("Allegati"));
    attachmentsView_->setModel(attachments_);
    attachmentsView_->setIconSize({EditorAttachmentsModel::thumbnailSide, EditorAttachmentsModel::thumbnailSide});
    attachmentsView_->setMaximumHeight(EditorAttachmentsModel::thumbnailSide * 2 + 16);
    attachmentsView_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    addAttachmentButton_ = named(new QPushButton(uiText("Aggiungi…")), "addAttachmentButton",
                                 uiText("Aggiungi allegato"));
    openAttachmentButton_ = named(new QPushButton(uiText("Apri")), "openAttachmentButton", uiText("Apri allegato"));
    removeAttachmentButton_ = named(new QPushButton(uiText("Rimuovi")), "removeAttachmentButton",
                                    uiText("Rimuovi allegato"));
    auto* attachmentButtons = new QHBoxLayout;
    for (QPushButton* button : {addAttachmentButton_, openAttachmentButton_, removeAttachmentButton_}) {
        button->setAutoDefault(false);
        attachmentButtons->addWidget(button);
    }
    attachmentButtons->addStretch();
    attachmentsLayout->addWidget(attachmentsView_);
    attachmentsLayout->addLayout(attachmentButtons);
    form_->addRow(uiText("Allegati"), attachmentsBox);
    connect(addAttachmentButton_, &QPushButton::clicked, this, &TransactionEditor::pickAttachment);
    connect(openAttachmentButton_, &QPushButton::clicked, this, &TransactionEditor::openAttachment);
    connect(removeAttachmentButton_, &QPushButton::clicked, this, &TransactionEditor::removeAttachment);
    connect(attachmentsView_, &QListView::activated, this, &TransactionEditor::openAttachment);
    const auto selectionChanged = [this] {
        const bool chosen = attachmentsView_->selectionModel()->hasSelection();
        openAttachmentButton_->setEnabled(chosen);
        removeAttachmentButton_->setEnabled(chosen);
    };
    connect(attachmentsView_->selectionModel(), &QItemSelectionModel::selectionChanged, this, selectionChanged);
    connect(attachments_, &QAbstractItemModel::rowsRemoved, this, selectionChanged);
    selectionChanged();

    // The core's messages
    errorLabel_ = new QLabel;
    errorLabel_->setObjectName(QStringLiteral("editorError"));
    errorLabel_->setWordWrap(true);
    errorLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPalette errorPalette = errorLabel_->palette();
    errorPalette.setColor(QPalette::WindowText, currentPalette().expense);
    errorLabel_->setPalette(errorPalette);
    errorLabel_->hide();
    layout->addWidget(errorLabel_);

    auto* buttons = new QDialogButtonBox;
    saveButton_ = named(buttons->addButton(uiText("Salva"), QDialogButtonBox::AcceptRole), "saveButton",
                        uiText("Salva"));
    cancelButton_ = named(buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole), "cancelButton",
                          uiText("Annulla"));
    saveButton_->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &TransactionEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &TransactionEditor::reject);

    QWidget* order[] = {expenseButton_,      incomeButton_,        transferButton_,        amountEdit_,
                        currencyPicker_,     originalAmountEdit_,  dateEdit_,              categoryPicker_,
                        accountPicker_,      destinationPicker_,   noteEdit_,              sharesView_,
                        splitButton_,        attachmentsView_,     addAttachmentButton_,   openAttachmentButton_,
                        removeAttachmentButton_, saveButton_,      cancelButton_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);

    setMinimumWidth(500);
}

std::string TransactionEditor::chosenID(const QComboBox* picker) const {
    const int row = picker->currentIndex();
    if (row < 0) return {};
    return static_cast<const EditorChoiceModel*>(picker->model())->idAt(row);
}

void TransactionEditor::choose(QComboBox* picker, std::string_view id) {
    const auto row = static_cast<const EditorChoiceModel*>(picker->model())->rowOf(id);
    picker->setCurrentIndex(row.value_or(picker->count() > 0 ? 0 : -1));
}

// Fills the pickers from the ledger and selects the draft's choices; a choice the ledger no
// longer offers falls back to the first one, and the draft follows.
void TransactionEditor::fillPickers() {
    if (!model_) return;
    const Ledger& ledger = model_->ledger();

    const TransactionKind kind = isTransfer() ? TransactionKind::expense : draft_.kind;
    categories_->setChoices(categoryChoices(ledger, kind));
    choose(categoryPicker_, draft_.categoryID);
    if (!isTransfer()) draft_.categoryID = chosenID(categoryPicker_);

    accounts_->setChoices(accountChoices(ledger));
    choose(accountPicker_, draft_.accountID);
    draft_.accountID = chosenID(accountPicker_);

    destinations_->setChoices(accountChoices(ledger, draft_.accountID));
    if (isTransfer()) {
        choose(destinationPicker_, *draft_.transferToAccountID);
        const std::string destination = chosenID(destinationPicker_);
        if (destination.empty()) {
            draft_.transferToAccountID.reset();  // a single account left: no transfer is possible
        } else {
            draft_.transferToAccountID = destination;
        }
    }

    shares_->setPeople(ledger.people());
    updateVisibility();
}

void TransactionEditor::showDraft() {
    showing_ = true;
    const int kindButton = isTransfer() ? transferButton
                           : draft_.kind == TransactionKind::income ? incomeButton
                                                                    : expenseButton;
    kindGroup_->button(kindButton)->setChecked(true);
    amountEdit_->setText(qt(draft_.amountText));
    choose(currencyPicker_, draft_.currency.value_or(std::string(Currencies::ledger)));
    originalAmountEdit_->setText(qt(draft_.originalAmountText));
    if (model_) dateEdit_->setDate(qtDate(model_->calendar().civilDate(draft_.date)));
    noteEdit_->setText(qt(draft_.note));
    const std::vector<PersonShare> shares = draft_.shares;  // filling the people resets them
    fillPickers();
    shares_->setShares(shares);
    attachments_->setAttachments(draft_.attachments);
    showing_ = false;
    convert();
}

void TransactionEditor::updateVisibility() {
    const bool transfer = isTransfer();
    const bool canTransfer = model_ && model_->ledger().accounts().size() >= 2;
    transferButton_->setVisible(canTransfer || transfer);
    form_->setRowVisible(categoryPicker_, !transfer);
    form_->setRowVisible(destinationPicker_, transfer);
    form_->setRowVisible(sharesBox_, draft_.kind == TransactionKind::expense && !transfer);

    const bool foreign = draft_.currency.has_value();
    form_->setRowVisible(originalAmountEdit_, foreign);
    form_->setRowVisible(conversionLabel_, foreign);

    const bool anyone = shares_->rowCount() > 0;
    noPeopleLabel_->setVisible(!anyone);
    sharesView_->setVisible(anyone);
    splitButton_->setVisible(anyone);
    splitButton_->setEnabled(shares_->checkedCount() > 0);
    // As tall as its people, up to four rows; more scroll.
    const int rows = std::clamp(shares_->rowCount(), 1, 4);
    sharesView_->setFixedHeight(sharesView_->horizontalHeader()->sizeHint().height() +
                                rows * sharesView_->verticalHeader()->defaultSectionSize() +
                                2 * sharesView_->frameWidth());
}

void TransactionEditor::setKind(int kindButton) {
    if (kindButton == transferButton) {
        draft_.kind = TransactionKind::expense;
        if (!isTransfer()) draft_.transferToAccountID = std::string();  // the first destination is chosen
    } else {
        draft_.kind = kindButton == incomeButton ? TransactionKind::income : TransactionKind::expense;
        draft_.transferToAccountID.reset();
    }
    showing_ = true;
    fillPickers();
    showing_ = false;
    if (kindButton == transferButton && !isTransfer()) expenseButton_->setChecked(true);
    publishDraft();
}

void TransactionEditor::setDay(const QDate& day) {
    if (showing_ || !model_ || !day.isValid()) return;
    const Calendar& calendar = model_->calendar();
    const CivilDate chosen{day.year(), day.month(), day.day()};
    if (chosen == calendar.civilDate(originalDate_)) {
        draft_.date = originalDate_;
    } else if (const auto noon = calendar.date(chosen, 12)) {
        draft_.date = *noon;
    }
    convert();
    publishDraft();
}

void TransactionEditor::currencyEdited() {
    const std::string code = chosenID(currencyPicker_);
    if (code.empty() || code == Currencies::ledger) {
        draft_.currency.reset();
    } else {
        draft_.currency = code;
    }
    updateVisibility();
    convert();
    publishDraft();
    if (draft_.currency) originalAmountEdit_->setFocus();
}

// Shows the rate of the movement's day and fills the euro amount it gives.
void TransactionEditor::convert() {
    if (showing_ || !model_) return;
    const auto conversion = conversionToEuro(model_->exchangeRates(), draft_.currency.value_or(std::string()),
                                             draft_.originalAmountText, draft_.date, model_->calendar());
    conversionLabel_->setText(conversion ? conversion->line : QString());
    if (conversion && conversion->euroAmountText && *conversion->euroAmountText != draft_.amountText) {
        draft_.amountText = *conversion->euroAmountText;
        amountEdit_->setText(qt(draft_.amountText));
        publishDraft();
    }
}

void TransactionEditor::sharesEdited() {
    auto read = shares_->shares();
    if (auto* shares = std::get_if<std::vector<PersonShare>>(&read)) draft_.shares = std::move(*shares);
    splitButton_->setEnabled(shares_->checkedCount() > 0);
    if (!showing_) publishDraft();
}

void TransactionEditor::splitEqually() {
    const auto amount = draft_.parsedAmount();
    if (!amount) {
        showError(uiText("Scrivi un importo, per esempio 250 o 250,00."));
        amountEdit_->setFocus();
        return;
    }
    shares_->splitEqually(*amount);
}

void TransactionEditor::pickAttachment() {
    const QString path = QFileDialog::getOpenFileName(this, uiText("Scegli il file da allegare"));
    if (!path.isEmpty()) attachFile(path);
}

void TransactionEditor::attachFile(const QString& path) {
    if (!model_) return;
    auto result = model_->importAttachment(std::filesystem::path(path.toStdString()));
    if (const auto* reason = std::get_if<QString>(&result)) {
        showError(*reason);
        return;
    }
    const Attachment& attachment = std::get<Attachment>(result);
    attachments_->append(attachment);
    draft_.attachments.push_back(attachment);
    attachmentsView_->setCurrentIndex(attachments_->index(attachments_->rowCount() - 1));
    publishDraft();
}

void TransactionEditor::openAttachment() {
    const int row = attachmentsView_->currentIndex().row();
    const auto path = attachments_->filePath(row);
    if (!path) return;
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(qt(path->string())))) {
        showError(uiText("Non riesco ad aprire «{name}».",
                         {{"name", attachments_->attachments()[static_cast<std::size_t>(row)].originalName}}));
    }
}

void TransactionEditor::removeAttachment() {
    const int row = attachmentsView_->currentIndex().row();
    if (row < 0 || row >= attachments_->rowCount()) return;
    attachments_->removeAt(row);
    draft_.attachments.erase(draft_.attachments.begin() + row);
    publishDraft();
}

void TransactionEditor::publishDraft() {
    if (model_ && !finished_) model_->setDraft(draft_);
}

void TransactionEditor::showError(const QString& message) {
    errorLabel_->setText(message);
    errorLabel_->setVisible(!message.isEmpty());
}

void TransactionEditor::save() {
    if (!model_ || finished_) return;
    auto shares = shares_->shares();
    if (const auto* problem = std::get_if<QString>(&shares)) {
        showError(*problem);
        sharesView_->setFocus();
        return;
    }
    if (draft_.currency) {
        const auto original = AmountParser::parse(draft_.originalAmountText);
        if (!original || original->sign() <= 0) {
            showError(uiText("Scrivi l'importo in {code}, per esempio 250 o 250,00.", {{"code", *draft_.currency}}));
            originalAmountEdit_->setFocus();
            return;
        }
    }
    if (const auto problem = model_->saveDraft(draft_)) {
        showError(*problem);
        amountEdit_->setFocus();
        return;
    }
    showError({});
    accept();
}

void TransactionEditor::done(int result) {
    finishEditing(result == QDialog::Accepted);
    QDialog::done(result);
}

void TransactionEditor::finishEditing(bool saved) {
    if (finished_) return;
    finished_ = true;
    if (!model_) return;
    model_->setDraft(std::nullopt);
    model_->finishEditingAttachments(saved);
}

}  // namespace vantello::app
