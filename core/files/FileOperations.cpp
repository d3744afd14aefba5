#include "core/files/FileOperations.hpp"

#include "core/base/FileDescriptor.hpp"
#include "core/base/Localization.hpp"
#include "core/base/SystemReason.hpp"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantello::FileOperations {

namespace {

namespace fs = std::filesystem;

// 0 when every byte of `from` reached `to` and the disk, else the errno value; `readFailed`
// tells whose fault it was.
int pump(int from, int to, bool& readFailed) {
    std::vector<char> buffer(1 << 20);
    for (;;) {
        const ssize_t count = ::read(from, buffer.data(), buffer.size());
        if (count < 0) {
            if (errno == EINTR) continue;
            readFailed = true;
            return errno;
        }
        if (count == 0) break;
        const char* position = buffer.data();
        auto left = static_cast<std::size_t>(count);
        while (left > 0) {
            const ssize_t written = ::write(to, position, left);
            if (written < 0) {
                if (errno == EINTR) continue;
                return errno;
            }
            position += written;
            left -= static_cast<std::size_t>(written);
        }
    }
    return ::fsync(to) != 0 ? errno : 0;
}

}  // namespace

FileError removingError(const fs::path& item, int systemError) {
    return FileError(L10n::tr("Non riesco a eliminare «{file}»: {reason}.",
                              {{"file", item.string()}, {"reason", systemReason(systemError)}}),
                     systemError);
}

void copyFile(const fs::path& from, const fs::path& to) {
    // Non-blocking, so that a named pipe cannot hang the copy before it is refused.
    FileDescriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (source.get() < 0) throw FileError::reading(from, errno);
    struct stat status {};
    if (::fstat(source.get(), &status) != 0) throw FileError::reading(from, errno);
    if (S_ISDIR(status.st_mode)) throw FileError::reading(from, EISDIR);
    if (!S_ISREG(status.st_mode)) throw FileError::notRegular(from);
    ::fcntl(source.get(), F_SETFL, O_RDONLY);

    FileDescriptor target(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, status.st_mode & 0777));
    if (target.get() < 0) throw FileError::writing(to, errno);
    bool readFailed = false;
    int failure = pump(source.get(), target.get(), readFailed);
    if (target.close() != 0 && failure == 0) failure = errno;
    if (failure != 0) {
        ::unlink(to.c_str());
        throw readFailed ? FileError::reading(from, failure) : FileError::writing(to, failure);
    }
}

void copyFolder(const fs::path& from, const fs::path& to) {
    if (::mkdir(to.c_str(), 0755) != 0) throw FileError::writing(to, errno);
    try {
        std::error_code error;
        fs::directory_iterator entries(from, error);
        if (error) throw FileError::reading(from, error.value());
        for (; entries != fs::directory_iterator(); entries.increment(error)) {
            const fs::path& entry = entries->path();
            if (entries->symlink_status(error).type() == fs::file_type::directory) {
                copyFolder(entry, to / entry.filename());
            } else {
                copyFile(entry, to / entry.filename());
            }
        }
        if (error) throw FileError::reading(from, error.value());
        syncFolder(to);
    } catch (...) {
        std::error_code ignored;
        fs::remove_all(to, ignored);
        throw;
    }
}

void copyItem(const fs::path& from, const fs::path& to) {
    struct stat status {};
    if (::lstat(from.c_str(), &status) != 0) throw FileError::reading(from, errno);
    if (S_ISDIR(status.st_mode)) {
        copyFolder(from, to);
    } else {
        copyFile(from, to);
    }
}

void moveItem(const fs::path& from, const fs::path& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) throw FileError::moving(from, errno);
}

bool moveItemWithoutReplacing(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno == EEXIST) return false;
    // File systems without RENAME_NOREPLACE: look first. Good enough under the folder's lock.
    if (errno != EINVAL && errno != ENOSYS) throw FileError::moving(from, errno);
    if (itemExists(to)) return false;
    moveItem(from, to);
    return true;
}

void removeItem(const fs::path& item) {
    std::error_code error;
    fs::remove_all(item, error);
    if (error && error != std::errc::no_such_file_or_directory) throw removingError(item, error.value());
}

bool itemExists(const fs::path& item) {
    struct stat status {};
    if (::lstat(item.c_str(), &status) == 0) return true;
    if (errno == ENOENT || errno == ENOTDIR) return false;
    throw FileError::reading(item, errno);
}

void syncFolder(const fs::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace vantello::FileOperations
