#include "app/screens/SearchScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SearchActions.hpp"
#include "app/model/SearchResultsModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/screens/SearchNameDialog.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/base/AtomicFile.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

// Long enough to let a word be typed, short enough to feel immediate.
constexpr int typingPauseMs = 150;

QDate qDate(const CivilDate& day) { return {day.year, day.month, day.day}; }
CivilDate civil(const QDate& day) { return {day.year(), day.month(), day.day()}; }

QLabel* buddyLabel(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setBuddy(buddy);
    buddy->setAccessibleName(text);
    return label;
}

QPushButton* button(const QString& text, const QString& name, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAccessibleName(text);
    return made;
}

void tint(QLabel* label, const QColor& colour) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
}

}  // namespace

SearchScreen::SearchScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), results_(new SearchResultsModel(model, this)), debounce_(new QTimer(this)) {
    setObjectName(QStringLiteral("searchScreen"));
    setAccessibleName(uiText("Cerca"));
    debounce_->setSingleShot(true);
    debounce_->setInterval(typingPauseMs);
    connect(debounce_, &QTimer::timeout, this, &SearchScreen::searchNow);
    build();
    refreshChoices();

    connect(results_, &SearchResultsModel::resultsChanged, this, &SearchScreen::refreshSummary);
    // A search over the whole ledger can take a while on a large one: it never runs while the
    // screen is hidden, and runs after the screen has painted rather than before.
    auto ledgerMoved = [this] {
        refreshChoices();
        if (isVisible()) debounce_->start();
    };
    connect(&model_, &LedgerViewModel::ledgerChanged, this, ledgerMoved);
    connect(&model_, &LedgerViewModel::demoChanged, this, ledgerMoved);
    refreshSummary();
    debounce_->start();
}

void SearchScreen::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (results_->isStale()) debounce_->start();
}

// ---- building

