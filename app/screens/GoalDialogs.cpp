#include "app/screens/GoalDialogs.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QHeaderView>
#include <QTreeView>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/model/DisplayText.hpp"
#include "app/model/GoalActions.hpp"
#include "app/model/GoalContributionsModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <array>

namespace vantello::app {

namespace {

QLabel* errorLabel() {
    auto* label = named(new QLabel, "goalError", uiText("Errore"));
    label->setWordWrap(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, currentPalette().expense);
    label->setPalette(palette);
    label->hide();
    return label;
}

void showError(QLabel* label, const std::optional<QString>& message) {
    label->setText(message.value_or(QString()));
    label->setVisible(message.has_value());
}

QDate qDateOf(Instant moment, const Calendar& calendar) {
    const CivilDate day = calendar.civilDate(moment);
    return {day.year, day.month, day.day};
}

Instant instantOf(const QDate& date, const Calendar& calendar, Instant fallback) {
    return calendar.date({date.year(), date.month(), date.day()}, 12).value_or(fallback);
}

// The symbols a goal can wear; the first is the default.
constexpr std::array<const char*, 12> goalSymbols{"target", "airplane", "car", "house", "gift", "graduationcap",
                                                  "heart", "banknote", "bicycle", "tv", "pawprint", "book"};

}  // namespace

GoalEditor::GoalEditor(LedgerViewModel& model, std::optional<SavingsGoal> goal, QWidget* parent)
    : QDialog(parent), model_(model) {
    setObjectName(QStringLiteral("goalEditor"));
    setWindowModality(Qt::WindowModal);
    const bool isNew = !goal;
    if (goal) {
        goal_ = *goal;
    } else {
        goal_.id = Uuid::random();
        goal_.symbol = goalSymbols.front();
        goal_.createdAt = model.now();
    }
    setWindowTitle(isNew ? uiText("Nuovo obiettivo") : uiText("Modifica obiettivo"));

    name_ = named(new QLineEdit(QString::fromStdString(goal_.name)), "goalNameEdit", uiText("Nome"));
    name_->setPlaceholderText(uiText("Per esempio: Vacanze"));
    symbol_ = named(new QComboBox, "goalSymbolBox", uiText("Simbolo"));
    for (const char* symbol : goalSymbols) symbol_->addItem(symbolIcon(symbol), QString(), QString::fromLatin1(symbol));
    if (const int at = symbol_->findData(QString::fromStdString(goal_.symbol)); at >= 0) symbol_->setCurrentIndex(at);
    target_ = named(new QLineEdit(isNew ? QString() : editableAmount(goal_.target)),
                    "goalTargetEdit", uiText("Cifra da raggiungere"));
    target_->setPlaceholderText(editableAmount(Decimal()));
    target_->setAlignment(Qt::AlignRight);
    hasDeadline_ = named(new QCheckBox(uiText("Entro una data")), "goalDeadlineCheck", uiText("Entro una data"));
    deadline_ = named(new QDateEdit, "goalDeadlineEdit", uiText("Scadenza"));
    deadline_->setCalendarPopup(true);
    const Calendar& calendar = model.calendar();
    const Instant suggested = calendar.adding(CalendarUnit::year, 1, model.now()).value_or(model.now());
    deadline_->setDate(qDateOf(goal_.deadline.value_or(suggested), calendar));
    hasDeadline_->setChecked(goal_.deadline.has_value());
    deadline_->setEnabled(goal_.deadline.has_value());
    connect(hasDeadline_, &QCheckBox::toggled, deadline_, &QWidget::setEnabled);
    error_ = errorLabel();

    auto* form = new QFormLayout;
    form->addRow(uiText("Nome"), name_);
    form->addRow(uiText("Simbolo"), symbol_);
    form->addRow(uiText("Cifra da raggiungere"), target_);
    form->addRow(hasDeadline_, deadline_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    QPushButton* saveButton = buttons->button(QDialogButtonBox::Save);
    saveButton->setText(uiText("Salva"));
    saveButton->setObjectName(QStringLiteral("goalSaveButton"));
    saveButton->setAccessibleName(uiText("Salva"));
    saveButton->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setText(uiText("Annulla"));
    buttons->button(QDialogButtonBox::Cancel)->setAccessibleName(uiText("Annulla"));
    connect(buttons, &QDialogButtonBox::accepted, this, &GoalEditor::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(error_);
    layout->addWidget(buttons);
    setMinimumWidth(380);
}

void GoalEditor::save() {
    const auto target = typedAmount(target_->text());
    if (const auto* message = std::get_if<QString>(&target)) {
        showError(error_, *message);
        target_->setFocus();
        return;
    }
    SavingsGoal goal = goal_;
    goal.name = name_->text().toStdString();
    goal.symbol = symbol_->currentData().toString().toStdString();
    goal.target = std::get<Decimal>(target);
    goal.deadline = hasDeadline_->isChecked()
                        ? std::optional(instantOf(deadline_->date(), model_.calendar(), model_.now()))
                        : std::nullopt;
    const auto failure = saveGoal(model_, goal);
    showError(error_, failure);
    if (!failure) accept();
}

GoalContributionDialog::GoalContributionDialog(LedgerViewModel& model, const SavingsGoal& goal, QWidget* parent)
    : QDialog(parent), model_(model), goalID_(goal.id) {
    setObjectName(QStringLiteral("goalContributionDialog"));
    setWindowModality(Qt::WindowModal);
    setWindowTitle(uiText("Versamenti: {nome}", {{"nome", goal.name}}));
    contributions_ = new GoalContributionsModel(model, goal.id, this);

    deposit_ = named(new QRadioButton(uiText("Versamento")), "depositRadio", uiText("Versamento"));
    withdrawal_ = named(new QRadioButton(uiText("Prelievo")), "withdrawalRadio", uiText("Prelievo"));
    deposit_->setChecked(true);
    auto* kinds = new QHBoxLayout;
    kinds->addWidget(deposit_);
    kinds->addWidget(withdrawal_);
    kinds->addStretch();
    amount_ = named(new QLineEdit, "contributionAmountEdit", uiText("Importo in euro"));
    amount_->setPlaceholderText(editableAmount(Decimal()));
    amount_->setAlignment(Qt::AlignRight);
    date_ = named(new QDateEdit(qDateOf(model.now(), model.calendar())), "contributionDateEdit", uiText("Data"));
    date_->setCalendarPopup(true);
    note_ = named(new QLineEdit, "contributionNoteEdit", uiText("Nota"));
    error_ = errorLabel();
    auto* add = named(new QPushButton(uiText("Aggiungi")), "addContributionButton", uiText("Aggiungi versamento"));
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, &GoalContributionDialog::addTyped);

    auto* form = new QFormLayout;
    form->addRow(uiText("Tipo"), kinds);
    form->addRow(uiText("Importo"), amount_);
    form->addRow(uiText("Data"), date_);
    form->addRow(uiText("Nota"), note_);

    list_ = named(new QTreeView, "contributionsList", uiText("Versamenti registrati"));
    list_->setModel(contributions_);
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(GoalContributionsModel::noteColumn, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(GoalContributionsModel::dayColumn, QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(GoalContributionsModel::amountColumn, QHeaderView::ResizeToContents);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setMinimumHeight(140);
    remove_ = named(new QPushButton(uiText("Rimuovi")), "removeContributionButton", uiText("Rimuovi versamento"));
    remove_->setAutoDefault(false);
    remove_->setEnabled(false);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { remove_->setEnabled(list_->selectionModel()->hasSelection()); });
    connect(contributions_, &QAbstractItemModel::modelReset, this, [this] { remove_->setEnabled(false); });
    connect(remove_, &QPushButton::clicked, this, &GoalContributionDialog::removeSelected);
    auto* empty = named(new QLabel(uiText("Nessun versamento registrato.")), "contributionsEmpty",
                        uiText("Nessun versamento registrato."));
    auto updateEmpty = [this, empty] {
        empty->setVisible(contributions_->rowCount() == 0);
        list_->setVisible(contributions_->rowCount() > 0);
    };
    updateEmpty();
    connect(contributions_, &QAbstractItemModel::modelReset, this, updateEmpty);

    auto* close = named(new QPushButton(uiText("Fine")), "closeContributionsButton", uiText("Fine"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* addRow = new QHBoxLayout;
    addRow->addStretch();
    addRow->addWidget(add);
    auto* listTitle = new QLabel(uiText("Versamenti registrati"));
    QFont bold = listTitle->font();
    bold.setBold(true);
    listTitle->setFont(bold);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(remove_);
    bottom->addStretch();
    bottom->addWidget(close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(error_);
    layout->addLayout(addRow);
    layout->addWidget(listTitle);
    layout->addWidget(empty);
    layout->addWidget(list_, 1);
    layout->addLayout(bottom);
    setMinimumWidth(420);
    QWidget* const order[] = {deposit_, withdrawal_, amount_, date_, note_, add, list_, remove_, close};
    for (std::size_t at = 1; at < std::size(order); ++at) {
        setTabOrder(order[at - 1], order[at]);
    }
}

void GoalContributionDialog::addTyped() {
    const auto amount = typedAmount(amount_->text());
    if (const auto* message = std::get_if<QString>(&amount)) {
        showError(error_, *message);
        amount_->setFocus();
        return;
    }
    const auto failure =
        addGoalContribution(model_, goalID_, std::get<Decimal>(amount), withdrawal_->isChecked(),
                            instantOf(date_->date(), model_.calendar(), model_.now()), note_->text().trimmed().toStdString());
    showError(error_, failure);
    if (!failure) {
        amount_->clear();
        note_->clear();
        amount_->setFocus();
    }
}

void GoalContributionDialog::removeSelected() {
    const QModelIndexList selected = list_->selectionModel()->selectedRows();
    if (selected.isEmpty()) return;
    if (const auto id = contributions_->contributionID(selected.front().row())) {
        removeGoalContribution(model_, goalID_, *id);
    }
}

}  // namespace vantello::app
