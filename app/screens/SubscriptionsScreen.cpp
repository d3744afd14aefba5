#include "app/screens/SubscriptionsScreen.hpp"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerAnalyses.hpp"
#include "app/model/SubscriptionActions.hpp"
#include "app/model/SubscriptionListModel.hpp"
#include "app/settings/ThemeApplication.hpp"

namespace vantello::app {

namespace {

QPushButton* button(const QString& text, const char* objectName, const QString& accessibleName) {
    auto* result = new QPushButton(text);
    result->setObjectName(QString::fromLatin1(objectName));
    result->setAccessibleName(accessibleName);
    return result;
}

}  // namespace

SubscriptionsScreen::SubscriptionsScreen(LedgerViewModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    subscriptions_ = new SubscriptionListModel(model, this);

    auto* title = new QLabel(uiText("Abbonamenti"));
    title->setObjectName(QStringLiteral("subscriptionsTitle"));
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    title->setFont(titleFont);
    auto* intro = new QLabel(uiText("Addebiti che tornano ogni settimana, mese o anno, trovati tra i movimenti."));
    intro->setWordWrap(true);
    total_ = new QLabel;
    total_->setObjectName(QStringLiteral("subscriptionsTotal"));
    total_->setWordWrap(true);

    table_ = new QTreeView;
    table_->setObjectName(QStringLiteral("subscriptionsTable"));
    table_->setAccessibleName(uiText("Abbonamenti"));
    table_->setModel(subscriptions_);
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setAllColumnsShowFocus(true);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->header()->setStretchLastSection(false);
    table_->header()->setSectionResizeMode(SubscriptionListModel::nameColumn, QHeaderView::Stretch);
    table_->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    ignore_ = button(uiText("Non è un abbonamento"), "ignoreSubscriptionButton", uiText("Non è un abbonamento"));
    ignore_->setToolTip(uiText("Non mostrarlo più tra gli abbonamenti"));
    recurring_ = button(uiText("Rendi ricorrente"), "recurringSubscriptionButton", uiText("Rendi ricorrente"));
    recurring_->setToolTip(uiText("Crea un movimento ricorrente dal prossimo addebito"));
    connect(ignore_, &QPushButton::clicked, this, &SubscriptionsScreen::ignoreSelected);
    connect(recurring_, &QPushButton::clicked, this, &SubscriptionsScreen::makeSelectedRecurring);
    message_ = new QLabel;
    message_->setObjectName(QStringLiteral("subscriptionsMessage"));
    message_->setWordWrap(true);
    message_->hide();
    auto* actions = new QHBoxLayout;
    actions->addWidget(message_, 1);
    actions->addStretch();
    actions->addWidget(ignore_);
    actions->addWidget(recurring_);

    auto* list = new QWidget;
    auto* listLayout = new QVBoxLayout(list);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->addWidget(table_, 1);
    listLayout->addLayout(actions);

    auto* empty = new QLabel(uiText("Nessun abbonamento trovato. Compariranno qui gli addebiti che si ripetono "
                                    "ogni settimana, mese o anno."));
    empty->setObjectName(QStringLiteral("subscriptionsEmpty"));
    empty->setWordWrap(true);
    empty->setAlignment(Qt::AlignCenter);

    pages_ = new QStackedWidget;
    pages_->setObjectName(QStringLiteral("subscriptionsPages"));
    pages_->addWidget(empty);
    pages_->addWidget(list);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(title);
    layout->addWidget(intro);
    layout->addWidget(total_);
    layout->addWidget(pages_, 1);

    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SubscriptionsScreen::updateActions);
    connect(subscriptions_, &QAbstractItemModel::modelReset, this, &SubscriptionsScreen::updateActions);
    connect(subscriptions_, &QAbstractItemModel::modelReset, this, &SubscriptionsScreen::fitColumns);
    fitColumns();
    updateActions();
    setTabOrder(table_, ignore_);
    setTabOrder(ignore_, recurring_);
}

std::optional<std::string> SubscriptionsScreen::selectedKey() const {
    const QModelIndexList rows = table_->selectionModel()->selectedRows();
    if (rows.isEmpty()) return std::nullopt;
    if (const DetectedSubscription* found = subscriptions_->subscription(rows.front().row())) return found->id;
    return std::nullopt;
}

void SubscriptionsScreen::fitColumns() {
    // The figures get room to breathe beside each other; the name takes what is left.
    for (int column = SubscriptionListModel::frequencyColumn; column < SubscriptionListModel::columnTotal; ++column) {
        table_->resizeColumnToContents(column);
        table_->setColumnWidth(column, table_->columnWidth(column) + 20);
    }
}

void SubscriptionsScreen::updateActions() {
    pages_->setCurrentIndex(subscriptions_->rowCount() == 0 ? 0 : 1);
    const Decimal yearly = yearlyTotal(model_.analyses().subscriptions());
    total_->setText(uiText("In tutto {year} l'anno, in media {month} al mese.",
                           {{"year", euroText(yearly).toStdString()},
                            {"month", euroText(yearly.dividedBy(12)->rounded(2)).toStdString()}}));
    total_->setVisible(subscriptions_->rowCount() > 0);
    const auto key = selectedKey();
    const DetectedSubscription* selected = key ? subscriptions_->subscription(subscriptions_->rowOf(*key)) : nullptr;
    ignore_->setEnabled(selected != nullptr);
    recurring_->setEnabled(selected != nullptr && !selected->isRecurring);
}

void SubscriptionsScreen::showOutcome(const std::optional<QString>& error, const QString& done) {
    QPalette palette = message_->palette();
    palette.setColor(QPalette::WindowText, error ? currentPalette().expense : currentPalette().primaryText);
    message_->setPalette(palette);
    message_->setText(error.value_or(done));
    message_->show();
}

void SubscriptionsScreen::ignoreSelected() {
    const auto key = selectedKey();
    if (!key) return;
    const QString name = QString::fromStdString(subscriptions_->subscription(subscriptions_->rowOf(*key))->name);
    showOutcome(ignoreDetectedSubscription(model_, *key),
                uiText("«{nome}» non comparirà più tra gli abbonamenti.", {{"nome", name.toStdString()}}));
}

void SubscriptionsScreen::makeSelectedRecurring() {
    const auto key = selectedKey();
    if (!key) return;
    const QString name = QString::fromStdString(subscriptions_->subscription(subscriptions_->rowOf(*key))->name);
    showOutcome(makeDetectedSubscriptionRecurring(model_, *key),
                uiText("«{nome}» è ora un movimento ricorrente.", {{"nome", name.toStdString()}}));
}

}  // namespace vantello::app
