#include "app/screens/RulesScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/RuleActions.hpp"
#include "app/model/RuleListModel.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/screens/RuleEditor.hpp"
#include "app/screens/ScreenControls.hpp"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace vantello::app {

RulesScreen::RulesScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), rules_(new RuleListModel(model, this)) {
    auto* layout = new QVBoxLayout(this);
    auto* header = new QHBoxLayout;
    header->addWidget(titleLabel(uiText("Regole di categoria")), 1);
    auto* addButton = named(new QPushButton(uiText("Nuova regola…")), "addRuleButton", uiText("Nuova regola"));
    header->addWidget(addButton);
    layout->addLayout(header);
    auto* intro = new QLabel(uiText("Vale la prima regola della lista che trova il suo testo nella nota del "
                                    "movimento."));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    pages_ = named(new QStackedWidget, "rulesPages", uiText("Regole di categoria"));
    auto* empty = new QWidget;
    empty->setObjectName(QStringLiteral("rulesEmpty"));
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->addStretch();
    auto* emptyText = new QLabel(uiText("Nessuna regola. Con una regola i movimenti con «Esselunga» nella nota "
                                        "vanno da soli in Spesa."));
    emptyText->setWordWrap(true);
    emptyText->setAlignment(Qt::AlignCenter);
    emptyLayout->addWidget(emptyText);
    auto* emptyButton = named(new QPushButton(uiText("Crea la prima regola")), "emptyAddButton",
                              uiText("Crea la prima regola"));
    emptyLayout->addWidget(emptyButton, 0, Qt::AlignCenter);
    emptyLayout->addStretch();
    pages_->addWidget(empty);

    list_ = named(new QTreeView, "rulesList", uiText("Regole di categoria"));
    list_->setModel(rules_);
    list_->setRootIsDecorated(false);
    list_->setAlternatingRowColors(true);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setUniformRowHeights(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(RuleListModel::PriorityColumn, QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(RuleListModel::PatternColumn, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(RuleListModel::CategoryColumn, QHeaderView::Stretch);
    pages_->addWidget(list_);
    layout->addWidget(pages_, 1);

    auto* actions = new QHBoxLayout;
    upButton_ = named(new QPushButton(uiText("Su")), "moveUpButton", uiText("Sposta su"));
    downButton_ = named(new QPushButton(uiText("Giù")), "moveDownButton", uiText("Sposta giù"));
    upButton_->setToolTip(uiText("Sposta su: la regola vale prima delle altre"));
    downButton_->setToolTip(uiText("Sposta giù"));
    upButton_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Up));
    downButton_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Down));
    editButton_ = named(new QPushButton(uiText("Modifica…")), "editRuleButton", uiText("Modifica"));
    deleteButton_ = named(new QPushButton(uiText("Elimina…")), "deleteRuleButton", uiText("Elimina"));
    actions->addWidget(upButton_);
    actions->addWidget(downButton_);
    actions->addStretch();
    actions->addWidget(editButton_);
    actions->addWidget(deleteButton_);
    layout->addLayout(actions);

    // Trying a note against the rules.
    auto* tryCard = new MovementsCard;
    tryCard->setObjectName(QStringLiteral("ruleTryCard"));
    auto* tryLayout = new QVBoxLayout(tryCard);
    auto* tryTitle = new QLabel(uiText("Prova una nota"));
    QFont strong = tryTitle->font();
    strong.setBold(true);
    tryTitle->setFont(strong);
    tryLayout->addWidget(tryTitle);
    auto* tryRow = new QHBoxLayout;
    tryEdit_ = named(new QLineEdit, "ruleTryEdit", uiText("Nota da provare"));
    tryEdit_->setPlaceholderText(uiText("Scrivi la nota di un movimento"));
    tryEdit_->setClearButtonEnabled(true);
    tryKind_ = named(new QComboBox, "ruleTryKind", uiText("Tipo"));
    tryKind_->addItem(uiText("Uscita"), static_cast<int>(TransactionKind::expense));
    tryKind_->addItem(uiText("Entrata"), static_cast<int>(TransactionKind::income));
    tryRow->addWidget(tryEdit_, 1);
    tryRow->addWidget(tryKind_);
    tryLayout->addLayout(tryRow);
    tryResult_ = named(new QLabel, "ruleTryResult", uiText("Categoria risultante"));
    tryResult_->setWordWrap(true);
    tryLayout->addWidget(tryResult_);
    layout->addWidget(tryCard);

    connect(addButton, &QPushButton::clicked, this, &RulesScreen::addRule);
    connect(emptyButton, &QPushButton::clicked, this, &RulesScreen::addRule);
    connect(editButton_, &QPushButton::clicked, this, &RulesScreen::editSelected);
    connect(deleteButton_, &QPushButton::clicked, this, &RulesScreen::deleteSelected);
    connect(upButton_, &QPushButton::clicked, this, &RulesScreen::moveSelectedUp);
    connect(downButton_, &QPushButton::clicked, this, &RulesScreen::moveSelectedDown);
    connect(list_, &QTreeView::activated, this, &RulesScreen::editSelected);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &RulesScreen::showState);
    connect(rules_, &QAbstractItemModel::modelReset, this, &RulesScreen::showState);
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &RulesScreen::showTry);
    connect(tryEdit_, &QLineEdit::textChanged, this, &RulesScreen::showTry);
    connect(tryKind_, &QComboBox::currentIndexChanged, this, &RulesScreen::showTry);
    chainTabOrder({addButton, list_, upButton_, downButton_, editButton_, deleteButton_, tryEdit_, tryKind_});
    showState();
    showTry();
}

