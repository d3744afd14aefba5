#include "app/screens/MonthSwitcher.hpp"
#include "app/screens/MovementsScreen.hpp"

#include "app/model/AlertActions.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/MonthMovementsModel.hpp"
#include "app/model/MonthTiles.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/screens/MovementsDelegate.hpp"
#include "app/screens/SummaryTile.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

constexpr int maximumTiles = 5;
// More alerts than this would push the list off the screen; the rest wait for these to go.
constexpr std::size_t maximumAlerts = 4;

QString qText(const std::string& text) { return QString::fromStdString(text); }

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

}  // namespace

MovementsScreen::MovementsScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), listModel_(new MonthMovementsModel(model, this)) {
    setObjectName(QStringLiteral("movementsScreen"));
    setAccessibleName(uiText("Movimenti"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);
    buildHeader(layout);
    buildTiles(layout);
    buildBanners(layout);
    buildPages(layout);

    connect(&model_, &LedgerViewModel::ledgerChanged, this, &MovementsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedMonthChanged, this, &MovementsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedAccountChanged, this, &MovementsScreen::refresh);
    connect(&model_, &LedgerViewModel::demoChanged, this, &MovementsScreen::refresh);
    connect(&model_, &LedgerViewModel::alertSettingsChanged, this, &MovementsScreen::refresh);
    connect(&model_, &LedgerViewModel::salaryReminderChanged, this, &MovementsScreen::refresh);
    refresh();
}

// ---- building

void MovementsScreen::buildHeader(QVBoxLayout* layout) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);

    monthSwitcher_ = new MonthSwitcher(model_, this);

    accountLabel_ = new QLabel(uiText("Mostra un solo conto"), this);
    accountFilter_ = new QComboBox(this);
    accountFilter_->setObjectName(QStringLiteral("accountFilter"));
    accountFilter_->setAccessibleName(uiText("Mostra un solo conto"));
    accountFilter_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    accountLabel_->setBuddy(accountFilter_);
    connect(accountFilter_, &QComboBox::activated, this, [this](int index) {
        const QString id = accountFilter_->itemData(index).toString();
        model_.setSelectedAccountID(id.isEmpty() ? std::nullopt : std::optional<std::string>(id.toStdString()));
    });

    addExpense_ = button(uiText("Aggiungi uscita"), QStringLiteral("addExpenseButton"), this);
    addExpense_->setIcon(symbolIcon("plus.circle"));
    connect(addExpense_, &QPushButton::clicked, this, [this] { Q_EMIT newRequested(TransactionKind::expense); });
    addIncome_ = button(uiText("Aggiungi entrata"), QStringLiteral("addIncomeButton"), this);
    addIncome_->setIcon(symbolIcon("plus.circle"));
    connect(addIncome_, &QPushButton::clicked, this, [this] { Q_EMIT newRequested(TransactionKind::income); });

    row->addWidget(monthSwitcher_);
    row->addStretch(1);
    row->addWidget(accountLabel_);
    row->addWidget(accountFilter_);
    row->addSpacing(12);
    row->addWidget(addExpense_);
    row->addWidget(addIncome_);
    layout->addLayout(row);
}

