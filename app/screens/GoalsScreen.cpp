#include "app/screens/GoalsScreen.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/model/DisplayText.hpp"
#include "app/model/GoalActions.hpp"
#include "app/model/GoalListModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/GoalDialogs.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/settings/ThemeApplication.hpp"

namespace vantello::app {

namespace {

QLabel* label(const QString& text, const QString& objectName = {}) {
    auto* result = new QLabel(text);
    result->setObjectName(objectName);
    result->setWordWrap(true);
    return result;
}

// Reached and on-track goals read as good news, late ones as bad; the word is always there too.
QColor statusColour(GoalStatus status) {
    switch (status) {
        case GoalStatus::completed:
        case GoalStatus::onTrack: return currentPalette().income;
        case GoalStatus::behind:
        case GoalStatus::overdue: return currentPalette().expense;
        case GoalStatus::noDeadline: break;
    }
    return currentPalette().primaryText;
}

QPushButton* cardButton(const QString& text, const QString& objectName, const QString& accessibleName) {
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setAccessibleName(accessibleName);
    return button;
}

// One goal's card; its texts come ready from the list model's row.
class GoalCard : public MovementsCard {
public:
    GoalCard(const GoalListModel& goals, int row, QWidget* parent) : MovementsCard(parent) {
        const QModelIndex at = goals.index(row);
        const auto text = [&](int role) { return at.data(role).toString(); };
        const QString name = at.data(Qt::DisplayRole).toString();
        status_ = static_cast<GoalStatus>(at.data(GoalListModel::StatusRole).toInt());
        setObjectName(QStringLiteral("goalCard"));
        setAccessibleName(name);

        auto* icon = new QLabel;
        icon->setPixmap(symbolIcon(text(GoalListModel::SymbolRole).toStdString()).pixmap(28, 28));
        auto* title = label(name, QStringLiteral("goalName"));
        QFont bold = title->font();
        bold.setBold(true);
        bold.setPointSizeF(bold.pointSizeF() * 1.15);
        title->setFont(bold);
        statusLabel_ = label(text(GoalListModel::StatusTextRole), QStringLiteral("goalStatus"));
        statusLabel_->setWordWrap(false);
        auto* header = new QHBoxLayout;
        header->addWidget(icon);
        header->addWidget(title, 1);
        header->addWidget(statusLabel_);

        auto* bar = new QProgressBar;
        bar->setObjectName(QStringLiteral("goalProgress"));
        bar->setAccessibleName(uiText("Avanzamento di {nome}", {{"nome", name.toStdString()}}));
        bar->setRange(0, 1000);
        bar->setValue(static_cast<int>(at.data(GoalListModel::ProgressRole).toDouble() * 1000 + 0.5));
        bar->setFormat(QStringLiteral("%1 %").arg(qRound(at.data(GoalListModel::ProgressRole).toDouble() * 100)));

        auto* saved = label(uiText("{messi} di {obiettivo}", {{"messi", text(GoalListModel::SavedTextRole).toStdString()},
                                                             {"obiettivo", text(GoalListModel::TargetTextRole).toStdString()}}),
                            QStringLiteral("goalSaved"));
        auto* remaining = label(uiText("Mancano {cifra}", {{"cifra", text(GoalListModel::RemainingTextRole).toStdString()}}),
                                QStringLiteral("goalRemaining"));
        remaining->setWordWrap(false);
        remaining->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* amounts = new QHBoxLayout;
        amounts->addWidget(saved, 1);
        amounts->addWidget(remaining);

        QStringList details;
        if (const QString deadline = text(GoalListModel::DeadlineTextRole); !deadline.isEmpty()) {
            details << uiText("Scadenza: {data}", {{"data", deadline.toStdString()}});
        }
        if (const QString needed = text(GoalListModel::MonthlyNeededTextRole); !needed.isEmpty()) {
            details << uiText("Servono {cifra} al mese", {{"cifra", needed.toStdString()}});
        }
        details << uiText("Ritmo attuale: {cifra} al mese", {{"cifra", text(GoalListModel::PaceTextRole).toStdString()}});
        if (status_ != GoalStatus::completed) {
            const QString projected = text(GoalListModel::ProjectedDateTextRole);
            details << (projected.isEmpty() ? uiText("Nessun versamento ancora")
                                            : uiText("A questo ritmo: {data}", {{"data", projected.toStdString()}}));
        }
        auto* detailText = label(details.join(QStringLiteral(" · ")), QStringLiteral("goalDetails"));

        contributions_ = cardButton(uiText("Versamenti…"), QStringLiteral("goalContributionsButton"),
                                    uiText("Versamenti di {nome}", {{"nome", name.toStdString()}}));
        edit_ = cardButton(uiText("Modifica…"), QStringLiteral("editGoalButton"),
                           uiText("Modifica {nome}", {{"nome", name.toStdString()}}));
        remove_ = cardButton(uiText("Elimina"), QStringLiteral("deleteGoalButton"),
                             uiText("Elimina {nome}", {{"nome", name.toStdString()}}));
        auto* actions = new QHBoxLayout;
        actions->addStretch();
        actions->addWidget(contributions_);
        actions->addWidget(edit_);
        actions->addWidget(remove_);

        auto* layout = new QVBoxLayout(this);
        layout->addLayout(header);
        layout->addWidget(bar);
        layout->addLayout(amounts);
        layout->addWidget(detailText);
        layout->addLayout(actions);
        applyColours();
    }

