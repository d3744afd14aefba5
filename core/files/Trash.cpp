#include "core/files/Trash.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/FileOperations.hpp"
#include "core/files/WallClock.hpp"

#include <cerrno>
#include <cstdio>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace vantello {

namespace {

namespace fs = std::filesystem;

std::string deletionDate(Instant now, const Calendar& calendar) {
    const WallClockTime time = wallClockTime(now, calendar);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02d", time.day.year, time.day.month, time.day.day,
                  time.hour, time.minute, time.second);
    return text;
}

std::string candidateName(const std::string& name, int attempt) {
    return attempt == 1 ? name : name + " " + std::to_string(attempt);
}

// Claims a name by creating its info file exclusively, so that two programs trashing at once never
// take the same name; returns the name, with the record written.
std::string claimName(const fs::path& trash, const std::string& name, const std::string& record) {
    for (int attempt = 1;; ++attempt) {
        const std::string candidate = candidateName(name, attempt);
        if (FileOperations::itemExists(trash / "files" / candidate)) continue;
        const fs::path info = trash / "info" / (candidate + ".trashinfo");
        const int fd = ::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0) {
            if (errno == EEXIST) continue;
            throw FileError::writing(info, errno);
        }
        const bool written = ::write(fd, record.data(), record.size()) == static_cast<ssize_t>(record.size());
        const int failure = errno;
        if (::close(fd) != 0 || !written) {
            ::unlink(info.c_str());
            throw FileError::writing(info, written ? errno : failure);
        }
        return candidate;
    }
}

void makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError::writing(folder, error.value());
    fs::permissions(folder, fs::perms::owner_all, error);
}

}  // namespace

// The data folder is $XDG_DATA_HOME/Vantello (with the same fallback), so its parent is the
// base the Trash lives in.
fs::path homeTrashFolder() { return dataFolder().parent_path() / "Trash"; }

std::string trashInfoPath(const fs::path& absolute) {
    static constexpr std::string_view unreserved =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.~/";
    std::string encoded;
    for (const char byte : absolute.string()) {
        if (unreserved.find(byte) != std::string_view::npos) {
            encoded += byte;
        } else {
            char escape[4];
            std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned char>(byte));
            encoded += escape;
        }
    }
    return encoded;
}

fs::path moveToTrash(const fs::path& item, const fs::path& trash, Instant now, const Calendar& calendar) {
    const fs::path source = fs::absolute(item).lexically_normal();
    if (!FileOperations::itemExists(source)) throw FileError::moving(source, ENOENT);
    makeFolder(trash / "files");
    makeFolder(trash / "info");

    const std::string record = "[Trash Info]\nPath=" + trashInfoPath(source) +
                               "\nDeletionDate=" + deletionDate(now, calendar) + "\n";
    const std::string name = claimName(trash, source.filename().string(), record);
    const fs::path info = trash / "info" / (name + ".trashinfo");
    const fs::path target = trash / "files" / name;
    try {
        if (::rename(source.c_str(), target.c_str()) != 0) {
            if (errno != EXDEV) throw FileError::moving(source, errno);
            FileOperations::copyItem(source, target);
            // Should this fail half-way, the whole copy is already safe in the Trash.
            FileOperations::removeItem(source);
        }
    } catch (...) {
        if (!FileOperations::itemExists(target)) ::unlink(info.c_str());
        throw;
    }
    return target;
}

}  // namespace vantello
