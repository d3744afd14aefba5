#pragma once
// The one observable model of the application: the ledger of the profile in use, the month and
// account shown, the demo mode, the messages, undo and redo, and the values the month screens
// derive. Every change goes through one door, `apply`: the operation runs on a copy of the
// ledger, and only when the copy differs is it taken, counted, saved off the main thread and
// announced. Lives on the main thread.

#include "app/model/Memo.hpp"
#include "app/model/UndoHistory.hpp"
#include "app/settings/Preferences.hpp"
#include "core/analysis/MonthSummary.hpp"
#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/BackupStore.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/DiskWriter.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/files/ManagedProfile.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerEmployment.hpp"
#include "core/ledger/TransactionDraft.hpp"
#include "core/planning/SalaryReminder.hpp"
#include "core/planning/Scenario.hpp"
#include "core/rates/ExchangeRates.hpp"
#include "core/statements/ImportMerge.hpp"
#include "core/statements/StatementImport.hpp"

#include <QObject>
#include <QString>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace vantello::app {

class LedgerAnalyses;

class LedgerViewModel : public QObject {
    Q_OBJECT

public:
    struct Setup {
        // Where "movimenti.json" and "Allegati" live; absent when no data folder could be
        // found, and then nothing is ever saved.
        std::optional<std::filesystem::path> dataFolder;
        std::optional<ManagedProfile> profile;  // absent for the user's own data
        Calendar calendar = Calendar::current();
        std::function<Instant()> now;  // the clock; the system's when empty
        Preferences* preferences = nullptr;
        // "Backup" beside the user's own data, shared by every profile; used unless the user
        // chose another folder. Absent with the data folder.
        std::optional<std::filesystem::path> defaultBackupFolder;
    };

    // Where an operation's failure goes: the error banner, or back to the sheet that asked.
    enum class ErrorRoute { banner, caller };

    explicit LedgerViewModel(Setup setup, QObject* parent = nullptr);
    // Waits for every write handed to the writer.
    ~LedgerViewModel() override;

    // Returns once everything handed to the writer is on disk (the application's quit).
    void flushWrites() { writer_->flush(); }

    // ---- the ledger and its state
    [[nodiscard]] const Ledger& ledger() const { return ledger_; }
    [[nodiscard]] std::uint64_t ledgerRevision() const { return revision_; }
    [[nodiscard]] bool isDemo() const { return isDemo_; }
    [[nodiscard]] bool canSave() const { return canSave_; }
    [[nodiscard]] bool canRemoveAttachments() const { return canRemoveAttachments_; }
    [[nodiscard]] bool hasStore() const { return store_.has_value(); }
    [[nodiscard]] const std::optional<ManagedProfile>& profile() const { return profile_; }
    [[nodiscard]] const std::optional<AttachmentStore>& attachmentStore() const { return attachmentStore_; }
    [[nodiscard]] const Calendar& calendar() const { return calendar_; }
    [[nodiscard]] Instant now() const { return now_(); }
    [[nodiscard]] Preferences& preferences() const { return *preferences_; }

    [[nodiscard]] const std::optional<QString>& errorMessage() const { return errorMessage_; }
    void setErrorMessage(std::optional<QString> message);

    // ---- the one door for every change. `actionName` names it for undo ("Elimina movimento").
    // A typed error of the core leaves the ledger as it was and becomes the error message, or is
    // returned to the caller with ErrorRoute::caller (the open sheet shows it).
    std::optional<QString> apply(const QString& actionName, const std::function<void(Ledger&)>& operation,
                                 ErrorRoute route = ErrorRoute::banner);

    // ---- movements, the operations of the month screen, the editor and the quick add
    // A new movement of the kind dated now, in its first category and the account shown (or the
    // main one).
    [[nodiscard]] TransactionDraft newDraft(TransactionKind kind) const;
    // An existing movement for the editor; nothing for an unknown id.
    [[nodiscard]] std::optional<TransactionDraft> draftOf(const Uuid& transactionID) const;
    // This month's salary, prefilled from the last one (amount, account, note).
    [[nodiscard]] TransactionDraft salaryDraft() const;
    // Adds or changes the movement; a bad amount or the core's error goes back to the sheet,
    // which stays open.
    std::optional<QString> saveDraft(const TransactionDraft& draft);
    // Deletes the movements in one change ("Elimina movimento" or "Elimina movimenti").
    void deleteTransactions(const std::vector<Uuid>& transactionIDs);
    // A copy of the movement dated now, without its attachments; returns its id.
    std::optional<Uuid> duplicateTransaction(const Uuid& transactionID);
    // Copies a picked file into the attachments folder for the open editor; until the movement
    // is saved the clean-up after each write keeps it. The reason in the user's language when
    // the file cannot be attached.
    [[nodiscard]] std::variant<Attachment, QString> importAttachment(const std::filesystem::path& file);
    // The editor closed: a cancelled editor's copies are removed, a saved one's are kept by the
    // movement now.
    void finishEditingAttachments(bool saved);
    // The in-app salary banner's text when it is due, nothing otherwise.
    [[nodiscard]] std::optional<QString> salaryBannerText() const;

