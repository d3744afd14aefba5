#include "app/screens/MainWindow.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SearchActions.hpp"
#include "app/model/SidebarItems.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/ChartsScreen.hpp"
#include "app/screens/ImportSheet.hpp"
#include "app/screens/MessageBar.hpp"
#include "app/screens/MovementsScreen.hpp"
#include "app/screens/ScreenFactory.hpp"
#include "app/screens/SearchNameDialog.hpp"
#include "app/screens/SearchScreen.hpp"
#include "app/screens/SettingsWindow.hpp"
#include "app/screens/TransactionEditor.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

const QString geometryKey = QStringLiteral("mainWindowGeometry");
constexpr int rawValueRole = Qt::UserRole;
constexpr int savedSearchRole = Qt::UserRole + 1;

// A coloured strip with a message, tinted with one of the palette's colours.
QFrame* banner(const QString& objectName, const QColor& tint, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(objectName);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    QPalette colours = frame->palette();
    QColor background = tint;
    background.setAlphaF(0.18);
    colours.setColor(QPalette::Window, background);
    frame->setPalette(colours);
    return frame;
}

QString localFile(const QMimeData* data) {
    if (!data || !data->hasUrls() || data->urls().isEmpty()) return {};
    const QUrl url = data->urls().front();
    return url.isLocalFile() ? url.toLocalFile() : QString();
}

}  // namespace

MainWindow::MainWindow(ProfilesController& profiles, Preferences& preferences, QWidget* parent)
    : QMainWindow(parent), profiles_(profiles), preferences_(preferences) {
    setWindowTitle(QStringLiteral("Vantello"));
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);

    auto* central = new QWidget(this);
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(buildBanners());
    auto* splitter = new QSplitter(central);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(buildSidebar());
    pages_ = new QStackedWidget(splitter);
    pages_->setObjectName(QStringLiteral("screens"));
    splitter->addWidget(pages_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({220, 1060});
    column->addWidget(splitter, 1);
    setCentralWidget(central);
    buildMenus();

    connect(&profiles_, &ProfilesController::modelChanged, this, &MainWindow::followModel);
    connect(&profiles_, &ProfilesController::listChanged, this, &MainWindow::refreshProfiles);
    followModel();
    refreshProfiles();

    if (!restoreGeometry(preferences_.value(geometryKey).toByteArray())) resize(1280, 800);
}

MainWindow::~MainWindow() = default;

// ---- the frame

QWidget* MainWindow::buildBanners() {
    auto* holder = new QWidget(this);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(8, 8, 8, 0);
    layout->setSpacing(6);

    auto* error = banner(QStringLiteral("errorBanner"), currentPalette().expense, holder);
    errorText_ = new QLabel(error);
    errorText_->setObjectName(QStringLiteral("errorText"));
    errorText_->setWordWrap(true);
    errorText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* closeError = new QToolButton(error);
    closeError->setText(QStringLiteral("✕"));
    closeError->setAutoRaise(true);
    closeError->setAccessibleName(uiText("Chiudi il messaggio"));
    connect(closeError, &QToolButton::clicked, this, [this] { model().setErrorMessage(std::nullopt); });
    auto* errorRow = new QHBoxLayout(error);
    errorRow->setContentsMargins(12, 6, 6, 6);
    auto* errorIcon = new QLabel(error);
    errorIcon->setPixmap(QIcon::fromTheme(QStringLiteral("dialog-warning")).pixmap(20, 20));
    errorRow->addWidget(errorIcon);
    errorRow->addWidget(errorText_, 1);
    errorRow->addWidget(closeError);
    errorBanner_ = error;
    errorBanner_->setAccessibleName(uiText("Errore"));

    auto* demo = banner(QStringLiteral("demoBanner"), currentPalette().accent, holder);
    auto* demoText = new QLabel(uiText("Stai provando Vantello con dati di esempio: le modifiche non vengono salvate."), demo);
    demoText->setWordWrap(true);
    auto* leaveDemo = new QPushButton(uiText("Esci dalla prova"), demo);
    leaveDemo->setObjectName(QStringLiteral("leaveDemo"));
    connect(leaveDemo, &QPushButton::clicked, this, [this] { model().exitDemo(); });
    auto* demoRow = new QHBoxLayout(demo);
    demoRow->setContentsMargins(12, 6, 6, 6);
    demoRow->addWidget(demoText, 1);
    demoRow->addWidget(leaveDemo);
    demoBanner_ = demo;

    messageBar_ = new MessageBar(holder);
    connect(messageBar_, &MessageBar::undoRequested, this, [this] { model().undo(); });

    layout->addWidget(errorBanner_);
    layout->addWidget(demoBanner_);
    layout->addWidget(messageBar_);
    return holder;
}