void MovementsScreen::buildTiles(QVBoxLayout* layout) {
    tilesRow_ = new QWidget(this);
    tilesRow_->setObjectName(QStringLiteral("summaryTiles"));
    // As tall as the tallest tile, and every tile as tall as the row.
    tilesRow_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* row = new QHBoxLayout(tilesRow_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    for (int index = 0; index < maximumTiles; ++index) {
        auto* tile = new SummaryTile(tilesRow_);
        tiles_.push_back(tile);
        row->addWidget(tile, 1);
    }
    layout->addWidget(tilesRow_);
}

void MovementsScreen::buildBanners(QVBoxLayout* layout) {
    alertsBanner_ = new MovementsCard(this);
    alertsBanner_->setObjectName(QStringLiteral("alertsBanner"));
    alertsBanner_->setAccessibleName(uiText("Avvisi"));
    alertsBanner_->setStripe([] { return currentPalette().expense; });
    alertsLayout_ = new QVBoxLayout(alertsBanner_);
    alertsLayout_->setContentsMargins(0, 0, 0, 0);
    alertsLayout_->setSpacing(8);
    layout->addWidget(alertsBanner_);

    salaryBanner_ = new MovementsCard(this);
    salaryBanner_->setObjectName(QStringLiteral("salaryBanner"));
    salaryBanner_->setStripe([] { return currentPalette().accent; });
    auto* row = new QHBoxLayout(salaryBanner_);
    row->setContentsMargins(0, 0, 0, 0);
    salaryText_ = new QLabel(salaryBanner_);
    salaryText_->setObjectName(QStringLiteral("salaryBannerText"));
    salaryText_->setWordWrap(true);
    salaryAdd_ = button(uiText("Aggiungi stipendio"), QStringLiteral("addSalaryButton"), salaryBanner_);
    connect(salaryAdd_, &QPushButton::clicked, this, &MovementsScreen::salaryRequested);
    salaryLater_ = button(uiText("Ricordamelo più tardi"), QStringLiteral("postponeSalaryButton"), salaryBanner_);
    connect(salaryLater_, &QPushButton::clicked, &model_, &LedgerViewModel::postponeSalaryBanner);
    row->addWidget(salaryText_, 1);
    row->addWidget(salaryAdd_);
    row->addWidget(salaryLater_);
    layout->addWidget(salaryBanner_);
}

void MovementsScreen::buildPages(QVBoxLayout* layout) {
    pages_ = new QStackedWidget(this);
    pages_->setObjectName(QStringLiteral("movementsPages"));

    list_ = new QTreeView(pages_);
    list_->setObjectName(QStringLiteral("movementsList"));
    list_->setAccessibleName(uiText("Movimenti del mese"));
    list_->setModel(listModel_);
    list_->setItemDelegate(new MovementsDelegate(list_));
    list_->setUniformRowHeights(true);
    list_->setHeaderHidden(true);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setMouseTracking(true);
    list_->installEventFilter(this);
    connect(list_, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (const auto id = listModel_->transactionID(index.row())) Q_EMIT editRequested(*id);
    });
    connect(list_, &QTreeView::customContextMenuRequested, this, &MovementsScreen::showContextMenu);

    pages_->addWidget(list_);
    pages_->addWidget(buildEmptyMonth());
    pages_->addWidget(buildStartCard());
    layout->addWidget(pages_, 1);
}

QWidget* MovementsScreen::buildEmptyMonth() {
    emptyMonth_ = new QWidget(pages_);
    emptyMonth_->setObjectName(QStringLiteral("emptyMonth"));
    auto* column = new QVBoxLayout(emptyMonth_);
    auto* sentence = new QLabel(uiText("Nessun movimento in questo mese."), emptyMonth_);
    sentence->setObjectName(QStringLiteral("emptyMonthText"));
    sentence->setAlignment(Qt::AlignCenter);
    sentence->setFont(scaled(sentence->font(), 1.15, false));
    emptyMonthAdd_ = button(uiText("Aggiungi movimento"), QStringLiteral("emptyMonthAddButton"), emptyMonth_);
    connect(emptyMonthAdd_, &QPushButton::clicked, this, [this] { Q_EMIT newRequested(TransactionKind::expense); });
    column->addStretch(1);
    column->addWidget(sentence);
    column->addWidget(emptyMonthAdd_, 0, Qt::AlignHCenter);
    column->addStretch(2);
    return emptyMonth_;
}

QWidget* MovementsScreen::buildStartCard() {
    startCard_ = new QWidget(pages_);
    startCard_->setObjectName(QStringLiteral("startCard"));
    auto* card = new MovementsCard(startCard_);
    card->setFixedWidth(600);
    card->setAccessibleName(uiText("Benvenuto in Vantello"));

    auto* title = new QLabel(uiText("Benvenuto in Vantello"), card);
    title->setFont(scaled(title->font(), 1.4, true));
    title->setAlignment(Qt::AlignCenter);
    auto* sentence = new QLabel(uiText("Qui trovi le entrate e le uscite di ogni mese, giorno per giorno, con i "
                                       "totali e la stima di fine mese. Aggiungi il primo movimento, importa "
                                       "l'estratto conto della tua banca o prova l'app con dati di esempio."),
                                card);
    sentence->setObjectName(QStringLiteral("startCardText"));
    sentence->setWordWrap(true);
    sentence->setAlignment(Qt::AlignCenter);

    auto* add = button(uiText("Aggiungi il primo movimento"), QStringLiteral("startAddButton"), card);
    add->setDefault(true);
    connect(add, &QPushButton::clicked, this, [this] { Q_EMIT newRequested(TransactionKind::expense); });
    auto* import = button(uiText("Importa un estratto conto"), QStringLiteral("startImportButton"), card);
    connect(import, &QPushButton::clicked, this, &MovementsScreen::importRequested);
    auto* demo = button(uiText("Prova con dati di esempio"), QStringLiteral("startDemoButton"), card);
    connect(demo, &QPushButton::clicked, &model_, &LedgerViewModel::enterDemo);
    startButtons_ = {add, import, demo};

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* each : startButtons_) buttons->addWidget(each);
    buttons->addStretch(1);
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(14, 14, 14, 14);
    inside->setSpacing(14);
    inside->addWidget(title);
    inside->addWidget(sentence);
    inside->addLayout(buttons);

    // Boxes rather than an alignment, so that the wrapped sentence gets the height it needs.
    auto* centred = new QHBoxLayout;
    centred->addStretch(1);
    centred->addWidget(card);
    centred->addStretch(1);
    auto* outside = new QVBoxLayout(startCard_);
    outside->addStretch(1);
    outside->addLayout(centred);
    outside->addStretch(2);
    return startCard_;
}