    // ---- undo and redo, through the same door; never across a reload or the demo
    [[nodiscard]] bool canUndo() const { return history_.canUndo(); }
    [[nodiscard]] bool canRedo() const { return history_.canRedo(); }
    // "Annulla Elimina movimento", "Ripeti Elimina movimento"; just "Annulla"/"Ripeti" when
    // there is nothing to take back.
    [[nodiscard]] QString undoTitle() const;
    [[nodiscard]] QString redoTitle() const;
    void undo();
    void redo();

    // ---- loading, recurring movements, the demo
    // Reads the ledger file again once every write has finished (nothing to undo afterwards).
    void reload();
    // Creates the recurring movements due up to now; returns how many.
    int generateDueTransactions();
    void enterDemo();
    void exitDemo();

    // ---- work periods and the salary reminder
    // Saves a period from the editor (its error goes back to the editor) and creates the
    // recurring movements the change made due.
    std::optional<QString> saveWorkPeriod(const UnemploymentDraft& draft);
    void deleteWorkPeriod(const Uuid& periodID);
    [[nodiscard]] const SalaryReminder& salaryReminder() const { return salaryReminder_; }
    void setSalaryReminder(const SalaryReminder& reminder);
    // The day the salary banner was put off ("salaryReminderDismissedDay").
    [[nodiscard]] const std::optional<Instant>& salaryPostponedDay() const { return salaryPostponedDay_; }
    void postponeSalaryBanner();

    // ---- what the screens have open, kept here so that every screen sees the same
    // The movement in the editor sheet; absent when no editor is open.
    [[nodiscard]] const std::optional<TransactionDraft>& draft() const { return draft_; }
    void setDraft(std::optional<TransactionDraft> draft);
    // The what-if changes being edited; never saved.
    [[nodiscard]] const std::vector<ScenarioAdjustment>& scenarioAdjustments() const { return scenarioAdjustments_; }
    void setScenarioAdjustments(std::vector<ScenarioAdjustment> adjustments);
    // The screen shown in the main window ("movements", "charts"…), kept under "sidebarSelection".
    [[nodiscard]] const std::optional<QString>& sidebarSelection() const { return sidebarSelection_; }
    void setSidebarSelection(std::optional<QString> screen);
    [[nodiscard]] bool isChoosingImportFile() const { return isChoosingImportFile_; }
    void setChoosingImportFile(bool choosing);

    // ---- the ECB's reference rates last fetched (or read from the cache), for the editor
    [[nodiscard]] const std::optional<ExchangeRates>& exchangeRates() const { return exchangeRates_; }
    void setExchangeRates(std::optional<ExchangeRates> rates);

    // ---- smart alerts' settings
    [[nodiscard]] const AlertSettings& alertSettings() const { return alertSettings_; }
    void setAlertSettings(const AlertSettings& settings);
    [[nodiscard]] bool alertNotifications() const { return alertNotifications_; }
    void setAlertNotifications(bool enabled);
    // The desktop has no notification server: only the in-app banners remain.
    [[nodiscard]] bool notificationsDenied() const { return notificationsDenied_; }
    void setNotificationsDenied(bool denied);

    // ---- bank statements and exports
    struct ImportSession {
        Uuid id;
        std::filesystem::path file;
        QString fileName;
        CSVImportOverrides overrides;  // the user's choices over the guess
        StatementImport statement;     // the rows as read with them
    };
    struct ExportRequest {
        std::string document;  // the CSV text
        QString fileName;      // proposed to the user
    };
    [[nodiscard]] const std::optional<ImportSession>& importSession() const { return importSession_; }
    // Reads a statement for the import sheet; a file that cannot be read says why in the banner.
    void openImportFile(const std::filesystem::path& file);
    // Reads the open statement again with the user's choices; their error goes to the sheet.
    std::optional<QString> reviseImport(const CSVImportOverrides& overrides);
    // Merges the statement's movements into the account and closes the session; the counts are
    // what the sheet reports. Undone as one change ("Importa movimenti").
    std::optional<ImportResult> confirmImport(const std::string& accountID, bool detectTransfers,
                                              RepeatedMovements repeated = RepeatedMovements::oneDuplicate);
    void cancelImport();

    [[nodiscard]] const std::optional<ExportRequest>& exportRequest() const { return exportRequest_; }
    // The month shown (with the account filter) or every movement, for the user to save.
    void exportMonth();
    void exportAll();
    // Writes the waiting document to `file` in one step (a failure leaves any file there as it
    // was) and finishes the request; the reason in the user's language when it cannot.
    std::optional<QString> saveExport(const std::filesystem::path& file);
    void finishExport();

