#pragma once
// What the backup commands share: the backup folder ("--folder DIR", else "Backup" in the root
// data folder), whose data they copy (the profile chosen with --profile, else the user's own),
// and how a backup is printed.

#include "cli/Arguments.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Json.hpp"
#include "core/files/BackupStore.hpp"

#include <optional>
#include <ostream>

namespace vantello::cli {

[[nodiscard]] BackupStore backupStore(const Arguments& arguments);
[[nodiscard]] std::optional<BackupOwner> backupOwner(const Arguments& arguments);

[[nodiscard]] Json backupJson(const BackupInfo& backup);
// "Vantello 2025-03-01 10.00.00  (Mario Rossi)" with the folder on the next line.
void printBackup(const BackupInfo& backup, std::ostream& out);

}  // namespace vantello::cli