// ---- following the model

void MovementsScreen::refresh() {
    listModel_->refresh();  // before the page is chosen from its rows
    refreshAccounts();
    refreshTiles();
    refreshAlerts();
    refreshSalaryBanner();
    refreshPage();
    orderTabs();
}

void MovementsScreen::refreshAccounts() {
    const Ledger& ledger = model_.ledger();
    const auto& selected = model_.selectedAccountID();
    const QSignalBlocker blocker(accountFilter_);
    accountFilter_->clear();
    accountFilter_->addItem(uiText("Tutti i conti"), QString());
    for (const Account& account : ledger.accounts()) {
        accountFilter_->addItem(symbolIcon(account.symbol), qText(account.name), qText(account.id));
    }
    const int index = selected ? accountFilter_->findData(qText(*selected)) : 0;
    accountFilter_->setCurrentIndex(std::max(index, 0));
    const bool useful = ledger.accounts().size() > 1 || selected.has_value();
    accountLabel_->setVisible(useful);
    accountFilter_->setVisible(useful);
}

void MovementsScreen::refreshTiles() {
    const std::vector<MonthTile> tiles = monthTiles(model_.monthSummary(), model_.calendar());
    for (std::size_t index = 0; index < tiles_.size(); ++index) {
        SummaryTile* tile = tiles_[index];
        if (index < tiles.size()) tile->setTile(tiles[index]);
        tile->setVisible(index < tiles.size());
    }
}