QWidget* MainWindow::buildSidebar() {
    auto* holder = new QWidget(this);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(8, 8, 0, 8);
    sidebar_ = new QTreeWidget(holder);
    sidebar_->setObjectName(QStringLiteral("sidebar"));
    sidebar_->setAccessibleName(uiText("Schermate"));
    sidebar_->setHeaderHidden(true);
    sidebar_->setRootIsDecorated(false);
    sidebar_->setIndentation(12);
    sidebar_->setIconSize(QSize(18, 18));
    sidebar_->setFrameShape(QFrame::NoFrame);
    std::optional<SidebarGroup> group;
    QTreeWidgetItem* parent = nullptr;
    for (const SidebarItem& item : sidebarItems()) {
        if (item.group != group) {
            group = item.group;
            parent = new QTreeWidgetItem(sidebar_, {groupLabel(item.group)});
            parent->setFlags(Qt::ItemIsEnabled);
            QFont font = parent->font(0);
            font.setBold(true);
            font.setPointSizeF(font.pointSizeF() * 0.9);
            parent->setFont(0, font);
            parent->setExpanded(true);
        }
        auto* entry = new QTreeWidgetItem(parent, {uiText(item.labelKey)});
        entry->setIcon(0, symbolIcon(item.symbolName));
        entry->setData(0, rawValueRole, item.rawValue);
    }
    sidebar_->expandAll();
    connect(sidebar_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* current) {
        if (!current) return;
        const QString raw = current->data(0, rawValueRole).toString();
        if (raw.isEmpty()) return;
        showScreen(raw);
        const auto saved = Uuid::parse(current->data(0, savedSearchRole).toString().toStdString());
        if (auto* search = qobject_cast<SearchScreen*>(currentScreen()); search && saved) search->runSavedSearch(*saved);
    });
    sidebar_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(sidebar_, &QTreeWidget::customContextMenuRequested, this, &MainWindow::showSavedSearchMenu);

    profileChoice_ = new QComboBox(holder);
    profileChoice_->setObjectName(QStringLiteral("profileChoice"));
    profileChoice_->setAccessibleName(uiText("Gestione in uso"));
    profileChoice_->setToolTip(uiText("Di chi sono i conti mostrati"));
    connect(profileChoice_, &QComboBox::activated, this, [this](int index) {
        const auto id = Uuid::parse(profileChoice_->itemData(index).toString().toStdString());
        if (id != (model().profile() ? std::optional<Uuid>(model().profile()->id) : std::nullopt)) profiles_.switchTo(id);
    });
    auto* profileLabel = new QLabel(uiText("Gestione"), holder);
    profileLabel->setObjectName(QStringLiteral("profileLabel"));
    profileLabel->setBuddy(profileChoice_);
    layout->addWidget(sidebar_, 1);
    layout->addWidget(profileLabel);
    layout->addWidget(profileChoice_);
    return holder;
}

