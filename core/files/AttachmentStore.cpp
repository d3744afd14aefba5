#include "core/files/AttachmentStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/base/Uuid.hpp"
#include "core/files/FileOperations.hpp"

#include <cerrno>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace vantello {

namespace {

namespace fs = std::filesystem;

std::string messageFor(AttachmentErrorCode code, std::string_view name) {
    switch (code) {
        case AttachmentErrorCode::notAFile:
            return L10n::tr("«{name}» non è un file: le cartelle e i pacchetti non si possono allegare.",
                            {{"name", name}});
        case AttachmentErrorCode::tooLarge:
            return L10n::tr("«{name}» supera i {limit} MB.",
                            {{"name", name},
                             {"limit", std::to_string(AttachmentStore::maximumByteCount / (1024 * 1024))}});
    }
    return {};
}

// The last component of the picked path, also when it ends with a slash.
std::string pickedName(const fs::path& picked) {
    const fs::path normal = picked.lexically_normal();
    return normal.has_filename() ? normal.filename().string() : normal.parent_path().filename().string();
}

std::string storedNameFor(const Uuid& id, const fs::path& picked) {
    // extension() keeps its leading dot; a name ending in a bare dot has no extension.
    const std::string extension = Text::lowercased(picked.lexically_normal().extension().string());
    return extension.size() > 1 ? id.text() + extension : id.text();
}

std::chrono::system_clock::time_point modificationTime(const struct stat& status) {
    return std::chrono::system_clock::time_point(
        std::chrono::duration_cast<std::chrono::system_clock::duration>(
            std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec)));
}

}  // namespace

AttachmentStore::AttachmentError::AttachmentError(Code code, std::string_view name)
    : CodedError(code, messageFor(code, name)) {}

AttachmentStore AttachmentStore::inDataFolder(const fs::path& dataFolder) {
    return AttachmentStore{dataFolder / folderName};
}

Attachment AttachmentStore::importFile(const fs::path& picked, Instant now) const {
    const std::string name = pickedName(picked);
    struct stat status {};
    if (::stat(picked.c_str(), &status) != 0) throw FileError::reading(picked, errno);
    if (!S_ISREG(status.st_mode)) throw AttachmentError(AttachmentError::Code::notAFile, name);
    if (status.st_size > maximumByteCount) throw AttachmentError(AttachmentError::Code::tooLarge, name);

    Attachment attachment;
    attachment.id = Uuid::random();
    attachment.originalName = name;
    attachment.storedName = storedNameFor(attachment.id, picked);
    attachment.byteCount = status.st_size;
    attachment.addedAt = now;

    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError::writing(folder, error.value());
    FileOperations::copyFile(picked, path(attachment));
    FileOperations::syncFolder(folder);
    return attachment;
}

void AttachmentStore::remove(const Attachment& attachment) const {
    const fs::path file = path(attachment);
    if (::unlink(file.c_str()) != 0 && errno != ENOENT) throw FileOperations::removingError(file, errno);
}

std::size_t AttachmentStore::removeUnreferencedFiles(const std::unordered_set<std::string>& keep,
                                                     std::chrono::system_clock::time_point cutoff) const {
    std::size_t removed = 0;
    std::error_code error;
    for (fs::directory_iterator entries(folder, error); !error && entries != fs::directory_iterator();
         entries.increment(error)) {
        const fs::path& file = entries->path();
        if (keep.contains(file.filename().string())) continue;
        struct stat status {};
        if (::lstat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
        if (modificationTime(status) >= cutoff) continue;
        if (::unlink(file.c_str()) == 0) ++removed;
    }
    return removed;
}

std::unordered_set<std::string> storedAttachmentNames(const LedgerData& data) {
    std::unordered_set<std::string> names;
    for (const Transaction& transaction : data.transactions) {
        for (const Attachment& attachment : transaction.attachments) names.insert(attachment.storedName);
    }
    return names;
}

}  // namespace vantello
