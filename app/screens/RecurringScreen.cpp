#include "app/screens/RecurringScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/RecurringActions.hpp"
#include "app/model/RecurringRulesModel.hpp"
#include "app/screens/RecurringEditor.hpp"
#include "app/screens/ScreenControls.hpp"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace vantello::app {

RecurringScreen::RecurringScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), rules_(new RecurringRulesModel(model, this)) {
    auto* layout = new QVBoxLayout(this);
    auto* header = new QHBoxLayout;
    header->addWidget(titleLabel(uiText("Movimenti ricorrenti")), 1);
    auto* addButton = named(new QPushButton(uiText("Nuovo movimento ricorrente…")), "addRecurringButton",
                            uiText("Nuovo movimento ricorrente"));
    header->addWidget(addButton);
    layout->addLayout(header);
    auto* intro = new QLabel(uiText("Vantello li registra da solo quando arriva la loro data."));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    pages_ = named(new QStackedWidget, "recurringPages", uiText("Movimenti ricorrenti"));
    auto* empty = new QWidget;
    empty->setObjectName(QStringLiteral("recurringEmpty"));
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->addStretch();
    auto* emptyText = new QLabel(uiText("Nessun movimento ricorrente. Affitto, stipendio e abbonamenti qui si "
                                        "registrano da soli."));
    emptyText->setWordWrap(true);
    emptyText->setAlignment(Qt::AlignCenter);
    emptyLayout->addWidget(emptyText);
    auto* emptyButton = named(new QPushButton(uiText("Crea il primo movimento ricorrente")), "emptyAddButton",
                              uiText("Crea il primo movimento ricorrente"));
    emptyLayout->addWidget(emptyButton, 0, Qt::AlignCenter);
    emptyLayout->addStretch();
    pages_->addWidget(empty);

    list_ = named(new QTreeView, "recurringList", uiText("Movimenti ricorrenti"));
    list_->setModel(rules_);
    list_->setRootIsDecorated(false);
    list_->setAlternatingRowColors(true);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setUniformRowHeights(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(RecurringRulesModel::DescriptionColumn, QHeaderView::Stretch);
    for (const int column : {RecurringRulesModel::AccountColumn, RecurringRulesModel::FrequencyColumn,
                             RecurringRulesModel::NextColumn, RecurringRulesModel::AmountColumn}) {
        list_->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    pages_->addWidget(list_);
    layout->addWidget(pages_, 1);

    auto* actions = new QHBoxLayout;
    actions->addStretch();
    editButton_ = named(new QPushButton(uiText("Modifica…")), "editRecurringButton", uiText("Modifica"));
    deleteButton_ = named(new QPushButton(uiText("Elimina…")), "deleteRecurringButton", uiText("Elimina"));
    actions->addWidget(editButton_);
    actions->addWidget(deleteButton_);
    layout->addLayout(actions);

    connect(addButton, &QPushButton::clicked, this, &RecurringScreen::addRule);
    connect(emptyButton, &QPushButton::clicked, this, &RecurringScreen::addRule);
    connect(editButton_, &QPushButton::clicked, this, &RecurringScreen::editSelected);
    connect(deleteButton_, &QPushButton::clicked, this, &RecurringScreen::deleteSelected);
    connect(list_, &QTreeView::activated, this, &RecurringScreen::editSelected);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &RecurringScreen::showState);
    connect(rules_, &QAbstractItemModel::modelReset, this, &RecurringScreen::showState);
    chainTabOrder({addButton, list_, editButton_, deleteButton_});
    showState();
}

std::optional<Uuid> RecurringScreen::selectedRuleID() const {
    const QModelIndex current = list_->selectionModel()->currentIndex();
    if (!current.isValid() || !list_->selectionModel()->isRowSelected(current.row())) return std::nullopt;
    return rules_->ruleID(current.row());
}

void RecurringScreen::showState() {
    pages_->setCurrentIndex(rules_->rowCount() == 0 ? 0 : 1);
    const bool selected = selectedRuleID().has_value();
    editButton_->setEnabled(selected);
    deleteButton_->setEnabled(selected);
    editButton_->setVisible(rules_->rowCount() > 0);
    deleteButton_->setVisible(rules_->rowCount() > 0);
}

void RecurringScreen::addRule() {
    auto* editor = new RecurringEditor(model_, std::nullopt, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void RecurringScreen::editSelected() {
    const auto id = selectedRuleID();
    if (!id) return;
    auto* editor = new RecurringEditor(model_, *id, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void RecurringScreen::deleteSelected() {
    const auto id = selectedRuleID();
    if (!id) return;
    const QString name = rules_->index(rules_->rowOf(*id), RecurringRulesModel::DescriptionColumn).data().toString();
    auto* box = new QMessageBox(QMessageBox::Question,
                                uiText("Eliminare il movimento ricorrente?"),
                                uiText("Eliminare «{nome}»? I movimenti già registrati restano.",
                                       {{"nome", name.toStdString()}}),
                                QMessageBox::NoButton, this);
    box->setObjectName(QStringLiteral("deleteRecurringConfirmation"));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* confirm = box->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteButton"));
    box->setDefaultButton(box->addButton(uiText("Annulla"), QMessageBox::RejectRole));
    const Uuid ruleID = *id;
    connect(confirm, &QPushButton::clicked, this, [this, ruleID] { removeRecurringRule(model_, ruleID); });
    box->open();
}

}  // namespace vantello::app
