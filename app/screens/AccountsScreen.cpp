#include "app/screens/AccountsScreen.hpp"

#include "app/model/AccountActions.hpp"
#include "app/model/AccountListModel.hpp"
#include "app/model/DisplayText.hpp"
#include "app/screens/AccountDialog.hpp"
#include "app/screens/MovementsCard.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

QFont scaled(QFont font, qreal factor, bool bold) {
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QPushButton* button(const QString& text, const QString& name, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAccessibleName(text);
    return made;
}

// Enter edits the current row and Delete deletes it, as in the other lists of the application.
class ListKeys : public QObject {
public:
    explicit ListKeys(AccountsScreen* screen) : QObject(screen), screen_(screen) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            screen_->editSelected();
            return true;
        }
        if (key == Qt::Key_Delete) {
            screen_->deleteSelected();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    AccountsScreen* screen_;
};

QString deletionConsequence(const AccountDeletion& deletion) {
    QString text;
    if (deletion.movedMovements == 0) {
        text = uiText("Nessun movimento usa questo conto.");
    } else if (deletion.movedMovements == 1) {
        text = uiText("1 movimento passerà al conto principale.");
    } else {
        text = uiText("{count} movimenti passeranno al conto principale.",
                      {{"count", std::to_string(deletion.movedMovements)}});
    }
    if (deletion.dissolvedTransfers == 1) {
        text += QLatin1Char(' ') + uiText("1 giroconto con il conto principale diventerà una normale uscita.");
    } else if (deletion.dissolvedTransfers > 1) {
        text += QLatin1Char(' ') + uiText("{count} giroconti con il conto principale diventeranno normali uscite.",
                                          {{"count", std::to_string(deletion.dissolvedTransfers)}});
    }
    return text;
}

}  // namespace

AccountsScreen::AccountsScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), accounts_(new AccountListModel(this)) {
    setAccessibleName(uiText("Conti"));

    auto* title = new QLabel(uiText("Conti"));
    title->setObjectName(QStringLiteral("accountsTitle"));
    title->setFont(scaled(title->font(), 1.5, true));
    auto* add = button(uiText("Nuovo conto"), QStringLiteral("addAccountButton"), this);
    editButton_ = button(uiText("Modifica…"), QStringLiteral("editAccountButton"), this);
    deleteButton_ = button(uiText("Elimina"), QStringLiteral("deleteAccountButton"), this);
    connect(add, &QPushButton::clicked, this, &AccountsScreen::addAccount);
    connect(editButton_, &QPushButton::clicked, this, &AccountsScreen::editSelected);
    connect(deleteButton_, &QPushButton::clicked, this, &AccountsScreen::deleteSelected);

    auto* header = new QHBoxLayout;
    header->addWidget(title);
    header->addStretch(1);
    header->addWidget(add);
    header->addWidget(editButton_);
    header->addWidget(deleteButton_);

    auto* hint = new QLabel(uiText("Il saldo di oggi di ogni conto: saldo iniziale più entrate, meno uscite, "
                                   "più e meno i giroconti. Il conto principale non si può eliminare."));
    hint->setObjectName(QStringLiteral("accountsHint"));
    hint->setWordWrap(true);

    view_ = new QTreeView(this);
    view_->setObjectName(QStringLiteral("accountList"));
    view_->setAccessibleName(uiText("Conti"));
    view_->setModel(accounts_);
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setFrameShape(QFrame::NoFrame);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setIconSize(QSize(20, 20));
    view_->header()->setStretchLastSection(false);
    view_->header()->setSectionResizeMode(AccountListModel::nameColumn, QHeaderView::Stretch);
    view_->header()->setSectionResizeMode(AccountListModel::balanceColumn, QHeaderView::ResizeToContents);
    view_->header()->setSectionResizeMode(AccountListModel::thresholdColumn, QHeaderView::ResizeToContents);
    view_->header()->setMinimumSectionSize(120);
    view_->installEventFilter(new ListKeys(this));
    connect(view_, &QTreeView::doubleClicked, this, &AccountsScreen::editSelected);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &AccountsScreen::updateButtons);

    auto* card = new MovementsCard(this);
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(view_);

    notice_ = new QLabel;
    notice_->setObjectName(QStringLiteral("accountsNotice"));
    notice_->setWordWrap(true);
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice_->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    layout->addLayout(header);
    layout->addWidget(hint);
    layout->addWidget(card, 1);
    layout->addWidget(notice_);

    setTabOrder(add, editButton_);
    setTabOrder(editButton_, deleteButton_);
    setTabOrder(deleteButton_, view_);

    connect(&model_, &LedgerViewModel::ledgerChanged, this, &AccountsScreen::refresh);
    refresh();
}

