#pragma once
// The user's home Trash as freedesktop.org defines it ($XDG_DATA_HOME/Trash, by default
// ~/.local/share/Trash): a removed file or folder goes to "files/" and a ".trashinfo" record
// beside it in "info/" says where it came from and when, so the desktop's file manager can put
// it back.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"

#include <filesystem>
#include <string>

namespace vantello {

// $XDG_DATA_HOME/Trash, or $HOME/.local/share/Trash; DataFolderError notFound without either.
[[nodiscard]] std::filesystem::path homeTrashFolder();

// "/home/anna/Vantello%20dati" for the Path= line: every byte but unreserved characters and "/"
// percent-encoded.
[[nodiscard]] std::string trashInfoPath(const std::filesystem::path& absolute);

// Moves `item` into `trash` under its own name, or "name 2", "name 3"… when taken, with its
// record dated `now` in the calendar's zone. Across file systems the item is copied and then
// removed. Returns where it went; FileError when it cannot go (the item is then left in place).
std::filesystem::path moveToTrash(const std::filesystem::path& item, const std::filesystem::path& trash, Instant now,
                                  const Calendar& calendar);

}  // namespace vantello
