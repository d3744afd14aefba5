#include "core/base/AtomicFile.hpp"

#include "core/base/FileDescriptor.hpp"
#include "core/base/Localization.hpp"
#include "core/base/SystemReason.hpp"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantello {

namespace {

FileError fileError(std::string_view italianPattern, const std::filesystem::path& file, int systemError) {
    return FileError(L10n::tr(italianPattern, {{"file", file.string()}, {"reason", systemReason(systemError)}}),
                     systemError);
}

// The shape of a temporary name, shared by the writer and isTemporaryFileName: "." and the
// target's name, the marker, then the process id, a counter and 32 random bits in hex.
constexpr std::string_view temporaryMarker = ".tmp-";
constexpr std::size_t randomHexDigits = 8;

// Unique within the process (counter) and across processes (random part).
std::string temporaryName(const std::filesystem::path& file) {
    static std::atomic<unsigned> counter{0};
    thread_local std::mt19937_64 generator{std::random_device{}()};
    char suffix[40];
    std::snprintf(suffix, sizeof suffix, "%d-%u-%0*llx", static_cast<int>(::getpid()), counter++,
                  static_cast<int>(randomHexDigits), static_cast<unsigned long long>(generator() & 0xffffffffULL));
    return "." + file.filename().string() + std::string(temporaryMarker) + suffix;
}

template <typename Predicate>
bool isRunOf(std::string_view text, Predicate&& predicate) {
    return !text.empty() && std::all_of(text.begin(), text.end(), predicate);
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLowerHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f'); }

// 0 on success, else the errno value.
int writeAll(int fd, std::string_view bytes) {
    const char* position = bytes.data();
    std::size_t left = bytes.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, position, left);
        if (written < 0) {
            if (errno == EINTR) continue;
            return errno;
        }
        position += written;
        left -= static_cast<std::size_t>(written);
    }
    return 0;
}

// Fills the temporary file, flushes it to the disk and renames it over the target; 0 on
// success, else the errno value of the step that failed.
int fillAndReplace(FileDescriptor& descriptor, const std::filesystem::path& temporary,
                   const std::filesystem::path& file, std::string_view bytes, const struct stat* replaced) {
    if (replaced && ::fchmod(descriptor.get(), replaced->st_mode & 07777) != 0) return errno;
    if (const int failure = writeAll(descriptor.get(), bytes)) return failure;
    if (::fsync(descriptor.get()) != 0) return errno;
    if (descriptor.close() != 0) return errno;
    if (::rename(temporary.c_str(), file.c_str()) != 0) return errno;
    return 0;
}

// Makes the rename itself durable. Some file systems cannot sync a folder (EINVAL); the new
// content is already in place by then, so this step is best effort.
void syncFolder(const std::filesystem::path& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

FileError FileError::reading(const std::filesystem::path& file, int systemError) {
    return fileError(L10n::key("Non riesco a leggere «{file}»: {reason}."), file, systemError);
}

FileError FileError::writing(const std::filesystem::path& file, int systemError) {
    return fileError(L10n::key("Non riesco a scrivere «{file}»: {reason}."), file, systemError);
}

FileError FileError::moving(const std::filesystem::path& file, int systemError) {
    return fileError(L10n::key("Non riesco a spostare «{file}»: {reason}."), file, systemError);
}

FileError FileError::notRegular(const std::filesystem::path& file) {
    return FileError(L10n::tr("«{file}» non è un file normale.", {{"file", file.string()}}), 0);
}

bool isTemporaryFileName(std::string_view name) {
    const auto marker = name.rfind(temporaryMarker);
    // A dot and at least one character of the target's name come before the marker.
    if (marker == std::string_view::npos || marker < 2 || name.front() != '.') return false;
    const std::string_view suffix = name.substr(marker + temporaryMarker.size());
    const auto firstDash = suffix.find('-');
    if (firstDash == std::string_view::npos) return false;
    const auto secondDash = suffix.find('-', firstDash + 1);
    if (secondDash == std::string_view::npos) return false;
    const std::string_view random = suffix.substr(secondDash + 1);
    return isRunOf(suffix.substr(0, firstDash), isDigit) &&
           isRunOf(suffix.substr(firstDash + 1, secondDash - firstDash - 1), isDigit) &&
           random.size() == randomHexDigits && isRunOf(random, isLowerHexDigit);
}

void writeFileAtomically(const std::filesystem::path& file, std::string_view bytes) {
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");

    // A file being replaced keeps its permissions. Anything else in its place (a folder, a FIFO)
    // is the user's and stays.
    struct stat existing {};
    const bool replacing = ::stat(file.c_str(), &existing) == 0;
    if (replacing && S_ISDIR(existing.st_mode)) throw FileError::writing(file, EISDIR);
    if (replacing && !S_ISREG(existing.st_mode)) throw FileError::notRegular(file);

    std::filesystem::path temporary;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temporary = folder / temporaryName(file);
        fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (fd < 0 && errno != EEXIST) break;
    }
    if (fd < 0) throw FileError::writing(file, errno);

    FileDescriptor descriptor(fd);
    if (const int failure = fillAndReplace(descriptor, temporary, file, bytes, replacing ? &existing : nullptr)) {
        ::unlink(temporary.c_str());
        throw FileError::writing(file, failure);
    }
    syncFolder(folder);
}

std::string readWholeFile(const std::filesystem::path& file) {
    // Opening a FIFO waits for a writer, unless it is opened without blocking; the kind of file
    // is known only once it is open.
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd < 0) throw FileError::reading(file, errno);
    FileDescriptor descriptor(fd);

    struct stat status {};
    if (::fstat(fd, &status) != 0) throw FileError::reading(file, errno);
    if (S_ISDIR(status.st_mode)) throw FileError::reading(file, EISDIR);
    if (!S_ISREG(status.st_mode)) throw FileError::notRegular(file);
    const int flags = ::fcntl(fd, F_GETFL);
    if (flags < 0 || ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK) != 0) throw FileError::reading(file, errno);

    std::string content;
    // The size is a hint only: the file may grow or shrink while it is read.
    content.resize(status.st_size > 0 ? static_cast<std::size_t>(status.st_size) + 1 : 4096);
    std::size_t filled = 0;
    for (;;) {
        if (filled == content.size()) content.resize(content.size() * 2);
        const ssize_t count = ::read(fd, content.data() + filled, content.size() - filled);
        if (count < 0) {
            if (errno == EINTR) continue;
            throw FileError::reading(file, errno);
        }
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

}  // namespace vantello