void MainWindow::buildMenus() {
    auto add = [this](QMenu* menu, const QString& text, const QList<QKeySequence>& keys, auto slot) {
        QAction* action = menu->addAction(text);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QMenu* file = menuBar()->addMenu(uiText("&File"));
    add(file, uiText("Nuova uscita…"), {QKeySequence::New}, [this] { openNewMovement(TransactionKind::expense); });
    add(file, uiText("Nuova entrata…"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)},
        [this] { openNewMovement(TransactionKind::income); });
    file->addSeparator();
    add(file, uiText("Importa estratto conto…"), {QKeySequence(Qt::CTRL | Qt::Key_I)}, [this] { chooseImportFile(); });
    add(file, uiText("Esporta il mese…"), {QKeySequence(Qt::CTRL | Qt::Key_E)}, [this] { exportMovements(false); });
    add(file, uiText("Esporta tutti i movimenti…"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E)},
        [this] { exportMovements(true); });
    file->addSeparator();
    add(file, uiText("Impostazioni…"), {QKeySequence::Preferences, QKeySequence(Qt::CTRL | Qt::Key_Comma)},
        [this] { openSettings(); });
    file->addSeparator();
    add(file, uiText("Esci"), {QKeySequence::Quit}, [this] { close(); });

    QMenu* edit = menuBar()->addMenu(uiText("&Modifica"));
    undoAction_ = add(edit, uiText("Annulla"), {QKeySequence::Undo}, [this] { model().undo(); });
    redoAction_ = add(edit, uiText("Ripeti"),
                      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)},
                      [this] { model().redo(); });
    edit->addSeparator();
    add(edit, uiText("Modifica movimento"), {}, [this] {
        if (movements_ && !movements_->selectedTransactionIDs().empty()) openMovement(movements_->selectedTransactionIDs().front());
    });
    add(edit, uiText("Duplica movimento"), {QKeySequence(Qt::CTRL | Qt::Key_D)}, [this] {
        if (movements_) movements_->duplicateSelected();
    });
    add(edit, uiText("Elimina"), {QKeySequence::Delete}, [this] {
        if (!movements_ || pages_->currentWidget() != movements_) return;
        const auto count = movements_->selectedTransactionIDs().size();
        movements_->deleteSelected();
        if (count > 0) {
            announce(count == 1 ? uiText("Movimento eliminato.")
                                : uiText("Eliminati {n} movimenti.", {{"n", std::to_string(count)}}),
                     true);
        }
    });
    edit->addSeparator();
    add(edit, uiText("Cerca"), {QKeySequence::Find}, [this] { showScreen(QStringLiteral("search")); });

    QMenu* view = menuBar()->addMenu(uiText("&Vista"));
    add(view, uiText("Mese precedente"), {QKeySequence(Qt::ALT | Qt::Key_Left)}, [this] { model().showPreviousMonth(); });
    add(view, uiText("Mese successivo"), {QKeySequence(Qt::ALT | Qt::Key_Right)}, [this] { model().showNextMonth(); });
    add(view, uiText("Torna al mese in corso"), {QKeySequence(Qt::ALT | Qt::Key_Home)},
        [this] { model().showCurrentMonth(); });
    view->addSeparator();
    int number = 1;
    for (const SidebarItem& item : sidebarItems()) {
        QList<QKeySequence> keys;
        if (number <= 9) keys.append(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + number)));
        QAction* action = add(view, uiText(item.labelKey), keys, [this, raw = item.rawValue] { showScreen(raw); });
        action->setIcon(symbolIcon(item.symbolName));
        ++number;
    }

    QMenu* help = menuBar()->addMenu(uiText("&Aiuto"));
    add(help, uiText("Informazioni su Vantello"), {}, [this] {
        QMessageBox::about(this, uiText("Informazioni su Vantello"),
                           QStringLiteral("Vantello %1\n%2")
                               .arg(QStringLiteral(VANTELLO_VERSION), uiText("I tuoi conti, solo su questo computer.")));
    });
}

// ---- following the model in use

void MainWindow::followModel() {
    for (const auto& connection : std::as_const(modelConnections_)) disconnect(connection);
    modelConnections_.clear();
    for (auto& [raw, screen] : screens_) {
        pages_->removeWidget(screen);
        screen->deleteLater();
    }
    screens_.clear();
    movements_ = nullptr;

    LedgerViewModel* current = &model();
    modelConnections_ = {
        connect(current, &LedgerViewModel::errorMessageChanged, this, &MainWindow::refreshBanners),
        connect(current, &LedgerViewModel::demoChanged, this, &MainWindow::refreshBanners),
        connect(current, &LedgerViewModel::undoStateChanged, this, &MainWindow::refreshUndoActions),
        connect(current, &LedgerViewModel::importSessionChanged, this, &MainWindow::showImportSheet),
        connect(current, &LedgerViewModel::exportRequestChanged, this, &MainWindow::offerExport),
        connect(current, &LedgerViewModel::demoChanged, this, &MainWindow::refreshUndoActions),
        connect(current, &LedgerViewModel::ledgerChanged, this, &MainWindow::refreshSavedSearches),
    };
    refreshSavedSearches();
    refreshBanners();
    refreshUndoActions();
    refreshProfiles();
    showScreen(current->sidebarSelection().value_or(QStringLiteral("movements")));
}

void MainWindow::refreshBanners() {
    const auto& message = model().errorMessage();
    errorText_->setText(message.value_or(QString()));
    errorBanner_->setVisible(message.has_value());
    demoBanner_->setVisible(model().isDemo());
}

