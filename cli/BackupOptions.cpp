#include "cli/BackupOptions.hpp"

#include "core/base/Iso8601.hpp"

#include <chrono>

namespace vantello::cli {

BackupStore backupStore(const Arguments& arguments) {
    if (const auto chosen = arguments.value("--folder")) return BackupStore{*chosen};
    return BackupStore::inDataFolder(arguments.rootFolder());
}

std::optional<BackupOwner> backupOwner(const Arguments& arguments) {
    if (const auto profile = arguments.profile()) return BackupOwner::of(*profile);
    return std::nullopt;
}

Json backupJson(const BackupInfo& backup) {
    return {{"name", backup.name()},
            {"folder", backup.folder.string()},
            {"date", Iso8601::format(backup.date)},
            {"profileID", backup.profileID ? Json(backup.profileID->text()) : Json(nullptr)},
            {"profileName", backup.profileName ? Json(*backup.profileName) : Json(nullptr)}};
}

void printBackup(const BackupInfo& backup, std::ostream& out) {
    out << backup.name() << "  (" << backup.profileName.value_or("i tuoi dati") << ")\n  " << backup.folder.string()
        << '\n';
}

}  // namespace vantello::cli