void AccountsScreen::refresh() {
    const std::optional<std::string> selected = selectedAccountID();
    accounts_->setLedger(model_.ledger());
    if (selected && selectedAccountID() != selected) selectAccount(*selected);
    updateButtons();
}

std::optional<std::string> AccountsScreen::selectedAccountID() const {
    const QModelIndexList rows = view_->selectionModel()->selectedRows();
    if (rows.isEmpty()) return std::nullopt;
    if (const Account* account = accounts_->account(rows.front().row())) return account->id;
    return std::nullopt;
}

void AccountsScreen::selectAccount(std::string_view accountID) {
    const int row = accounts_->rowOf(accountID);
    if (row < 0) return;
    view_->selectionModel()->setCurrentIndex(accounts_->index(row, 0),
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view_->scrollTo(accounts_->index(row, 0));
}

QString AccountsScreen::noticeText() const { return notice_->isHidden() ? QString() : notice_->text(); }

void AccountsScreen::showNotice(const QString& text) {
    notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
}

void AccountsScreen::updateButtons() {
    const bool any = selectedAccountID().has_value();
    editButton_->setEnabled(any);
    deleteButton_->setEnabled(any);
}

void AccountsScreen::addAccount() {
    AccountForm fresh;
    fresh.symbol = "building.columns";
    auto* sheet = new AccountDialog(
        fresh, true,
        [this](const AccountForm& typed) -> std::optional<QString> {
            auto added = addAccountFromForm(model_, typed);
            if (auto* error = std::get_if<QString>(&added)) return *error;
            showNotice({});
            selectAccount(std::get<std::string>(added));
            return std::nullopt;
        },
        this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void AccountsScreen::editSelected() {
    const std::optional<std::string> id = selectedAccountID();
    const Account* account = id ? model_.ledger().account(*id) : nullptr;
    if (!account) return;
    AccountForm form;
    form.name = QString::fromStdString(account->name);
    form.symbol = account->symbol;
    form.lowBalanceThreshold = editableAmountText(account->lowBalanceThreshold);
    auto* sheet = new AccountDialog(
        form, false,
        [this, accountID = *id](const AccountForm& typed) -> std::optional<QString> {
            auto error = changeAccount(model_, accountID, typed);
            if (!error) showNotice({});
            return error;
        },
        this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void AccountsScreen::deleteSelected() {
    const std::optional<std::string> id = selectedAccountID();
    const Account* account = id ? model_.ledger().account(*id) : nullptr;
    if (!account) return;
    if (account->id == mainAccountID) {
        // The core keeps the main account; its message says so.
        const std::variant<int, QString> outcome = removeAccount(model_, account->id);
        if (const auto* refused = std::get_if<QString>(&outcome)) showNotice(*refused);
        return;
    }

    auto* ask = new QMessageBox(QMessageBox::Warning, uiText("Elimina conto"),
                                uiText("Eliminare il conto «{name}»?", {{"name", account->name}}),
                                QMessageBox::NoButton, this);
    ask->setObjectName(QStringLiteral("deleteAccountConfirmation"));
    ask->setInformativeText(deletionConsequence(accountDeletionPreview(model_.ledger(), account->id)));
    QPushButton* confirm = ask->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteButton"));
    confirm->setAccessibleName(confirm->text());
    QPushButton* cancel = ask->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    cancel->setAccessibleName(cancel->text());
    ask->setDefaultButton(cancel);
    ask->setEscapeButton(cancel);
    ask->setWindowModality(Qt::WindowModal);
    ask->setAttribute(Qt::WA_DeleteOnClose);
    connect(confirm, &QPushButton::clicked, this, [this, accountID = account->id, name = account->name] {
        const std::variant<int, QString> outcome = removeAccount(model_, accountID);
        if (const auto* refused = std::get_if<QString>(&outcome)) {
            showNotice(*refused);
            return;
        }
        const int moved = std::get<int>(outcome);
        if (moved == 0) {
            showNotice(uiText("Conto «{name}» eliminato.", {{"name", name}}));
        } else if (moved == 1) {
            showNotice(uiText("Conto «{name}» eliminato: 1 movimento spostato sul conto principale.", {{"name", name}}));
        } else {
            showNotice(uiText("Conto «{name}» eliminato: {count} movimenti spostati sul conto principale.",
                              {{"name", name}, {"count", std::to_string(moved)}}));
        }
    });
    ask->open();
}

}  // namespace vantello::app
