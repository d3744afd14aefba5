// The application model's backups: today's backup, one on demand, restoring one, and the
// folder they go to. File work runs on the writer's thread, after every save handed over.

#include "app/model/LedgerViewModel.hpp"

#include "core/base/Localization.hpp"
#include "core/base/SystemReason.hpp"

#include <QMetaObject>

#include <filesystem>

namespace vantello::app {

namespace {

QString text(const std::string& message) { return QString::fromStdString(message); }

}  // namespace

std::optional<BackupStore> LedgerViewModel::backupStore() const {
    const auto& folder = customBackupFolder_ ? customBackupFolder_ : defaultBackupFolder_;
    if (!folder) return std::nullopt;
    return BackupStore{*folder};
}

std::optional<BackupOwner> LedgerViewModel::backupOwner() const {
    if (!profile_) return std::nullopt;
    return BackupOwner::of(*profile_);
}

void LedgerViewModel::setBackupError(std::optional<QString> message) {
    if (backupError_ == message) return;
    backupError_ = std::move(message);
    Q_EMIT backupsChanged();
}

void LedgerViewModel::onWriterThread(std::function<void()> work, std::string prefix, std::function<void()> then) {
    writer_->enqueue([this, work = std::move(work), prefix = std::move(prefix), then = std::move(then)] {
        std::optional<std::string> failure;
        try {
            work();
        } catch (const std::exception& error) {
            failure = prefix + error.what();
        }
        QMetaObject::invokeMethod(
            this,
            [this, failure, then] {
                if (failure) setBackupError(text(*failure));
                if (then) then();
                refreshBackups();
            },
            Qt::QueuedConnection);
    });
}

void LedgerViewModel::backUpIfNoneToday() {
    const auto backups = backupStore();
    if (!backups || !store_ || !canSave_ || isDemo_) return;
    const auto owner = backupOwner();
    const std::filesystem::path folder = store_->file().parent_path();
    const Instant now = now_();
    onWriterThread(
        [backups = *backups, owner, folder, now, calendar = calendar_, ledgerFile = store_->file()] {
            // Nothing to keep yet on a first start.
            if (!std::filesystem::exists(ledgerFile)) return;
            if (backups.isThereABackupOfToday(owner ? std::optional(owner->profileID) : std::nullopt, now, calendar)) {
                return;
            }
            backups.makeBackup(folder, owner, BackupStore::defaultKeep, now, calendar);
        },
        L10n::tr("Backup non riuscito: "));
}

void LedgerViewModel::backUpNow() {
    const auto backups = backupStore();
    if (!backups || !store_) return;
    setBackupError(std::nullopt);
    onWriterThread(
        [backups = *backups, owner = backupOwner(), folder = store_->file().parent_path(), now = now_(),
         calendar = calendar_] { backups.makeBackup(folder, owner, BackupStore::defaultKeep, now, calendar); },
        L10n::tr("Backup non riuscito: "));
}

void LedgerViewModel::restoreBackup(const BackupInfo& backup) {
    const auto backups = backupStore();
    if (!backups || !store_ || !canSave_) return;
    setBackupError(std::nullopt);
    onWriterThread(
        [backups = *backups, backup, owner = backupOwner(), folder = store_->file().parent_path(), now = now_(),
         calendar = calendar_] {
            restoreWithSafetyBackup(backups, backup, folder, owner, BackupStore::defaultKeep, now, calendar);
        },
        L10n::tr("Ripristino non riuscito: "), [this] { reload(); });
}

void LedgerViewModel::setCustomBackupFolder(std::optional<std::filesystem::path> folder) {
    if (folder) {
        std::error_code error;
        std::filesystem::create_directories(*folder, error);
        if (!error && !std::filesystem::is_directory(*folder, error)) error = std::make_error_code(std::errc::not_a_directory);
        if (error) {
            setBackupError(text(L10n::tr("Non riesco a usare questa cartella per i backup: ") + systemReason(error.value())));
            return;
        }
    }
    customBackupFolder_ = std::move(folder);
    if (preferences_) preferences_->setBackupFolder(customBackupFolder_);
    setBackupError(std::nullopt);
    refreshBackups();
    backUpIfNoneToday();
}

void LedgerViewModel::refreshBackups() {
    const auto backups = backupStore();
    std::vector<BackupInfo> listed;
    if (backups) {
        try {
            for (BackupInfo& backup : backups->list(calendar_)) {
                if (backup.profileID == (profile_ ? std::optional(profile_->id) : std::nullopt)) {
                    listed.push_back(std::move(backup));
                }
            }
        } catch (const std::exception&) {
            // An unreadable folder lists nothing; making a backup there says why.
        }
    }
    if (listed == backups_) return;
    backups_ = std::move(listed);
    Q_EMIT backupsChanged();
}

}  // namespace vantello::app
