#include "core/base/AtomicFile.hpp"

#include "core/base/Localization.hpp"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantello {

namespace {

std::string reasonText(int systemError) { return std::generic_category().message(systemError); }

FileError fileError(std::string_view italianPattern, const std::filesystem::path& file, int systemError) {
    return FileError(L10n::tr(italianPattern, {{"file", file.string()}, {"reason", reasonText(systemError)}}),
                     systemError);
}

// Closes on every path out, so that an exception never leaks a descriptor.
class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    [[nodiscard]] int get() const { return fd_; }
    // Closing can report a delayed write error (NFS), so the writer checks it.
    int close() {
        const int result = ::close(fd_);
        fd_ = -1;
        return result;
    }

private:
    int fd_;
};

// Unique within the process (counter) and across processes (random part).
std::string temporaryName(const std::filesystem::path& file) {
    static std::atomic<unsigned> counter{0};
    thread_local std::mt19937_64 generator{std::random_device{}()};
    char suffix[40];
    std::snprintf(suffix, sizeof suffix, ".tmp-%d-%u-%08llx", static_cast<int>(::getpid()), counter++,
                  static_cast<unsigned long long>(generator() & 0xffffffffULL));
    return "." + file.filename().string() + suffix;
}

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
int fillAndReplace(Descriptor& descriptor, const std::filesystem::path& temporary,
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

void writeFileAtomically(const std::filesystem::path& file, std::string_view bytes) {
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");

    // A file being replaced keeps its permissions.
    struct stat existing {};
    const bool replacing = ::stat(file.c_str(), &existing) == 0 && S_ISREG(existing.st_mode);

    std::filesystem::path temporary;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temporary = folder / temporaryName(file);
        fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (fd < 0 && errno != EEXIST) break;
    }
    if (fd < 0) throw FileError::writing(file, errno);

    Descriptor descriptor(fd);
    if (const int failure = fillAndReplace(descriptor, temporary, file, bytes, replacing ? &existing : nullptr)) {
        ::unlink(temporary.c_str());
        throw FileError::writing(file, failure);
    }
    syncFolder(folder);
}

std::string readWholeFile(const std::filesystem::path& file) {
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) throw FileError::reading(file, errno);
    Descriptor descriptor(fd);

    struct stat status {};
    if (::fstat(fd, &status) != 0) throw FileError::reading(file, errno);
    if (S_ISDIR(status.st_mode)) throw FileError::reading(file, EISDIR);

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