std::optional<Uuid> RulesScreen::selectedRuleID() const {
    const QModelIndex current = list_->selectionModel()->currentIndex();
    if (!current.isValid() || !list_->selectionModel()->isRowSelected(current.row())) return std::nullopt;
    return rules_->ruleID(current.row());
}

bool RulesScreen::selectRule(const Uuid& ruleID) {
    const int row = rules_->rowOf(ruleID);
    if (row < 0) return false;
    list_->selectionModel()->setCurrentIndex(rules_->index(row, 0),
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    return true;
}

void RulesScreen::showState() {
    const int count = rules_->rowCount();
    pages_->setCurrentIndex(count == 0 ? 0 : 1);
    const auto id = selectedRuleID();
    const int row = id ? rules_->rowOf(*id) : -1;
    for (QPushButton* button : {editButton_, deleteButton_, upButton_, downButton_}) button->setVisible(count > 0);
    editButton_->setEnabled(row >= 0);
    deleteButton_->setEnabled(row >= 0);
    upButton_->setEnabled(row > 0);
    downButton_->setEnabled(row >= 0 && row < count - 1);
}

void RulesScreen::showTry() {
    const auto kind = static_cast<TransactionKind>(tryKind_->currentData().toInt());
    const QString answer = ruleTryText(model_.ledger(), tryEdit_->text(), kind);
    tryResult_->setText(answer.isEmpty() ? uiText("Scrivi una nota per vedere in quale categoria andrebbe.")
                                         : answer);
}

void RulesScreen::addRule() {
    auto* editor = new RuleEditor(model_, std::nullopt, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void RulesScreen::editSelected() {
    const auto id = selectedRuleID();
    if (!id) return;
    auto* editor = new RuleEditor(model_, *id, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void RulesScreen::deleteSelected() {
    const auto id = selectedRuleID();
    if (!id) return;
    const QString pattern = rules_->index(rules_->rowOf(*id), RuleListModel::PatternColumn).data().toString();
    auto* box = new QMessageBox(QMessageBox::Question, uiText("Eliminare la regola?"),
                                uiText("Eliminare la regola «{testo}»? I movimenti già archiviati restano nella "
                                       "loro categoria.",
                                       {{"testo", pattern.toStdString()}}),
                                QMessageBox::NoButton, this);
    box->setObjectName(QStringLiteral("deleteRuleConfirmation"));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* confirm = box->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteButton"));
    box->setDefaultButton(box->addButton(uiText("Annulla"), QMessageBox::RejectRole));
    const Uuid ruleID = *id;
    connect(confirm, &QPushButton::clicked, this, [this, ruleID] { removeCategoryRule(model_, ruleID); });
    box->open();
}

void RulesScreen::moveSelectedUp() { moveSelected(true); }
void RulesScreen::moveSelectedDown() { moveSelected(false); }

void RulesScreen::moveSelected(bool up) {
    const auto id = selectedRuleID();
    if (!id) return;
    moveRule(model_, *id, up ? MoveDirection::up : MoveDirection::down);
    selectRule(*id);
    list_->setFocus();
}

}  // namespace vantello::app