void SearchScreen::build() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);

    // The text and the screen's actions.
    auto* top = new QHBoxLayout;
    text_ = new QLineEdit(this);
    text_->setObjectName(QStringLiteral("searchText"));
    text_->setAccessibleName(uiText("Cerca"));
    text_->setPlaceholderText(uiText("Cerca nelle note, nelle categorie o un importo"));
    text_->setClearButtonEnabled(true);
    text_->addAction(symbolIcon("magnifyingglass"), QLineEdit::LeadingPosition);
    connect(text_, &QLineEdit::textChanged, this, &SearchScreen::scheduleSearch);
    save_ = button(uiText("Salva ricerca…"), QStringLiteral("saveSearchButton"), this);
    connect(save_, &QPushButton::clicked, this, &SearchScreen::saveCurrentSearch);
    export_ = button(uiText("Esporta CSV…"), QStringLiteral("exportResultsButton"), this);
    connect(export_, &QPushButton::clicked, this, &SearchScreen::exportResults);
    top->addWidget(text_, 1);
    top->addWidget(save_);
    top->addWidget(export_);
    layout->addLayout(top);

    // Every other condition, in two rows.
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);

    period_ = new QComboBox(this);
    period_->setObjectName(QStringLiteral("searchPeriod"));
    using Period = TransactionFilter::Period;
    period_->addItem(uiText("Sempre"), static_cast<int>(Period::all));
    period_->addItem(uiText("Questo mese"), static_cast<int>(Period::thisMonth));
    period_->addItem(uiText("Quest'anno"), static_cast<int>(Period::thisYear));
    period_->addItem(uiText("Ultimi 12 mesi"), static_cast<int>(Period::last12Months));
    period_->addItem(uiText("Dal… al…"), static_cast<int>(Period::custom));
    connect(period_, &QComboBox::currentIndexChanged, this, [this] {
        refreshDates();
        scheduleSearch();
    });

    const QString dateFormat = QLocale().dateFormat(QLocale::ShortFormat);
    from_ = new QDateEdit(this);
    from_->setObjectName(QStringLiteral("searchFrom"));
    to_ = new QDateEdit(this);
    to_->setObjectName(QStringLiteral("searchTo"));
    const QDate today = qDate(model_.calendar().civilDate(model_.now()));
    from_->setDate(today.addMonths(-1));
    to_->setDate(today);
    for (QDateEdit* edit : {from_, to_}) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(dateFormat);
        connect(edit, &QDateEdit::dateChanged, this, &SearchScreen::scheduleSearch);
    }

    kind_ = new QComboBox(this);
    kind_->setObjectName(QStringLiteral("searchKind"));
    kind_->addItem(uiText("Entrate e uscite"), -1);
    kind_->addItem(uiText("Solo uscite"), static_cast<int>(TransactionKind::expense));
    kind_->addItem(uiText("Solo entrate"), static_cast<int>(TransactionKind::income));
    connect(kind_, &QComboBox::currentIndexChanged, this, &SearchScreen::scheduleSearch);

    categories_ = new QToolButton(this);
    categories_->setObjectName(QStringLiteral("searchCategories"));
    categories_->setPopupMode(QToolButton::InstantPopup);
    categories_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    categories_->setMinimumWidth(180);
    categoryMenu_ = new QMenu(categories_);
    categoryMenu_->setObjectName(QStringLiteral("searchCategoryMenu"));
    categories_->setMenu(categoryMenu_);

    account_ = new QComboBox(this);
    account_->setObjectName(QStringLiteral("searchAccount"));
    connect(account_, &QComboBox::currentIndexChanged, this, &SearchScreen::scheduleSearch);

    minimum_ = new QLineEdit(this);
    minimum_->setObjectName(QStringLiteral("searchMinimum"));
    minimum_->setPlaceholderText(uiText("0,00"));
    maximum_ = new QLineEdit(this);
    maximum_->setObjectName(QStringLiteral("searchMaximum"));
    maximum_->setPlaceholderText(uiText("nessun limite"));
    for (QLineEdit* edit : {minimum_, maximum_}) {
        edit->setAlignment(Qt::AlignRight);
        edit->setMaximumWidth(130);
        connect(edit, &QLineEdit::textChanged, this, &SearchScreen::scheduleSearch);
    }

    attachments_ = new QCheckBox(uiText("Solo con allegati"), this);
    attachments_->setObjectName(QStringLiteral("searchWithAttachments"));
    attachments_->setAccessibleName(uiText("Solo con allegati"));
    connect(attachments_, &QCheckBox::toggled, this, &SearchScreen::scheduleSearch);

    clear_ = button(uiText("Azzera filtri"), QStringLiteral("clearSearchButton"), this);
    connect(clear_, &QPushButton::clicked, this, &SearchScreen::clearConditions);

    grid->addWidget(buddyLabel(uiText("Periodo"), period_, this), 0, 0);
    grid->addWidget(period_, 0, 1);
    auto* dates = new QHBoxLayout;
    dates->setSpacing(6);
    dates->addWidget(buddyLabel(uiText("Dal"), from_, this));
    dates->addWidget(from_);
    dates->addSpacing(4);
    dates->addWidget(buddyLabel(uiText("Al"), to_, this));
    dates->addWidget(to_);
    dates->addStretch(1);
    grid->addLayout(dates, 0, 2);
    grid->addWidget(buddyLabel(uiText("Tipo"), kind_, this), 0, 3);
    grid->addWidget(kind_, 0, 4);
    grid->addWidget(buddyLabel(uiText("Categorie"), categories_, this), 0, 5);
    grid->addWidget(categories_, 0, 6);

    grid->addWidget(buddyLabel(uiText("Conto"), account_, this), 1, 0);
    grid->addWidget(account_, 1, 1);
    auto* amounts = new QHBoxLayout;
    amounts->setSpacing(6);
    amounts->addWidget(buddyLabel(uiText("Importo da"), minimum_, this));
    amounts->addWidget(minimum_);
    amounts->addSpacing(4);
    amounts->addWidget(buddyLabel(uiText("a"), maximum_, this));
    amounts->addWidget(maximum_);
    amounts->addStretch(1);
    grid->addLayout(amounts, 1, 2);
    grid->addWidget(attachments_, 1, 3, 1, 2);
    grid->addWidget(clear_, 1, 5, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(7, 1);
    layout->addLayout(grid);
    // Accessible names of the amount fields say more than their short labels.
    minimum_->setAccessibleName(uiText("Importo minimo"));
    maximum_->setAccessibleName(uiText("Importo massimo"));

    problem_ = new QLabel(this);
    problem_->setObjectName(QStringLiteral("searchProblem"));
    problem_->setWordWrap(true);
    problem_->hide();
    layout->addWidget(problem_);
    message_ = new QLabel(this);
    message_->setObjectName(QStringLiteral("searchMessage"));
    message_->setWordWrap(true);
    message_->hide();
    layout->addWidget(message_);

    // Count and totals of what is shown.
    auto* summary = new MovementsCard(this);
    summary->setObjectName(QStringLiteral("searchSummary"));
    summary->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* row = new QHBoxLayout(summary);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    count_ = new QLabel(summary);
    count_->setObjectName(QStringLiteral("searchCount"));
    QFont bold = count_->font();
    bold.setBold(true);
    count_->setFont(bold);
    income_ = new QLabel(summary);
    income_->setObjectName(QStringLiteral("searchIncome"));
    expenses_ = new QLabel(summary);
    expenses_->setObjectName(QStringLiteral("searchExpenses"));
    net_ = new QLabel(summary);
    net_->setObjectName(QStringLiteral("searchTotal"));
    net_->setFont(bold);
    for (QLabel* label : {count_, income_, expenses_, net_}) label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    row->addWidget(count_);
    row->addStretch(1);
    row->addWidget(income_);
    row->addWidget(expenses_);
    row->addWidget(net_);
    layout->addWidget(summary);

    // The results, or what to do when there are none.
    pages_ = new QStackedWidget(this);
    list_ = new QTreeView(pages_);
    list_->setObjectName(QStringLiteral("searchResults"));
    list_->setAccessibleName(uiText("Risultati della ricerca"));
    list_->setModel(results_);
    list_->setUniformRowHeights(true);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(SearchResultsModel::noteColumn, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(SearchResultsModel::amountColumn, QHeaderView::ResizeToContents);
    list_->setColumnWidth(SearchResultsModel::dateColumn, 110);
    list_->setColumnWidth(SearchResultsModel::categoryColumn, 170);
    list_->setColumnWidth(SearchResultsModel::accountColumn, 160);
    list_->installEventFilter(this);
    connect(list_, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (auto id = results_->transactionID(index.row())) Q_EMIT editRequested(*id);
    });
    pages_->addWidget(list_);

    auto* empty = new QWidget(pages_);
    empty->setObjectName(QStringLiteral("searchEmpty"));
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->addStretch(1);
    emptyText_ = new QLabel(empty);
    emptyText_->setObjectName(QStringLiteral("searchEmptyText"));
    emptyText_->setAlignment(Qt::AlignCenter);
    emptyText_->setWordWrap(true);
    emptyClear_ = button(uiText("Azzera filtri"), QStringLiteral("searchEmptyClearButton"), empty);
    connect(emptyClear_, &QPushButton::clicked, this, &SearchScreen::clearConditions);
    emptyLayout->addWidget(emptyText_);
    emptyLayout->addWidget(emptyClear_, 0, Qt::AlignHCenter);
    emptyLayout->addStretch(2);
    pages_->addWidget(empty);
    layout->addWidget(pages_, 1);

    setTabOrder(text_, save_);
    setTabOrder(save_, export_);
    setTabOrder(export_, period_);
    setTabOrder(period_, from_);
    setTabOrder(from_, to_);
    setTabOrder(to_, kind_);
    setTabOrder(kind_, categories_);
    setTabOrder(categories_, account_);
    setTabOrder(account_, minimum_);
    setTabOrder(minimum_, maximum_);
    setTabOrder(maximum_, attachments_);
    setTabOrder(attachments_, clear_);
    setTabOrder(clear_, list_);
    setFocusProxy(text_);

    refreshDates();
    applyColours();
}