void MainWindow::refreshUndoActions() {
    undoAction_->setText(model().undoTitle());
    undoAction_->setEnabled(model().canUndo());
    redoAction_->setText(model().redoTitle());
    redoAction_->setEnabled(model().canRedo());
}

void MainWindow::refreshProfiles() {
    const QSignalBlocker quiet(profileChoice_);
    profileChoice_->clear();
    profileChoice_->addItem(symbolIcon("person"), uiText("Le mie finanze"), QString());
    for (const ManagedProfile& profile : profiles_.list().profiles) {
        profileChoice_->addItem(symbolIcon(profile.kind == ManagedProfile::Kind::household ? "house" : "person"),
                                QString::fromStdString(profile.displayName()), QString::fromStdString(profile.id.text()));
    }
    const auto& shown = model().profile();
    const int index = shown ? profileChoice_->findData(QString::fromStdString(shown->id.text())) : 0;
    profileChoice_->setCurrentIndex(std::max(index, 0));
    const bool hasProfiles = !profiles_.list().profiles.empty();
    profileChoice_->setVisible(hasProfiles);
    if (auto* label = findChild<QLabel*>(QStringLiteral("profileLabel"))) label->setVisible(hasProfiles);
    setWindowTitle(shown ? QStringLiteral("Vantello — %1").arg(QString::fromStdString(shown->displayName()))
                         : QStringLiteral("Vantello"));
}

void MainWindow::refreshSavedSearches() {
    QTreeWidgetItem* searchItem = nullptr;
    for (QTreeWidgetItemIterator it(sidebar_); *it; ++it) {
        if ((*it)->data(0, rawValueRole).toString() == QLatin1String("search") &&
            (*it)->data(0, savedSearchRole).isNull()) {
            searchItem = *it;
        }
    }
    if (!searchItem) return;
    const QSignalBlocker quiet(sidebar_);
    qDeleteAll(searchItem->takeChildren());
    for (const SavedSearch& saved : model().ledger().data().savedSearches) {
        auto* entry = new QTreeWidgetItem(searchItem, {QString::fromStdString(saved.name)});
        entry->setData(0, rawValueRole, QStringLiteral("search"));
        entry->setData(0, savedSearchRole, QString::fromStdString(saved.id.text()));
        entry->setToolTip(0, uiText("Ricerca salvata: clic destro per rinominarla o eliminarla"));
    }
    searchItem->setExpanded(true);
}

