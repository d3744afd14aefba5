#include "core/files/RestoreSwap.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Uuid.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/FileOperations.hpp"
#include "core/files/LedgerStore.hpp"

#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace vantello {

namespace {

namespace fs = std::filesystem;

bool present(const fs::path& item) { return FileOperations::itemExists(item); }

}  // namespace

RestoreSwap::RestoreSwap(fs::path dataFolder) : RestoreSwap(std::move(dataFolder), Uuid::random().text()) {}

RestoreSwap::RestoreSwap(fs::path dataFolder, std::string id) : dataFolder_(std::move(dataFolder)), id_(std::move(id)) {
    const std::string stem = std::string(namePrefix) + id_;
    ledger_ = dataFolder_ / LedgerStore::fileName;
    preparedLedger_ = dataFolder_ / (stem + ".json");
    attachments_ = dataFolder_ / AttachmentStore::folderName;
    preparedAttachments_ = dataFolder_ / (stem + ".allegati");
    oldAttachments_ = dataFolder_ / (stem + ".allegati-precedenti");
    journal_ = dataFolder_ / (stem + std::string(journalSuffix));
}

void RestoreSwap::prepare(const fs::path& backupFolder) const {
    try {
        const fs::path backupLedger = backupFolder / LedgerStore::fileName;
        if (present(backupLedger)) {
            FileOperations::copyFile(backupLedger, preparedLedger_);
        } else {
            writeFileAtomically(preparedLedger_, LedgerStore::encode(LedgerData{}));
        }
        const fs::path backupAttachments = backupFolder / AttachmentStore::folderName;
        if (present(backupAttachments)) {
            FileOperations::copyFolder(backupAttachments, preparedAttachments_);
        } else if (::mkdir(preparedAttachments_.c_str(), 0755) != 0) {
            throw FileError::writing(preparedAttachments_, errno);
        }
        FileOperations::syncFolder(dataFolder_);
    } catch (...) {
        removePrepared();
        throw;
    }
}

void RestoreSwap::writeJournal() const {
    const std::string setAside = oldAttachments_.filename().string();
    writeFileAtomically(journal_, std::string(AttachmentStore::folderName) + " -> " + setAside + "\n" +
                                      preparedAttachments_.filename().string() + " -> " +
                                      std::string(AttachmentStore::folderName) + "\n" +
                                      preparedLedger_.filename().string() + " -> " +
                                      std::string(LedgerStore::fileName) + "\n" + "- " +
                                      journal_.filename().string() + "\n" + "- " + setAside + "\n");
}

void RestoreSwap::perform(Step step) const {
    switch (step) {
        case Step::setAsideAttachments:
            if (present(preparedAttachments_) && present(attachments_)) {
                FileOperations::moveItem(attachments_, oldAttachments_);
            }
            return;
        case Step::placeAttachments:
            if (present(preparedAttachments_)) FileOperations::moveItem(preparedAttachments_, attachments_);
            return;
        case Step::replaceLedger:
            if (present(preparedLedger_)) FileOperations::moveItem(preparedLedger_, ledger_);
            FileOperations::syncFolder(dataFolder_);
            return;
        case Step::removeJournal:
            if (::unlink(journal_.c_str()) != 0 && errno != ENOENT) throw FileOperations::removingError(journal_, errno);
            FileOperations::syncFolder(dataFolder_);
            return;
        case Step::removeOldAttachments: FileOperations::removeItem(oldAttachments_); return;
    }
}

void RestoreSwap::commit() const {
    try {
        writeJournal();
        perform(Step::setAsideAttachments);
        perform(Step::placeAttachments);
        perform(Step::replaceLedger);
    } catch (...) {
        // When even the undo fails the journal stays, and the next writer finishes the restore.
        if (undoSwap()) {
            ::unlink(journal_.c_str());
            removePrepared();
        }
        throw;
    }
    // The restore is complete; what is left to tidy goes at the next start should it fail now.
    try {
        perform(Step::removeJournal);
        perform(Step::removeOldAttachments);
    } catch (const FileError&) {
    }
}

bool RestoreSwap::undoSwap() const noexcept {
    try {
        // The prepared folder is gone only once it has been moved in.
        if (!present(preparedAttachments_)) FileOperations::moveItem(attachments_, preparedAttachments_);
        if (present(oldAttachments_)) FileOperations::moveItem(oldAttachments_, attachments_);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

void RestoreSwap::removePrepared() const noexcept {
    for (const fs::path& item : {preparedLedger_, preparedAttachments_, oldAttachments_}) {
        std::error_code ignored;
        fs::remove_all(item, ignored);
    }
}

void finishInterruptedRestore(const fs::path& dataFolder) {
    const auto leftovers = [&dataFolder] {
        std::vector<fs::path> found;
        std::error_code error;
        for (fs::directory_iterator entries(dataFolder, error); !error && entries != fs::directory_iterator();
             entries.increment(error)) {
            if (entries->path().filename().string().starts_with(RestoreSwap::namePrefix)) {
                found.push_back(entries->path());
            }
        }
        return found;
    };
    for (const fs::path& item : leftovers()) {
        const std::string name = item.filename().string();
        if (!name.ends_with(RestoreSwap::journalSuffix)) continue;
        const std::string id = name.substr(RestoreSwap::namePrefix.size(),
                                           name.size() - RestoreSwap::namePrefix.size() - RestoreSwap::journalSuffix.size());
        const RestoreSwap swap(dataFolder, id);
        for (const RestoreSwap::Step step : RestoreSwap::steps) swap.perform(step);
    }
    for (const fs::path& item : leftovers()) {
        std::error_code ignored;
        fs::remove_all(item, ignored);
    }
}

}  // namespace vantello