    QPushButton* contributions_;
    QPushButton* edit_;
    QPushButton* remove_;

protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) applyColours();
        MovementsCard::changeEvent(event);
    }

private:
    void applyColours() {
        QPalette palette = statusLabel_->palette();
        palette.setColor(QPalette::WindowText, statusColour(status_));
        statusLabel_->setPalette(palette);
    }

    GoalStatus status_;
    QLabel* statusLabel_;
};

}  // namespace

GoalsScreen::GoalsScreen(LedgerViewModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    goals_ = new GoalListModel(model, this);

    auto* title = new QLabel(uiText("Obiettivi di risparmio"));
    title->setObjectName(QStringLiteral("goalsTitle"));
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    title->setFont(titleFont);
    auto* create = cardButton(uiText("Nuovo obiettivo…"), QStringLiteral("newGoalButton"), uiText("Nuovo obiettivo"));
    connect(create, &QPushButton::clicked, this, &GoalsScreen::createGoal);
    auto* header = new QHBoxLayout;
    header->addWidget(title, 1);
    header->addWidget(create);

    // The empty state says what belongs here and offers the action that fills it.
    auto* empty = new QWidget;
    empty->setObjectName(QStringLiteral("goalsEmpty"));
    auto* emptyText = label(uiText("Nessun obiettivo."), QStringLiteral("goalsEmptyText"));
    emptyText->setAlignment(Qt::AlignCenter);
    auto* firstGoal = cardButton(uiText("Crea il primo obiettivo"), QStringLiteral("firstGoalButton"),
                                 uiText("Crea il primo obiettivo"));
    connect(firstGoal, &QPushButton::clicked, this, &GoalsScreen::createGoal);
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->addStretch();
    emptyLayout->addWidget(emptyText);
    emptyLayout->addWidget(firstGoal, 0, Qt::AlignHCenter);
    emptyLayout->addStretch();

    cards_ = new QWidget;
    cards_->setObjectName(QStringLiteral("goalCards"));
    cardsLayout_ = new QVBoxLayout(cards_);
    cardsLayout_->setContentsMargins(0, 0, 0, 0);
    cardsLayout_->setSpacing(12);
    auto* scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("goalsScroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(cards_);

    pages_ = new QStackedWidget;
    pages_->setObjectName(QStringLiteral("goalsPages"));
    pages_->addWidget(empty);
    pages_->addWidget(scroll);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addLayout(header);
    layout->addWidget(pages_, 1);

    rebuildCards();
    connect(goals_, &QAbstractItemModel::modelReset, this, &GoalsScreen::rebuildCards);
}

void GoalsScreen::rebuildCards() {
    while (QLayoutItem* item = cardsLayout_->takeAt(0)) {
        // Out of the tree at once, deleted later: the click that led here may come from inside it.
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->setParent(nullptr);
            widget->deleteLater();
        }
        delete item;
    }
    for (int row = 0; row < goals_->rowCount(); ++row) {
        auto* card = new GoalCard(*goals_, row, cards_);
        connect(card->contributions_, &QPushButton::clicked, this, [this, row] { editContributions(row); });
        connect(card->edit_, &QPushButton::clicked, this, [this, row] { editGoal(row); });
        connect(card->remove_, &QPushButton::clicked, this, [this, row] { removeGoal(row); });
        cardsLayout_->addWidget(card);
    }
    cardsLayout_->addStretch();
    pages_->setCurrentIndex(goals_->rowCount() == 0 ? 0 : 1);
}

void GoalsScreen::createGoal() {
    auto* editor = new GoalEditor(model_, std::nullopt, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void GoalsScreen::editGoal(int row) {
    const SavingsGoal* goal = goals_->goal(row);
    if (!goal) return;
    auto* editor = new GoalEditor(model_, *goal, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void GoalsScreen::editContributions(int row) {
    const SavingsGoal* goal = goals_->goal(row);
    if (!goal) return;
    auto* dialog = new GoalContributionDialog(model_, *goal, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void GoalsScreen::removeGoal(int row) {
    const SavingsGoal* goal = goals_->goal(row);
    if (!goal) return;
    const Uuid id = goal->id;
    if (goal->contributions.empty()) {
        deleteGoal(model_, id);
        return;
    }
    auto* ask = new QMessageBox(QMessageBox::Question, uiText("Elimina obiettivo"),
                                uiText("Eliminare «{nome}» e i suoi versamenti?", {{"nome", goal->name}}),
                                QMessageBox::NoButton, this);
    ask->setObjectName(QStringLiteral("deleteGoalQuestion"));
    ask->setWindowModality(Qt::WindowModal);
    ask->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* confirm = ask->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteGoalButton"));
    ask->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    ask->setDefaultButton(qobject_cast<QPushButton*>(ask->buttons().back()));
    connect(confirm, &QPushButton::clicked, this, [this, id] { deleteGoal(model_, id); });
    ask->open();
}

}  // namespace vantello::app