// ---- the choices that come from the ledger

void SearchScreen::refreshChoices() {
    const bool wasFilling = filling_;
    filling_ = true;
    const Ledger& ledger = model_.ledger();

    const QString chosenAccount = account_->currentData().toString();
    account_->clear();
    account_->addItem(uiText("Tutti i conti"), QString());
    for (const Account& account : ledger.accounts())
        account_->addItem(symbolIcon(account.symbol), QString::fromStdString(account.name), QString::fromStdString(account.id));
    account_->setCurrentIndex(std::max(0, account_->findData(chosenAccount)));

    categoryMenu_->clear();
    auto* all = categoryMenu_->addAction(uiText("Tutte le categorie"));
    connect(all, &QAction::triggered, this, [this] {
        chosenCategories_.clear();
        for (QAction* action : categoryMenu_->actions()) action->setChecked(false);
        refreshCategoryButton();
        scheduleSearch();
    });
    categoryMenu_->addSeparator();
    std::optional<TransactionKind> section;
    for (const TransactionCategory& category : ledger.allCategories()) {
        if (section != category.kind) {
            section = category.kind;
            categoryMenu_->addSection(category.kind == TransactionKind::expense ? uiText("Uscite") : uiText("Entrate"));
        }
        auto* action = categoryMenu_->addAction(symbolIcon(category.symbol), QString::fromStdString(category.name));
        action->setCheckable(true);
        action->setData(QString::fromStdString(category.id));
        action->setChecked(chosenCategories_.contains(category.id));
        connect(action, &QAction::toggled, this, [this, id = category.id](bool checked) {
            if (checked) chosenCategories_.insert(id);
            else chosenCategories_.erase(id);
            refreshCategoryButton();
            scheduleSearch();
        });
    }
    refreshCategoryButton();
    filling_ = wasFilling;
}

