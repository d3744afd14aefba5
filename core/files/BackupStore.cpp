#include "core/files/BackupStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/FileOperations.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/files/RestoreSwap.hpp"
#include "core/files/WallClock.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <tuple>

#include <sys/stat.h>

namespace vantello {

namespace {

namespace fs = std::filesystem;

const auto ownerFields = std::tuple{
    JsonFields::required("profileID", &BackupOwner::profileID),
    JsonFields::required("name", &BackupOwner::name),
    JsonFields::required("kind", &BackupOwner::kind),
};

constexpr std::size_t dateLength = 19;  // "yyyy-MM-dd HH.mm.ss"

std::string errorMessage(BackupErrorCode code) {
    switch (code) {
        case BackupErrorCode::notFound: return L10n::tr("Questo backup non esiste più.");
        case BackupErrorCode::otherOwner: return L10n::tr("Questo backup è di un'altra gestione.");
    }
    return {};
}

// A name part taken from user text: trimmed, without the characters that cannot be in a
// folder name on one system or another.
std::string sanitised(std::string_view name) {
    std::string kept;
    for (const char character : Text::trimmed(name)) {
        if (character != '/' && character != ':' && character != '\\') kept += character;
    }
    return Text::trimmed(kept);
}

std::string backupName(const std::optional<BackupOwner>& owner, Instant now, const Calendar& calendar) {
    const WallClockTime time = wallClockTime(now, calendar);
    char date[32];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d %02d.%02d.%02d", time.day.year, time.day.month, time.day.day,
                  time.hour, time.minute, time.second);
    std::string name = std::string(BackupStore::namePrefix) + date;
    if (owner) {
        const std::string ownerName = sanitised(owner->name);
        if (!ownerName.empty()) name += " " + ownerName;
    }
    return name;
}

// The number written by the digits of `text` at [start, start + count), already checked.
int number(std::string_view text, std::size_t start, std::size_t count) {
    int value = 0;
    for (const char digit : text.substr(start, count)) value = value * 10 + (digit - '0');
    return value;
}

// The moment in a backup folder's name, or nothing when the name is not a backup's.
std::optional<Instant> dateOfName(std::string_view name, const Calendar& calendar) {
    if (!name.starts_with(BackupStore::namePrefix)) return std::nullopt;
    const std::string_view date = name.substr(BackupStore::namePrefix.size());
    if (date.size() < dateLength || (date.size() > dateLength && date[dateLength] != ' ')) return std::nullopt;
    constexpr std::string_view shape = "0000-00-00 00.00.00";
    for (std::size_t index = 0; index < dateLength; ++index) {
        const bool isDigit = date[index] >= '0' && date[index] <= '9';
        if (shape[index] == '0' ? !isDigit : date[index] != shape[index]) return std::nullopt;
    }
    const int hour = number(date, 11, 2), minute = number(date, 14, 2), second = number(date, 17, 2);
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return calendar.date(CivilDate{number(date, 0, 4), number(date, 5, 2), number(date, 8, 2)}, hour, minute,
                         second);
}

std::optional<BackupOwner> readOwner(const fs::path& backup) {
    try {
        return JsonCoding::parse(readWholeFile(backup / BackupStore::ownerFileName)).get<BackupOwner>();
    } catch (const std::exception&) {
        // No record is the user's own data; a damaged one cannot name its owner either.
        return std::nullopt;
    }
}

}  // namespace

BackupOwner BackupOwner::of(const ManagedProfile& profile) {
    return BackupOwner{profile.id, profile.displayName(), profile.kind};
}

void to_json(Json& json, const BackupOwner& owner) { JsonFields::write(json, owner, ownerFields); }

void from_json(const Json& json, BackupOwner& owner) { JsonFields::read(json, owner, ownerFields); }

BackupError::BackupError(Code code) : CodedError(code, errorMessage(code)) {}

BackupStore BackupStore::inDataFolder(const fs::path& root) { return BackupStore{root / folderName}; }

// A backup cut short (the process killed while copying) leaves its hidden folder. One that has
// not changed for a day is no backup still being made, by this process or another.
void BackupStore::removeAbandonedPartialBackups() const {
    std::error_code error;
    const auto dayAgo = fs::file_time_type::clock::now() - std::chrono::hours(24);
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (name.rfind(partialPrefix, 0) != 0 || !entry.is_directory(error)) continue;
        const auto modified = entry.last_write_time(error);
        if (!error && modified < dayAgo) fs::remove_all(entry.path(), error);
    }
}

