#pragma once
// The attachments folder "Allegati" of a data folder: copies of the files the user attaches to
// movements, each under a new unique name, and the clean-up of copies no movement refers to.

#include "core/base/Instant.hpp"
#include "core/base/UserError.hpp"
#include "core/ledger/Attachment.hpp"
#include "core/ledger/LedgerData.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_set>

namespace vantello {

enum class AttachmentErrorCode { notAFile, tooLarge };

class AttachmentStore {
public:
    class AttachmentError : public CodedError<AttachmentErrorCode> {
    public:
        using Code = AttachmentErrorCode;
        // The message names the picked file between guillemets.
        AttachmentError(Code code, std::string_view name);
    };

    static constexpr std::string_view folderName = "Allegati";
    static constexpr std::int64_t maximumByteCount = 25LL * 1024 * 1024;

    // The folder "Allegati" inside a data folder.
    [[nodiscard]] static AttachmentStore inDataFolder(const std::filesystem::path& dataFolder);

    // Copies a picked file into the folder (created when missing) under "<UUID>.<extension in
    // lower case>" and returns its record. AttachmentError notAFile for anything but a regular
    // file, tooLarge above maximumByteCount; FileError when it cannot be read or copied. Nothing
    // is written before the checks pass, and a failed copy leaves no file behind.
    [[nodiscard]] Attachment importFile(const std::filesystem::path& picked, Instant now) const;

    [[nodiscard]] std::filesystem::path path(const Attachment& attachment) const { return folder / attachment.storedName; }

    // Removes the attachment's copy; one already gone is fine. FileError when it cannot go.
    void remove(const Attachment& attachment) const;

    // Removes every regular file directly in the folder whose name is not in `keep` and whose
    // modification time is earlier than `cutoff` (so a copy made for a save still on its way
    // survives); returns how many went. Sub-folders are never entered; a missing folder, or a
    // file that cannot be removed, is left for the next time.
    std::size_t removeUnreferencedFiles(const std::unordered_set<std::string>& keep,
                                        std::chrono::system_clock::time_point cutoff) const;

    std::filesystem::path folder;

    bool operator==(const AttachmentStore&) const = default;
};

// The stored names of every attachment of every movement: what removeUnreferencedFiles keeps.
[[nodiscard]] std::unordered_set<std::string> storedAttachmentNames(const LedgerData& data);

}  // namespace vantello
