#pragma once
// The file-system steps that attachments, backups, restores and the Trash share: copies that
// reach the disk before they are trusted, renames that never replace, and removals, all
// failing with a localised FileError that names the file.

#include "core/base/AtomicFile.hpp"

#include <filesystem>

namespace vantello::FileOperations {

// Copies one regular file (following a symbolic link) to `to`, which must not exist yet, and
// flushes the copy to the disk. A folder is refused with EISDIR, a pipe, device or socket with
// FileError::notRegular. On failure the partial copy is gone.
void copyFile(const std::filesystem::path& from, const std::filesystem::path& to);

// Copies a folder with everything in it to `to`, which must not exist yet; entries that are
// neither folders nor regular files are refused. On failure the partial copy is gone.
void copyFolder(const std::filesystem::path& from, const std::filesystem::path& to);

// A file or a folder, whichever `from` is.
void copyItem(const std::filesystem::path& from, const std::filesystem::path& to);

// Renames in one step; FileError::moving on failure.
void moveItem(const std::filesystem::path& from, const std::filesystem::path& to);

// Renames unless something already has the name `to`: false then, and nothing moved.
[[nodiscard]] bool moveItemWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to);

// Removes a file or a folder with everything in it; a missing item is fine.
void removeItem(const std::filesystem::path& item);

// Whether anything (even a dangling link) has this name; FileError when the folder cannot be read.
[[nodiscard]] bool itemExists(const std::filesystem::path& item);

// Makes the renames and creations inside a folder durable; best effort.
void syncFolder(const std::filesystem::path& folder);

// "Non riesco a eliminare «{file}»: {reason}."
[[nodiscard]] FileError removingError(const std::filesystem::path& item, int systemError);

}  // namespace vantello::FileOperations