    // ---- backups (made and restored on the writer's thread, after every save handed over)
    [[nodiscard]] const std::vector<BackupInfo>& backups() const { return backups_; }
    [[nodiscard]] const std::optional<QString>& backupError() const { return backupError_; }
    // The folder the user chose, absent for the default one.
    [[nodiscard]] const std::optional<std::filesystem::path>& customBackupFolder() const { return customBackupFolder_; }
    [[nodiscard]] std::optional<BackupStore> backupStore() const;
    // Makes today's backup unless there is one.
    void backUpIfNoneToday();
    void backUpNow();
    // Backs up the current state, puts the backup back and reads the ledger again.
    void restoreBackup(const BackupInfo& backup);
    // A folder the backups can be written to, or back to the default one (nothing).
    void setCustomBackupFolder(std::optional<std::filesystem::path> folder);
    void refreshBackups();

    // ---- the month and account shown
    [[nodiscard]] Instant selectedMonth() const { return selectedMonth_; }
    void showPreviousMonth();
    void showNextMonth();
    void showCurrentMonth();
    [[nodiscard]] bool isShowingCurrentMonth() const;
    [[nodiscard]] const std::optional<std::string>& selectedAccountID() const { return selectedAccountID_; }
    void setSelectedAccountID(std::optional<std::string> accountID);

    // ---- derived values, worked out when asked and kept until their inputs change
    // The ledger the month screens read: every movement, or those of the selected account.
    [[nodiscard]] const Ledger& visibleLedger();
    [[nodiscard]] const MonthSummary& monthSummary();
    [[nodiscard]] const std::vector<Transaction>& monthTransactions();
    [[nodiscard]] const std::vector<SmartAlert>& alerts();
    // The analyses of the whole history, worked out ahead after each change.
    [[nodiscard]] LedgerAnalyses& analyses() { return *analyses_; }

Q_SIGNALS:
    void ledgerChanged();
    void demoChanged();
    void canSaveChanged();
    void errorMessageChanged();
    void undoStateChanged();
    void selectedMonthChanged();
    void selectedAccountChanged();
    void backupsChanged();
    void importSessionChanged();
    void salaryReminderChanged();
    void alertSettingsChanged();
    void notificationsDeniedChanged();
    void exchangeRatesChanged();
    void draftChanged();
    void scenarioAdjustmentsChanged();
    void sidebarSelectionChanged();
    void choosingImportFileChanged();
    void exportRequestChanged();

private:
    using MonthInputs = std::tuple<std::uint64_t, Instant, std::optional<std::string>, Instant>;

    void load();
    void readLedgerFile();  // into ledger_, setting the state and message of a failure
    void takeLedger(Ledger ledger);  // assign, count, save, announce
    void save();
    void setSelectedMonth(Instant month);
    void setCanSave(bool canSave);
    [[nodiscard]] MonthInputs monthInputs() const;
    [[nodiscard]] std::optional<BackupOwner> backupOwner() const;
    void setExportRequest(std::vector<Transaction> transactions, QString fileName);
    // Runs `work` on the writer's thread; its failure becomes the backup message `prefix` + why.
    void onWriterThread(std::function<void()> work, std::string prefix, std::function<void()> then = {});
    void setBackupError(std::optional<QString> message);

    Calendar calendar_;
    std::function<Instant()> now_;
    Preferences* preferences_;
    std::optional<ManagedProfile> profile_;
    std::optional<DataFolderLock> lock_;
    std::optional<LedgerStore> store_;
    std::optional<AttachmentStore> attachmentStore_;
    std::unique_ptr<DiskWriter> writer_;

    Ledger ledger_;
    std::uint64_t revision_ = 0;
    bool isDemo_ = false;
    bool canSave_ = true;
    bool canRemoveAttachments_ = true;
    std::optional<QString> errorMessage_;
    UndoHistory history_;
    Instant selectedMonth_;
    std::optional<std::string> selectedAccountID_;
    std::optional<std::filesystem::path> defaultBackupFolder_;
    std::optional<std::filesystem::path> customBackupFolder_;
    std::vector<BackupInfo> backups_;
    std::optional<QString> backupError_;
    std::optional<ImportSession> importSession_;
    SalaryReminder salaryReminder_;
    std::optional<Instant> salaryPostponedDay_;
    AlertSettings alertSettings_;
    bool alertNotifications_ = false;
    bool notificationsDenied_ = false;
    std::optional<ExchangeRates> exchangeRates_;
    std::optional<TransactionDraft> draft_;
    std::vector<Attachment> unsavedAttachments_;
    std::vector<ScenarioAdjustment> scenarioAdjustments_;
    std::optional<QString> sidebarSelection_;
    bool isChoosingImportFile_ = false;
    std::optional<ExportRequest> exportRequest_;

    Memo<Ledger, std::tuple<std::uint64_t, std::optional<std::string>>> visibleLedger_;
    Memo<MonthSummary, MonthInputs> monthSummary_;
    Memo<std::vector<Transaction>, MonthInputs> monthTransactions_;
    LedgerAnalyses* analyses_ = nullptr;  // a child of this object
};

}  // namespace vantello::app
