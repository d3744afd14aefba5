#pragma once
// Keeps all of a user's financial data in one JSON file, "movimenti.json": reads it into a
// LedgerData, writes a LedgerData back atomically, refuses files written by a newer Vantello and
// sets a damaged file aside so that the application can start afresh without destroying it.

#include "core/base/Instant.hpp"
#include "core/base/UserError.hpp"
#include "core/ledger/LedgerData.hpp"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vantello {

enum class StoreErrorCode { newerFormat };

class LedgerStore {
public:
    // The format of the file. Older files simply lack the newer keys, so every version below
    // the first unknown one is read.
    struct FormatVersion {
        static constexpr std::int64_t written = 7;
        static constexpr std::int64_t firstUnknown = 8;

        std::int64_t value = written;

        [[nodiscard]] bool isReadable() const { return value < firstUnknown; }
        bool operator==(const FormatVersion&) const = default;
    };

    class StoreError : public CodedError<StoreErrorCode> {
    public:
        using Code = StoreErrorCode;
        // "Il file dei movimenti viene da una versione più recente di Vantello (formato {n})."
        [[nodiscard]] static StoreError newerFormat(std::int64_t version);
        [[nodiscard]] std::int64_t version() const { return version_; }

    private:
        StoreError(Code code, std::string message, std::int64_t version)
            : CodedError(code, std::move(message)), version_(version) {}
        std::int64_t version_;
    };

    // What a file holds; `version` is absent when there was no file yet.
    struct Contents {
        std::optional<FormatVersion> version;
        LedgerData data;
    };

    static constexpr std::string_view fileName = "movimenti.json";

    // The user's own ledger: dataFolder() / "movimenti.json" (DataFolderError when there is no
    // data folder). Nothing is created until the first save.
    LedgerStore();
    explicit LedgerStore(std::filesystem::path file);

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    // A missing file is a first start and gives empty collections. StoreError for a newer
    // format (the file is left alone), DecodingError for a damaged file, FileError when it
    // cannot be read.
    [[nodiscard]] LedgerData load() const;
    [[nodiscard]] Contents loadContents() const;

    // Creates the missing folders and replaces the file atomically; FileError on failure, with
    // the previous file intact. Equal data always gives the same bytes.
    void save(const LedgerData& data) const;

    // Renames the file to "movimenti-danneggiato-<seconds since 1970>.json" in its folder and
    // returns the new path; FileError when it cannot be moved (an existing file of that name is
    // never replaced).
    std::filesystem::path moveDamagedFileAside(Instant now = std::chrono::time_point_cast<std::chrono::seconds>(
                                                   std::chrono::system_clock::now())) const;

    // The file's text and back, for callers that hold the bytes themselves.
    [[nodiscard]] static Contents decode(std::string_view text);
    [[nodiscard]] static std::string encode(const LedgerData& data);

    bool operator==(const LedgerStore&) const = default;

private:
    std::filesystem::path file_;
};

}  // namespace vantello