BackupInfo BackupStore::copyIntoNewBackup(const fs::path& dataFolder, const std::optional<BackupOwner>& owner,
                                          Instant now, const Calendar& calendar) const {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError::writing(folder, error.value());

    removeAbandonedPartialBackups();
    const fs::path partial = folder / (std::string(partialPrefix) + Uuid::random().text());
    if (::mkdir(partial.c_str(), 0755) != 0) throw FileError::writing(partial, errno);
    try {
        const fs::path ledger = dataFolder / LedgerStore::fileName;
        if (FileOperations::itemExists(ledger)) FileOperations::copyFile(ledger, partial / LedgerStore::fileName);
        const fs::path attachments = dataFolder / AttachmentStore::folderName;
        if (FileOperations::itemExists(attachments)) {
            FileOperations::copyFolder(attachments, partial / AttachmentStore::folderName);
        }
        if (owner) writeFileAtomically(partial / ownerFileName, JsonCoding::pretty(*owner));
        FileOperations::syncFolder(partial);

        const std::string name = backupName(owner, now, calendar);
        for (int attempt = 1;; ++attempt) {
            const fs::path target = folder / (attempt == 1 ? name : name + " (" + std::to_string(attempt) + ")");
            if (FileOperations::moveItemWithoutReplacing(partial, target)) {
                FileOperations::syncFolder(folder);
                return BackupInfo{target, *dateOfName(target.filename().string(), calendar),
                                  owner ? std::optional(owner->profileID) : std::nullopt,
                                  owner ? std::optional(owner->name) : std::nullopt};
            }
        }
    } catch (...) {
        fs::remove_all(partial, error);
        throw;
    }
}

BackupInfo BackupStore::makeBackup(const fs::path& dataFolder, const std::optional<BackupOwner>& owner,
                                   std::size_t keep, Instant now, const Calendar& calendar) const {
    BackupInfo made = copyIntoNewBackup(dataFolder, owner, now, calendar);
    prune(keep, made.profileID, calendar);
    return made;
}

std::vector<BackupInfo> BackupStore::list(const Calendar& calendar) const {
    std::vector<BackupInfo> backups;
    std::error_code error;
    for (fs::directory_iterator entries(folder, error); !error && entries != fs::directory_iterator();
         entries.increment(error)) {
        const std::string name = entries->path().filename().string();
        const auto date = dateOfName(name, calendar);
        std::error_code ignored;
        if (!date || !entries->is_directory(ignored)) continue;
        BackupInfo info{entries->path(), *date, std::nullopt, std::nullopt};
        if (const auto owner = readOwner(entries->path())) {
            info.profileID = owner->profileID;
            info.profileName = owner->name;
        }
        backups.push_back(std::move(info));
    }
    std::sort(backups.begin(), backups.end(), [](const BackupInfo& a, const BackupInfo& b) {
        return std::tie(a.date, a.folder) > std::tie(b.date, b.folder);
    });
    return backups;
}

BackupInfo BackupStore::find(std::string_view name, const Calendar& calendar) const {
    for (BackupInfo& backup : list(calendar)) {
        if (backup.name() == name) return std::move(backup);
    }
    throw BackupError(BackupError::Code::notFound);
}

void BackupStore::prune(std::size_t keep, const std::optional<Uuid>& owner, const Calendar& calendar) const {
    std::size_t kept = 0;
    for (const BackupInfo& backup : list(calendar)) {
        if (backup.profileID != owner) continue;
        if (kept < keep) {
            ++kept;
            continue;
        }
        FileOperations::removeItem(backup.folder);
    }
}

void BackupStore::restore(const BackupInfo& backup, const fs::path& dataFolder) const {
    std::error_code error;
    fs::create_directories(dataFolder, error);
    if (error) throw FileError::writing(dataFolder, error.value());
    const RestoreSwap swap(dataFolder);
    swap.prepare(backup.folder);
    swap.commit();
}

bool BackupStore::isThereABackupOfToday(const std::optional<Uuid>& owner, Instant now,
                                        const Calendar& calendar) const {
    const CivilDate today = calendar.civilDate(now);
    const auto backups = list(calendar);
    return std::any_of(backups.begin(), backups.end(), [&](const BackupInfo& backup) {
        return backup.profileID == owner && calendar.civilDate(backup.date) == today;
    });
}

BackupInfo restoreWithSafetyBackup(const BackupStore& store, const BackupInfo& backup, const fs::path& dataFolder,
                                   const std::optional<BackupOwner>& owner, std::size_t keep, Instant now,
                                   const Calendar& calendar) {
    const std::optional<Uuid> ownerID = owner ? std::optional(owner->profileID) : std::nullopt;
    if (backup.profileID != ownerID) throw BackupError(BackupError::Code::otherOwner);
    BackupInfo before = store.copyIntoNewBackup(dataFolder, owner, now, calendar);
    store.restore(backup, dataFolder);
    store.prune(keep, ownerID, calendar);
    return before;
}

}  // namespace vantello