void SearchScreen::refreshCategoryButton() {
    QString text;
    if (chosenCategories_.empty()) {
        text = uiText("Tutte le categorie");
    } else if (chosenCategories_.size() == 1) {
        const auto category = model_.ledger().category(*chosenCategories_.begin());
        text = category ? QString::fromStdString(category->name) : QString::fromStdString(*chosenCategories_.begin());
    } else {
        text = uiText("{count} categorie", {{"count", std::to_string(chosenCategories_.size())}});
    }
    categories_->setText(text);
    categories_->setToolTip(text);
    categories_->setAccessibleDescription(text);
}

void SearchScreen::refreshDates() {
    const bool custom = period_->currentData().toInt() == static_cast<int>(TransactionFilter::Period::custom);
    from_->setEnabled(custom);
    to_->setEnabled(custom);
}

// ---- the form

SearchForm SearchScreen::form() const {
    SearchForm form;
    form.text = text_->text();
    form.period = static_cast<TransactionFilter::Period>(period_->currentData().toInt());
    if (form.period == TransactionFilter::Period::custom) {
        form.from = civil(from_->date());
        form.to = civil(to_->date());
    }
    const int kind = kind_->currentData().toInt();
    if (kind >= 0) form.kind = static_cast<TransactionKind>(kind);
    form.categoryIDs = chosenCategories_;
    form.minimum = minimum_->text();
    form.maximum = maximum_->text();
    form.onlyWithAttachments = attachments_->isChecked();
    const QString account = account_->currentData().toString();
    if (!account.isEmpty()) form.accountID = account.toStdString();
    return form;
}

void SearchScreen::setForm(const SearchForm& form) {
    filling_ = true;
    text_->setText(form.text);
    period_->setCurrentIndex(std::max(0, period_->findData(static_cast<int>(form.period))));
    if (form.from) from_->setDate(qDate(*form.from));
    if (form.to) to_->setDate(qDate(*form.to));
    kind_->setCurrentIndex(form.kind ? kind_->findData(static_cast<int>(*form.kind)) : 0);
    chosenCategories_ = form.categoryIDs;
    for (QAction* action : categoryMenu_->actions())
        if (action->isCheckable()) {
            const QSignalBlocker quiet(action);
            action->setChecked(chosenCategories_.contains(action->data().toString().toStdString()));
        }
    refreshCategoryButton();
    minimum_->setText(form.minimum);
    maximum_->setText(form.maximum);
    attachments_->setChecked(form.onlyWithAttachments);
    const int account = form.accountID ? account_->findData(QString::fromStdString(*form.accountID)) : 0;
    account_->setCurrentIndex(std::max(0, account));
    refreshDates();
    filling_ = false;
    searchNow();
}

void SearchScreen::clearConditions() {
    setForm({});
    text_->setFocus();
}

void SearchScreen::runSavedSearch(const Uuid& id) {
    const SavedSearch* saved = savedSearch(model_, id);
    if (!saved) return;
    setForm(searchForm(saved->filter, model_.calendar()));
}

// ---- searching

void SearchScreen::scheduleSearch() {
    if (filling_) return;
    debounce_->start();
}

void SearchScreen::showProblem(const QString& message, QWidget* field) {
    problem_->setText(message);
    problem_->setVisible(!message.isEmpty());
    for (QLineEdit* edit : {minimum_, maximum_}) {
        QPalette palette = edit->palette();
        palette.setColor(QPalette::Text, edit == field ? currentPalette().expense : QWidget::palette().color(QPalette::Text));
        edit->setPalette(palette);
    }
}