void MainWindow::showSavedSearchMenu(const QPoint& position) {
    QTreeWidgetItem* item = sidebar_->itemAt(position);
    const auto id = item ? Uuid::parse(item->data(0, savedSearchRole).toString().toStdString()) : std::nullopt;
    if (!id) return;
    QMenu menu(this);
    const QString name = item->text(0);
    menu.addAction(uiText("Rinomina…"), this, [this, id, name] {
        auto* dialog = new SearchNameDialog(
            uiText("Rinomina ricerca"), uiText("Rinomina"), name,
            [this, id](const QString& newName) { return renameSearch(model(), *id, newName); }, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
    menu.addAction(uiText("Elimina…"), this, [this, id, name] {
        const auto answer = QMessageBox::question(
            this, uiText("Eliminare la ricerca?"),
            uiText("La ricerca «{name}» sparisce dalla barra laterale; i movimenti restano.",
                   {{"name", name.toStdString()}}));
        if (answer == QMessageBox::Yes) deleteSearch(model(), *id);
    });
    menu.exec(sidebar_->viewport()->mapToGlobal(position));
}

// ---- screens

void MainWindow::showScreen(const QString& rawValue) {
    const SidebarItem& item = sidebarItem(rawValue);
    QWidget*& screen = screens_[item.rawValue];
    if (!screen) {
        if (item.rawValue == QLatin1String("movements")) {
            movements_ = new MovementsScreen(model(), pages_);
            connect(movements_, &MovementsScreen::editRequested, this, &MainWindow::openMovement);
            connect(movements_, &MovementsScreen::newRequested, this, &MainWindow::openNewMovement);
            connect(movements_, &MovementsScreen::salaryRequested, this, &MainWindow::openSalary);
            connect(movements_, &MovementsScreen::importRequested, this, &MainWindow::chooseImportFile);
            screen = movements_;
        } else {
            screen = makeScreen(item, model(), pages_);
            if (auto* charts = qobject_cast<ChartsScreen*>(screen)) {
                connect(charts, &ChartsScreen::newExpenseRequested, this,
                        [this] { openNewMovement(TransactionKind::expense); });
            }
            if (auto* search = qobject_cast<SearchScreen*>(screen)) {
                connect(search, &SearchScreen::editRequested, this, &MainWindow::openMovement);
            }
        }
        pages_->addWidget(screen);
    }
    pages_->setCurrentWidget(screen);
    model().setSidebarSelection(item.rawValue);
    // A saved search stays selected while the search screen shows it.
    const QTreeWidgetItem* selected = sidebar_->currentItem();
    if (selected && selected->data(0, rawValueRole).toString() == item.rawValue) return;
    for (QTreeWidgetItemIterator it(sidebar_); *it; ++it) {
        if ((*it)->data(0, rawValueRole).toString() == item.rawValue && (*it)->data(0, savedSearchRole).isNull()) {
            const QSignalBlocker quiet(sidebar_);
            sidebar_->setCurrentItem(*it);
        }
    }
}

QWidget* MainWindow::currentScreen() const { return pages_->currentWidget(); }

// ---- sheets

void MainWindow::openNewMovement(TransactionKind kind) {
    auto* editor = new TransactionEditor(model(), model().newDraft(kind), this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void MainWindow::openMovement(const Uuid& transactionID) {
    auto draft = model().draftOf(transactionID);
    if (!draft) return;
    auto* editor = new TransactionEditor(model(), std::move(*draft), this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void MainWindow::openSalary() {
    auto* editor = new TransactionEditor(model(), model().salaryDraft(), this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void MainWindow::chooseImportFile() {
    model().setChoosingImportFile(true);
    const QString path = QFileDialog::getOpenFileName(
        this, uiText("Importa estratto conto"), QDir::homePath(),
        uiText("Estratti conto (*.csv *.txt *.ofx *.qfx *.qif *.xml);;Tutti i file (*)"));
    model().setChoosingImportFile(false);
    if (!path.isEmpty()) openImportFile(path);
}

void MainWindow::openImportFile(const QString& path) {
    model().openImportFile(std::filesystem::path(path.toStdString()));
}

void MainWindow::showImportSheet() {
    if (!model().importSession() || findChild<ImportSheet*>()) return;
    auto* sheet = new ImportSheet(model(), this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &ImportSheet::imported, this, [this](const QString& summary) { announce(summary, true); });
    sheet->open();
}

void MainWindow::openSettings() {
    if (!settings_) {
        settings_ = new SettingsWindow(profiles_, preferences_, this);
        settings_->setAttribute(Qt::WA_DeleteOnClose);
        connect(settings_, &SettingsWindow::quickAddPreferenceChanged, this, &MainWindow::quickAddPreferenceChanged);
    }
    settings_->show();
    settings_->raise();
    settings_->activateWindow();
}

// ---- exports

void MainWindow::exportMovements(bool all) {
    if (all) {
        model().exportAll();
    } else {
        model().exportMonth();
    }
}

void MainWindow::offerExport() {
    const auto& request = model().exportRequest();
    if (!request) return;
    const QString path = QFileDialog::getSaveFileName(this, uiText("Esporta movimenti"),
                                                      QDir::home().filePath(request->fileName),
                                                      uiText("File CSV (*.csv)"));
    if (path.isEmpty()) {
        model().finishExport();
        return;
    }
    if (const auto error = model().saveExport(std::filesystem::path(path.toStdString()))) {
        model().finishExport();
        model().setErrorMessage(error);
        return;
    }
    announce(uiText("Movimenti esportati in «{name}».", {{"name", QFileInfo(path).fileName().toStdString()}}), false);
}

// ---- feedback

void MainWindow::announce(const QString& text, bool offersUndo) {
    messageBar_->show(text, offersUndo && model().canUndo() ? std::optional<QString>(model().undoTitle()) : std::nullopt);
}

QString MainWindow::messageText() const { return messageBar_->text(); }

// ---- window events

void MainWindow::closeEvent(QCloseEvent* event) {
    preferences_.setValue(geometryKey, saveGeometry());
    QMainWindow::closeEvent(event);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // Coming back to the window after days creates what fell due meanwhile and the day's backup.
    model().generateDueTransactions();
    model().backUpIfNoneToday();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!localFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = localFile(event->mimeData());
    if (path.isEmpty()) return;
    event->acceptProposedAction();
    openImportFile(path);
}

}  // namespace vantello::app
