#pragma once
// Dated copies of a data folder's ledger and attachments in a backup folder (by default "Backup"
// in the user's data folder): making one, listing them newest first, keeping the newest few of
// each owner, and putting one back.
//
// A backup is a folder "Vantello yyyy-MM-dd HH.mm.ss" (wall-clock time in the calendar's zone),
// followed for a managed profile by a space and the profile's name, holding "movimenti.json",
// "Allegati" and, for a profile, "profilo.json" with its BackupOwner. It is copied under a
// hidden name and renamed into place only when complete, so an interrupted backup is never
// listed. Backups of the user's own data and of each profile share the folder; pruning keeps
// the newest of the same owner only.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Json.hpp"
#include "core/base/UserError.hpp"
#include "core/base/Uuid.hpp"
#include "core/files/ManagedProfile.hpp"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

// Whose data a backup holds, written as "profilo.json" for a managed profile.
struct BackupOwner {
    Uuid profileID;
    std::string name;  // the display name at the time of the backup
    ManagedProfile::Kind kind = ManagedProfile::Kind::person;

    [[nodiscard]] static BackupOwner of(const ManagedProfile& profile);
    bool operator==(const BackupOwner&) const = default;
};

void to_json(Json& json, const BackupOwner& owner);
void from_json(const Json& json, BackupOwner& owner);

struct BackupInfo {
    std::filesystem::path folder;
    Instant date;                            // read back from the folder's name
    std::optional<Uuid> profileID;           // absent for the user's own data
    std::optional<std::string> profileName;  // absent for the user's own data

    [[nodiscard]] std::string name() const { return folder.filename().string(); }
    bool operator==(const BackupInfo&) const = default;
};

enum class BackupErrorCode { notFound, otherOwner };

class BackupError : public CodedError<BackupErrorCode> {
public:
    using Code = BackupErrorCode;
    explicit BackupError(Code code);
};

class BackupStore {
public:
    static constexpr std::string_view folderName = "Backup";
    static constexpr std::string_view namePrefix = "Vantello ";
    static constexpr std::string_view ownerFileName = "profilo.json";
    static constexpr std::size_t defaultKeep = 10;

    // "Backup" in the data folder that holds the user's own data.
    [[nodiscard]] static BackupStore inDataFolder(const std::filesystem::path& root);

    // Copies the data folder's ledger and attachments (those that exist) into a new backup, then
    // keeps the newest `keep` of the same owner. Two backups in the same second get " (2)", " (3)"…
    // after their names. FileError on failure, with nothing half-made left visible.
    BackupInfo makeBackup(const std::filesystem::path& dataFolder, const std::optional<BackupOwner>& owner,
                          std::size_t keep, Instant now, const Calendar& calendar) const;

    // Every backup, newest first. Folders without the prefix, with a date that does not read,
    // and hidden ones are not backups. A missing folder has none.
    [[nodiscard]] std::vector<BackupInfo> list(const Calendar& calendar) const;
    // The backup with this folder name; BackupError notFound otherwise.
    [[nodiscard]] BackupInfo find(std::string_view name, const Calendar& calendar) const;

    // Removes the backups of `owner` (nothing: the user's own data) after the newest `keep`;
    // the first removal that fails stops and throws.
    void prune(std::size_t keep, const std::optional<Uuid>& owner, const Calendar& calendar) const;

    // Puts the backup's ledger and attachments in place of the data folder's; see RestoreSwap.
    // FileError when it fails, with the data folder as it was.
    void restore(const BackupInfo& backup, const std::filesystem::path& dataFolder) const;

    // Whether the owner has a backup dated on the calendar day of `now`.
    [[nodiscard]] bool isThereABackupOfToday(const std::optional<Uuid>& owner, Instant now,
                                             const Calendar& calendar) const;

    std::filesystem::path folder;

    bool operator==(const BackupStore&) const = default;

private:
    // A backup being made is copied under this hidden name, then renamed into place.
    static constexpr std::string_view partialPrefix = ".Vantello ";

    void removeAbandonedPartialBackups() const;
    BackupInfo copyIntoNewBackup(const std::filesystem::path& dataFolder, const std::optional<BackupOwner>& owner,
                                 Instant now, const Calendar& calendar) const;

    friend BackupInfo restoreWithSafetyBackup(const BackupStore&, const BackupInfo&, const std::filesystem::path&,
                                              const std::optional<BackupOwner>&, std::size_t, Instant,
                                              const Calendar&);
};

// How every restore is done: the backup must be of the same owner (BackupError otherOwner); a
// backup of the current state is made first so that the restore can be undone, then the backup
// is restored, then the owner's backups are pruned to `keep` (only now, so that the one being
// restored is never pruned before it is used). Returns the backup of the state before.
BackupInfo restoreWithSafetyBackup(const BackupStore& store, const BackupInfo& backup,
                                   const std::filesystem::path& dataFolder, const std::optional<BackupOwner>& owner,
                                   std::size_t keep, Instant now, const Calendar& calendar);

}  // namespace vantello