void MovementsScreen::refreshAlerts() {
    const std::vector<SmartAlert>& alerts = model_.alerts();
    const std::size_t shown = std::min(alerts.size(), maximumAlerts);
    std::vector<std::string> ids;
    ids.reserve(shown + 1);
    for (std::size_t index = 0; index < shown; ++index) ids.push_back(alerts[index].id);
    ids.push_back(std::to_string(alerts.size()));  // the count of the others changes the banner too
    alertsBanner_->setVisible(!alerts.empty());
    if (ids == shownAlertIDs_) return;
    shownAlertIDs_ = ids;

    // The button that asked for this may still be on the stack: its row goes later.
    while (QLayoutItem* item = alertsLayout_->takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
    alertButtons_.clear();
    for (std::size_t index = 0; index < shown; ++index) {
        const SmartAlert& alert = alerts[index];
        auto* row = new QWidget(alertsBanner_);
        row->setObjectName(QStringLiteral("alert-") + qText(alert.id));
        auto* line = new QHBoxLayout(row);
        line->setContentsMargins(0, 0, 0, 0);
        auto* text = new QLabel(row);
        text->setWordWrap(true);
        text->setTextFormat(Qt::RichText);
        text->setText(QStringLiteral("<b>%1</b><br>%2").arg(qText(alert.title).toHtmlEscaped(),
                                                           qText(alert.message).toHtmlEscaped()));
        text->setAccessibleName(qText(alert.title));
        text->setAccessibleDescription(qText(alert.message));
        auto* dismiss = new QPushButton(uiText("Non mostrare più"), row);
        dismiss->setObjectName(QStringLiteral("dismissAlertButton"));
        dismiss->setAccessibleName(uiText("Non mostrare più l'avviso «{title}»", {{"title", alert.title}}));
        dismiss->setToolTip(uiText("Nasconde questo avviso per sempre"));
        connect(dismiss, &QPushButton::clicked, this, [this, id = alert.id] { dismissSmartAlert(model_, id); });
        line->addWidget(text, 1);
        line->addWidget(dismiss, 0, Qt::AlignTop);
        alertsLayout_->addWidget(row);
        alertButtons_.push_back(dismiss);
    }
    if (alerts.size() > shown) {
        const std::size_t others = alerts.size() - shown;
        auto* more = new QLabel(others == 1 ? uiText("C'è un altro avviso.")
                                            : uiText("Ci sono altri {count} avvisi.", {{"count", std::to_string(others)}}),
                                alertsBanner_);
        more->setObjectName(QStringLiteral("moreAlerts"));
        alertsLayout_->addWidget(more);
    }
}

void MovementsScreen::refreshSalaryBanner() {
    const auto text = model_.salaryBannerText();
    salaryBanner_->setVisible(text.has_value());
    if (text) {
        salaryText_->setText(*text);
        salaryBanner_->setAccessibleName(*text);
    }
}

void MovementsScreen::refreshPage() {
    const bool nothingYet = model_.ledger().transactions().empty() && !model_.isDemo();
    tilesRow_->setVisible(!nothingYet);
    if (nothingYet) {
        pages_->setCurrentWidget(startCard_);
    } else if (listModel_->movementCount() == 0) {
        pages_->setCurrentWidget(emptyMonth_);
    } else {
        pages_->setCurrentWidget(list_);
    }
}

void MovementsScreen::orderTabs() {
    std::vector<QWidget*> chain{monthSwitcher_->lastControl(), accountFilter_, addExpense_, addIncome_};
    for (SummaryTile* tile : tiles_) {
        if (auto* info = tile->findChild<QToolButton*>()) chain.push_back(info);
    }
    chain.insert(chain.end(), alertButtons_.begin(), alertButtons_.end());
    chain.push_back(salaryAdd_);
    chain.push_back(salaryLater_);
    chain.push_back(list_);
    chain.push_back(emptyMonthAdd_);
    chain.insert(chain.end(), startButtons_.begin(), startButtons_.end());
    for (std::size_t index = 1; index < chain.size(); ++index) setTabOrder(chain[index - 1], chain[index]);
}

// ---- the list's actions

std::vector<Uuid> MovementsScreen::selectedTransactionIDs() const {
    std::vector<int> rows;
    for (const QModelIndex& index : list_->selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    std::vector<Uuid> ids;
    for (int row : rows) {
        if (const auto id = listModel_->transactionID(row)) ids.push_back(*id);
    }
    return ids;
}

void MovementsScreen::deleteSelected() {
    const std::vector<Uuid> ids = selectedTransactionIDs();
    if (ids.empty()) return;
    // The row after the deleted ones keeps the keyboard's place.
    const int after = list_->currentIndex().row();
    model_.deleteTransactions(ids);
    if (pages_->currentWidget() == list_ && listModel_->rowCount() > 0) {
        int row = std::clamp(after, 0, listModel_->rowCount() - 1);
        while (row < listModel_->rowCount() - 1 && !listModel_->transactionID(row)) ++row;
        list_->setCurrentIndex(listModel_->index(row, 0));
    }
}

void MovementsScreen::duplicateSelected() {
    std::vector<Uuid> copies;
    for (const Uuid& id : selectedTransactionIDs()) {
        if (auto copy = model_.duplicateTransaction(id)) copies.push_back(*copy);
    }
    selectRows(copies);
}

void MovementsScreen::selectRows(const std::vector<Uuid>& transactionIDs) {
    QItemSelection selection;
    QModelIndex first;
    for (const Uuid& id : transactionIDs) {
        const int row = listModel_->rowOf(id);
        if (row < 0) continue;
        const QModelIndex index = listModel_->index(row, 0);
        selection.select(index, index);
        if (!first.isValid()) first = index;
    }
    if (!first.isValid()) return;
    list_->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    list_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    list_->scrollTo(first);
}

void MovementsScreen::showContextMenu(const QPoint& position) {
    const QModelIndex index = list_->indexAt(position);
    const auto id = listModel_->transactionID(index.row());
    if (!index.isValid() || !id) return;
    if (!list_->selectionModel()->isSelected(index)) {
        list_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    const std::size_t count = selectedTransactionIDs().size();

    QMenu menu(this);
    menu.setObjectName(QStringLiteral("movementMenu"));
    QAction* edit = menu.addAction(uiText("Modifica…"));
    edit->setEnabled(count == 1);
    connect(edit, &QAction::triggered, this, [this, id = *id] { Q_EMIT editRequested(id); });
    QAction* duplicate = menu.addAction(uiText("Duplica"));
    connect(duplicate, &QAction::triggered, this, &MovementsScreen::duplicateSelected);
    menu.addSeparator();
    QAction* remove = menu.addAction(count == 1 ? uiText("Elimina") : uiText("Elimina {count} movimenti", {{"count", std::to_string(count)}}));
    remove->setShortcut(QKeySequence::Delete);
    connect(remove, &QAction::triggered, this, &MovementsScreen::deleteSelected);
    menu.exec(list_->viewport()->mapToGlobal(position));
}

bool MovementsScreen::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Delete) || key->key() == Qt::Key_Delete) {
            deleteSelected();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MovementsScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        // The theme's own colours are set just after the application's palette.
        QTimer::singleShot(0, this, [this] { applyColours(); });
    } else if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
}

void MovementsScreen::applyColours() {
    list_->viewport()->update();
    update();
}

}  // namespace vantello::app
