#pragma once
// Putting a backup back into a data folder without ever leaving it half restored. The backup's
// ledger and attachments are first copied beside the live ones under names starting with
// ".ripristino-<id>"; only when every copy is complete is a journal written, and the copies are
// swapped in with renames: the live "Allegati" set aside, the restored one moved in, the ledger
// copy renamed over "movimenti.json" in one step, the journal removed, the old attachments
// removed. Each step looks at the folder before it acts, so an interrupted swap can be run again
// from the start and finishes where it stopped.

#include <array>
#include <filesystem>
#include <string>
#include <string_view>

namespace vantello {

class RestoreSwap {
public:
    enum class Step { setAsideAttachments, placeAttachments, replaceLedger, removeJournal, removeOldAttachments };
    static constexpr std::array<Step, 5> steps{Step::setAsideAttachments, Step::placeAttachments, Step::replaceLedger,
                                               Step::removeJournal, Step::removeOldAttachments};
    static constexpr std::string_view namePrefix = ".ripristino-";
    static constexpr std::string_view journalSuffix = ".giornale";

    // A new restore into `dataFolder`, with a fresh id.
    explicit RestoreSwap(std::filesystem::path dataFolder);
    // The restore with this id (upper-case UUID text), to finish it.
    RestoreSwap(std::filesystem::path dataFolder, std::string id);

    // Copies the backup's ledger file (an empty ledger when it has none) and attachments folder
    // (an empty one when it has none) beside the live ones, flushed to the disk. When a copy
    // fails everything prepared is removed and the FileError thrown: the data are untouched.
    void prepare(const std::filesystem::path& backupFolder) const;

    // Writes the journal and swaps the prepared copies in. A failure before the ledger is replaced
    // puts the live attachments back and removes what was prepared; the error is thrown.
    void commit() const;

    // The journal that lets an interrupted swap finish; written atomically.
    void writeJournal() const;
    // One step of the swap, when the folder shows it is still due; FileError when it fails.
    void perform(Step step) const;

private:
    [[nodiscard]] bool undoSwap() const noexcept;
    void removePrepared() const noexcept;

    std::filesystem::path dataFolder_;
    std::string id_;
    std::filesystem::path ledger_, preparedLedger_, attachments_, preparedAttachments_, oldAttachments_, journal_;
};

// Run when a writer takes the data folder: finishes a restore whose journal is there (rolling
// it forward), then removes whatever else an interrupted restore left (".ripristino-" names).
// FileError when a step of the swap fails; a leftover that cannot be removed is left for later.
void finishInterruptedRestore(const std::filesystem::path& dataFolder);

}  // namespace vantello
