#pragma once
// Where the user's own data lives ($XDG_DATA_HOME/Vantello, by default ~/.local/share/Vantello),
// and the lock that keeps a second writer (another window, the command line) out of a folder.

#include "core/base/UserError.hpp"

#include <filesystem>

namespace vantello {

enum class DataFolderErrorCode { notFound, locked };

class DataFolderError : public CodedError<DataFolderErrorCode> {
public:
    using Code = DataFolderErrorCode;
    explicit DataFolderError(Code code);
};

// $XDG_DATA_HOME/Vantello, or $HOME/.local/share/Vantello when XDG_DATA_HOME is unset, empty or
// relative. Nothing is created. DataFolderError notFound when HOME is unusable as well.
[[nodiscard]] std::filesystem::path dataFolder();

// Holds "vantello.lock" in a data folder for as long as it lives. Writers take it before they
// change anything in the folder; readers do not need it. The operating system drops the lock
// when the process ends, however it ends, so a crash never leaves the folder locked.
class DataFolderLock {
public:
    // Creates the folder when missing (FileError when it cannot). DataFolderError locked when
    // another holder, in this process or another, has the folder. Once it holds the folder it
    // clears what writers killed half-way left: temporary files, and a restore it finishes or
    // undoes (FileError, and no lock, when that fails).
    explicit DataFolderLock(const std::filesystem::path& folder);
    DataFolderLock(const DataFolderLock&) = delete;
    DataFolderLock& operator=(const DataFolderLock&) = delete;
    DataFolderLock(DataFolderLock&& other) noexcept;
    DataFolderLock& operator=(DataFolderLock&& other) noexcept;
    ~DataFolderLock();

private:
    int fd_ = -1;
};

}  // namespace vantello