void SearchScreen::searchNow() {
    debounce_->stop();
    message_->hide();
    const auto filter = searchFilter(form(), model_.calendar());
    if (const auto* problem = std::get_if<SearchFormProblem>(&filter)) {
        QWidget* field = problem->field == SearchFormProblem::Field::minimum   ? static_cast<QWidget*>(minimum_)
                         : problem->field == SearchFormProblem::Field::maximum ? static_cast<QWidget*>(maximum_)
                                                                               : static_cast<QWidget*>(from_);
        showProblem(problem->message, field);
        return;  // the results of the last good conditions stay, saying why they did not change
    }
    showProblem({}, nullptr);
    results_->search(std::get<TransactionFilter>(filter));
}

void SearchScreen::refreshSummary() {
    const int count = results_->count();
    count_->setText(count == 1 ? uiText("1 movimento")
                               : uiText("{count} movimenti", {{"count", QLocale().toString(count).toStdString()}}));
    const PeriodTotals& totals = results_->totals();
    income_->setText(uiText("Entrate: {amount}", {{"amount", movementAmountText(totals.income, TransactionKind::income).toStdString()}}));
    expenses_->setText(uiText("Uscite: {amount}", {{"amount", movementAmountText(totals.expenses, TransactionKind::expense).toStdString()}}));
    const Decimal net = totals.net();
    const QString netText = net.sign() < 0 ? movementAmountText(net.magnitude(), TransactionKind::expense)
                          : net.sign() > 0 ? movementAmountText(net, TransactionKind::income)
                                           : euroText(net);
    net_->setText(uiText("Saldo: {amount}", {{"amount", netText.toStdString()}}));
    net_->setAccessibleName(net_->text());
    count_->setAccessibleName(count_->text());
    export_->setEnabled(count > 0);

    const bool ledgerEmpty = model_.ledger().transactions().empty();
    emptyText_->setText(ledgerEmpty ? uiText("Non c'è ancora nessun movimento da cercare: aggiungi il primo dalla schermata Movimenti.")
                                    : uiText("Nessun movimento corrisponde a queste condizioni. Togline qualcuna per vederne di più."));
    emptyClear_->setVisible(!ledgerEmpty);
    pages_->setCurrentIndex(count > 0 ? 0 : 1);
    applyColours();
}

void SearchScreen::applyColours() {
    const ThemePalette& colours = currentPalette();
    tint(income_, colours.income);
    tint(expenses_, colours.expense);
    const int sign = results_->totals().net().sign();
    tint(net_, sign > 0 ? colours.income : sign < 0 ? colours.expense : colours.primaryText);
    tint(problem_, colours.expense);
    tint(message_, colours.expense);
}

void SearchScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) applyColours();
}

bool SearchScreen::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            editCurrent();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void SearchScreen::editCurrent() {
    if (auto id = results_->transactionID(list_->currentIndex().row())) Q_EMIT editRequested(*id);
}

// ---- saving and exporting

void SearchScreen::saveCurrentSearch() {
    searchNow();
    if (problem_->isVisible()) return;  // conditions that do not read cannot be kept
    const TransactionFilter filter = results_->filter();
    if (saveDialog_) saveDialog_->deleteLater();
    saveDialog_ = new SearchNameDialog(
        uiText("Salva ricerca"), uiText("Salva"), text_->text().trimmed(),
        [this, filter](const QString& name) -> std::optional<QString> {
            std::optional<Uuid> saved;
            if (auto problem = saveSearchAs(model_, name, filter, &saved)) return problem;
            if (saved) Q_EMIT searchSaved(*saved);
            return std::nullopt;
        },
        this);
    connect(saveDialog_, &QDialog::finished, saveDialog_, &QObject::deleteLater);
    connect(saveDialog_, &QObject::destroyed, this, [this, dialog = saveDialog_] {
        if (saveDialog_ == dialog) saveDialog_ = nullptr;
    });
    saveDialog_->open();
}

std::optional<QString> SearchScreen::exportResultsTo(const std::filesystem::path& file) {
    try {
        writeFileAtomically(file, results_->csvText());
    } catch (const UserError& error) {
        return QString::fromStdString(error.message());
    }
    return std::nullopt;
}

void SearchScreen::exportResults() {
    searchNow();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString proposed = folder + QLatin1Char('/') + uiText("Ricerca Vantello.csv");
    const QString chosen = QFileDialog::getSaveFileName(this, uiText("Esporta i risultati"), proposed,
                                                        uiText("File CSV (*.csv)"));
    if (chosen.isEmpty()) return;
    if (const auto problem = exportResultsTo(std::filesystem::path(chosen.toStdString()))) {
        message_->setText(*problem);
        message_->show();
    }
}

}  // namespace vantello::app
