#include "app/model/LedgerViewModel.hpp"

#include "app/model/LedgerAnalyses.hpp"
#include "app/model/SampleData.hpp"
#include "core/analysis/AccountLedger.hpp"
#include "core/analysis/MonthTransactions.hpp"
#include "core/base/Localization.hpp"
#include "core/ledger/LedgerRecurring.hpp"

#include <QMetaObject>

#include <chrono>
#include <utility>

namespace vantello::app {

namespace {

QString text(const std::string& message) { return QString::fromStdString(message); }

const QString sidebarSelectionKey = QStringLiteral("sidebarSelection");

QString unsavedSuffix() { return text(L10n::tr(" Le modifiche non verranno salvate.")); }

}  // namespace

LedgerViewModel::LedgerViewModel(Setup setup, QObject* parent)
    : QObject(parent),
      calendar_(std::move(setup.calendar)),
      now_(setup.now ? std::move(setup.now) : std::function<Instant()>(clockNow)),
      preferences_(setup.preferences),
      profile_(std::move(setup.profile)),
      selectedMonth_(calendar_.monthInterval(now_()).start),
      defaultBackupFolder_(std::move(setup.defaultBackupFolder)) {
    // The writer reports from its own thread; the message is set on the main thread.
    writer_ = std::make_unique<DiskWriter>(DiskWriter::Observers{
        .failed =
            [this](const std::string& message) {
                QMetaObject::invokeMethod(this, [this, message] { setErrorMessage(text(message)); },
                                          Qt::QueuedConnection);
            },
        .written = {},
    });
    analyses_ = new LedgerAnalyses(*this);
    if (!setup.dataFolder) {
        setErrorMessage(text(L10n::tr("Non trovo la cartella dei dati: le modifiche non verranno salvate.")));
        return;
    }
    store_ = LedgerStore(*setup.dataFolder / LedgerStore::fileName);
    attachmentStore_ = AttachmentStore::inDataFolder(*setup.dataFolder);
    try {
        lock_.emplace(*setup.dataFolder);
    } catch (const UserError& error) {
        // Another writer has the folder: the ledger is shown, nothing is written.
        canSave_ = false;
        canRemoveAttachments_ = false;
        setErrorMessage(text(error.message()) + unsavedSuffix());
    }
    reload();
    if (preferences_) {
        salaryReminder_ = preferences_->salaryReminder();
        salaryPostponedDay_ = preferences_->salaryReminderDismissedDay();
        customBackupFolder_ = preferences_->backupFolder();
        alertSettings_ = preferences_->alertSettings();
        alertNotifications_ = preferences_->alertNotifications();
        const QString screen = preferences_->value(sidebarSelectionKey).toString();
        if (!screen.isEmpty()) sidebarSelection_ = screen;
    }
    refreshBackups();
    backUpIfNoneToday();
}

LedgerViewModel::~LedgerViewModel() { writer_->flush(); }

void LedgerViewModel::setErrorMessage(std::optional<QString> message) {
    if (errorMessage_ == message) return;
    errorMessage_ = std::move(message);
    Q_EMIT errorMessageChanged();
}

void LedgerViewModel::setCanSave(bool canSave) {
    if (canSave_ == canSave) return;
    canSave_ = canSave;
    Q_EMIT canSaveChanged();
}

// ---- changes

std::optional<QString> LedgerViewModel::apply(const QString& actionName, const std::function<void(Ledger&)>& operation,
                                              ErrorRoute route) {
    Ledger changed = ledger_;
    try {
        operation(changed);
    } catch (const UserError& error) {
        if (route == ErrorRoute::caller) return text(error.message());
        setErrorMessage(text(error.message()));
        return std::nullopt;
    }
    if (changed == ledger_) return std::nullopt;
    history_.recordChange(actionName, ledger_);
    takeLedger(std::move(changed));
    Q_EMIT undoStateChanged();
    return std::nullopt;
}

void LedgerViewModel::takeLedger(Ledger ledger) {
    ledger_ = std::move(ledger);
    revision_ += 1;
    save();
    Q_EMIT ledgerChanged();
}

void LedgerViewModel::save() {
    if (isDemo_ || !canSave_ || !store_) return;
    writer_->save({ledger_.data(), *store_, canRemoveAttachments_ ? attachmentStore_ : std::nullopt, unsavedAttachments_,
                   std::chrono::system_clock::now()});
}

// "Annulla" alone is also the Cancel of dialogs, so the menu's text keeps its own key.
QString LedgerViewModel::undoTitle() const {
    return text(L10n::tr("Annulla {action}", {{"action", history_.undoActionName().toStdString()}})).trimmed();
}

QString LedgerViewModel::redoTitle() const {
    return text(L10n::tr("Ripeti {action}", {{"action", history_.redoActionName().toStdString()}})).trimmed();
}

void LedgerViewModel::undo() {
    std::optional<UndoHistory::Step> step = history_.undo(ledger_);
    if (!step) return;
    takeLedger(std::move(step->ledger));
    Q_EMIT undoStateChanged();
}

void LedgerViewModel::redo() {
    std::optional<UndoHistory::Step> step = history_.redo(ledger_);
    if (!step) return;
    takeLedger(std::move(step->ledger));
    Q_EMIT undoStateChanged();
}

// ---- loading and the demo

void LedgerViewModel::load() {
    history_.clear();
    ledger_ = Ledger();
    if (store_) readLedgerFile();
    revision_ += 1;
    Q_EMIT ledgerChanged();
    Q_EMIT undoStateChanged();
}

void LedgerViewModel::readLedgerFile() {
    writer_->flush();
    try {
        ledger_ = Ledger(store_->load());
        if (canRemoveAttachments_ && attachmentStore_) {
            const auto keep = storedAttachmentNames(ledger_.data());
            const auto cutoff = std::chrono::system_clock::now();
            writer_->enqueue([store = *attachmentStore_, keep, cutoff] { store.removeUnreferencedFiles(keep, cutoff); });
        }
    } catch (const DecodingError&) {
        canRemoveAttachments_ = false;
        try {
            // Only the holder of the folder's lock may move the file.
            if (!lock_) throw DataFolderError(DataFolderError::Code::locked);
            const std::filesystem::path moved = store_->moveDamagedFileAside(now_());
            setErrorMessage(text(L10n::tr("Il file dei movimenti era danneggiato: l'ho spostato in «{name}» e Vantello riparte vuoto.",
                                          {{"name", moved.filename().string()}})));
        } catch (const UserError&) {
            setCanSave(false);
            setErrorMessage(text(L10n::tr("Non riesco a leggere i movimenti. Le modifiche non verranno salvate.")));
        }
    } catch (const UserError& error) {
        canRemoveAttachments_ = false;
        setCanSave(false);
        setErrorMessage(text(error.message()) + unsavedSuffix());
    }
}

void LedgerViewModel::reload() {
    load();
    generateDueTransactions();
}

int LedgerViewModel::generateDueTransactions() {
    Ledger changed = ledger_;
    const int created = vantello::generateDueTransactions(changed, now_(), calendar_);
    if (created > 0) takeLedger(std::move(changed));
    return created;
}

void LedgerViewModel::enterDemo() {
    if (isDemo_) return;
    isDemo_ = true;
    history_.clear();
    Q_EMIT demoChanged();
    takeLedger(sampleLedger(now_(), calendar_));
    Q_EMIT undoStateChanged();
}

void LedgerViewModel::exitDemo() {
    if (!isDemo_) return;
    isDemo_ = false;
    Q_EMIT demoChanged();
    reload();
}

// ---- month and account

void LedgerViewModel::setSelectedMonth(Instant month) {
    if (month == selectedMonth_) return;
    selectedMonth_ = month;
    Q_EMIT selectedMonthChanged();
}

void LedgerViewModel::showPreviousMonth() {
    if (auto month = calendar_.adding(CalendarUnit::month, -1, selectedMonth_)) setSelectedMonth(*month);
}

void LedgerViewModel::showNextMonth() {
    if (auto month = calendar_.adding(CalendarUnit::month, 1, selectedMonth_)) setSelectedMonth(*month);
}

void LedgerViewModel::showCurrentMonth() { setSelectedMonth(calendar_.monthInterval(now_()).start); }

bool LedgerViewModel::isShowingCurrentMonth() const {
    return selectedMonth_ == calendar_.monthInterval(now_()).start;
}

void LedgerViewModel::setSelectedAccountID(std::optional<std::string> accountID) {
    if (accountID == selectedAccountID_) return;
    selectedAccountID_ = std::move(accountID);
    Q_EMIT selectedAccountChanged();
}

// ---- derived values

LedgerViewModel::MonthInputs LedgerViewModel::monthInputs() const {
    return {revision_, selectedMonth_, selectedAccountID_, calendar_.startOfDay(now_())};
}

const Ledger& LedgerViewModel::visibleLedger() {
    if (!selectedAccountID_) return ledger_;
    return visibleLedger_.get(std::tuple{revision_, selectedAccountID_},
                             [&] { return ledgerOfAccount(ledger_, *selectedAccountID_); });
}

const MonthSummary& LedgerViewModel::monthSummary() {
    return monthSummary_.get(monthInputs(), [&] {
        return vantello::monthSummary(visibleLedger(), selectedMonth_, now_(), calendar_, selectedAccountID_);
    });
}

const std::vector<Transaction>& LedgerViewModel::monthTransactions() {
    return monthTransactions_.get(monthInputs(),
                                  [&] { return vantello::monthTransactions(visibleLedger(), selectedMonth_, calendar_); });
}

const std::vector<SmartAlert>& LedgerViewModel::alerts() {
    return analyses_->alerts();
}

// ---- work, the salary reminder and the alerts' settings

std::optional<QString> LedgerViewModel::saveWorkPeriod(const UnemploymentDraft& draft) {
    const auto error = apply(text(L10n::tr("Salva periodo senza lavoro")),
                             [&](Ledger& ledger) { saveUnemploymentPeriod(ledger, draft); }, ErrorRoute::caller);
    if (!error) generateDueTransactions();
    return error;
}

void LedgerViewModel::deleteWorkPeriod(const Uuid& periodID) {
    apply(text(L10n::tr("Elimina periodo senza lavoro")),
          [&](Ledger& ledger) { deleteUnemploymentPeriod(ledger, periodID); });
    generateDueTransactions();
}

void LedgerViewModel::setSalaryReminder(const SalaryReminder& reminder) {
    if (reminder == salaryReminder_) return;
    salaryReminder_ = reminder;
    if (preferences_) preferences_->setSalaryReminder(reminder);
    Q_EMIT salaryReminderChanged();
}

void LedgerViewModel::postponeSalaryBanner() {
    salaryPostponedDay_ = calendar_.startOfDay(now_());
    if (preferences_) preferences_->setSalaryReminderDismissedDay(salaryPostponedDay_);
    Q_EMIT salaryReminderChanged();
}

// ---- what the screens have open

namespace {

// Assigns and announces only a real change.
template <typename Value, typename Signal>
void change(LedgerViewModel& model, Value& field, Value value, Signal signal) {
    if (field == value) return;
    field = std::move(value);
    Q_EMIT (model.*signal)();
}

}  // namespace

void LedgerViewModel::setDraft(std::optional<TransactionDraft> draft) {
    change(*this, draft_, std::move(draft), &LedgerViewModel::draftChanged);
}

void LedgerViewModel::setScenarioAdjustments(std::vector<ScenarioAdjustment> adjustments) {
    change(*this, scenarioAdjustments_, std::move(adjustments), &LedgerViewModel::scenarioAdjustmentsChanged);
}

void LedgerViewModel::setSidebarSelection(std::optional<QString> screen) {
    if (screen == sidebarSelection_) return;
    if (preferences_) {
        if (screen) {
            preferences_->setValue(sidebarSelectionKey, *screen);
        } else {
            preferences_->remove(sidebarSelectionKey);
        }
    }
    change(*this, sidebarSelection_, std::move(screen), &LedgerViewModel::sidebarSelectionChanged);
}

void LedgerViewModel::setChoosingImportFile(bool choosing) {
    change(*this, isChoosingImportFile_, choosing, &LedgerViewModel::choosingImportFileChanged);
}

void LedgerViewModel::setExchangeRates(std::optional<ExchangeRates> rates) {
    if (rates == exchangeRates_) return;
    exchangeRates_ = std::move(rates);
    Q_EMIT exchangeRatesChanged();
}

void LedgerViewModel::setNotificationsDenied(bool denied) {
    if (denied == notificationsDenied_) return;
    notificationsDenied_ = denied;
    Q_EMIT notificationsDeniedChanged();
}

void LedgerViewModel::setAlertSettings(const AlertSettings& settings) {
    if (settings == alertSettings_) return;
    alertSettings_ = settings;
    if (preferences_) preferences_->setAlertSettings(settings);
    Q_EMIT alertSettingsChanged();
}

void LedgerViewModel::setAlertNotifications(bool enabled) {
    if (enabled == alertNotifications_) return;
    alertNotifications_ = enabled;
    if (preferences_) preferences_->setAlertNotifications(enabled);
    Q_EMIT alertSettingsChanged();
}

}  // namespace vantello::app
