#include "core/files/DataFolder.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Localization.hpp"
#include "core/files/InterruptedWrites.hpp"
#include "core/files/RestoreSwap.hpp"

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vantello {

namespace {

std::string messageFor(DataFolderErrorCode code) {
    switch (code) {
        case DataFolderErrorCode::notFound:
            return L10n::tr("Non trovo la cartella dei dati.");
        case DataFolderErrorCode::locked:
            return L10n::tr("Un altro programma sta modificando questi dati. Chiudilo e riprova.");
    }
    return {};
}

// The XDG base-directory rules ignore relative values.
std::optional<std::filesystem::path> absoluteFromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') return std::nullopt;
    std::filesystem::path path(value);
    if (!path.is_absolute()) return std::nullopt;
    return path;
}

}  // namespace

DataFolderError::DataFolderError(Code code) : CodedError(code, messageFor(code)) {}

std::filesystem::path dataFolder() {
    if (auto dataHome = absoluteFromEnvironment("XDG_DATA_HOME")) return *dataHome / "Vantello";
    if (auto home = absoluteFromEnvironment("HOME")) return *home / ".local" / "share" / "Vantello";
    throw DataFolderError(DataFolderError::Code::notFound);
}

DataFolderLock::DataFolderLock(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw FileError::writing(folder, error.value());

    const auto file = folder / "vantello.lock";
    fd_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd_ < 0) throw FileError::writing(file, errno);
    // flock belongs to the open file description, so a second open in this same process is
    // refused too, just as another process would be.
    int result;
    do {
        result = ::flock(fd_, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        const int failure = errno;
        ::close(fd_);
        fd_ = -1;
        if (failure == EWOULDBLOCK) throw DataFolderError(DataFolderError::Code::locked);
        throw FileError::writing(file, failure);
    }
    // Whoever wrote them is gone: every writer holds the lock while it writes.
    try {
        removeStaleTemporaryFiles(folder);
        finishInterruptedRestore(folder);
    } catch (...) {
        ::close(fd_);
        fd_ = -1;
        throw;
    }
}

DataFolderLock::DataFolderLock(DataFolderLock&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

DataFolderLock& DataFolderLock::operator=(DataFolderLock&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
}

// The lock file itself stays: removing it would let a third process lock a fresh file while a
// second one still waits on the old one.
DataFolderLock::~DataFolderLock() {
    if (fd_ >= 0) ::close(fd_);
}

}  // namespace vantello
