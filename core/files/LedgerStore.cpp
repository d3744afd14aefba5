#include "core/files/LedgerStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/base/SideBySide.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerCollections.hpp"
#include "core/files/LedgerFileReader.hpp"
#include "core/files/RepeatedIDs.hpp"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <limits>
#include <system_error>

#include <fcntl.h>

namespace vantello {

namespace {

using FormatVersion = LedgerStore::FormatVersion;

// Fewer movements than this are not worth a second thread.
constexpr std::size_t parallelMovementCount = 2'000;

// The version is an integer; a number such as 7.0 still names one, anything else does not.
FormatVersion decodeVersion(const Json& document) {
    const auto found = document.find("version");
    if (found == document.end()) JsonCoding::fail("version", "manca");
    const Json& value = *found;
    if (value.is_number_integer() && !value.is_number_unsigned()) return {value.get<std::int64_t>()};
    if (value.is_number_unsigned()) {
        const auto unsignedValue = value.get<std::uint64_t>();
        const auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        return {static_cast<std::int64_t>(std::min(unsignedValue, largest))};
    }
    if (value.is_number_float()) {
        const double number = value.get<double>();
        if (std::trunc(number) == number && std::abs(number) < 9.0e15) {
            return {static_cast<std::int64_t>(number)};
        }
    }
    JsonCoding::fail("version", "ha un valore del tipo sbagliato");
}

// The array elements of the movements from `first` to `last`, each on its own lines indented
// by four spaces, as they stand inside the pretty-printed document.
std::string encodeMovements(SharedList<Transaction>::const_iterator first, SharedList<Transaction>::const_iterator last,
                            bool startsTheArray) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(last - first) * 400);
    for (auto movement = first; movement != last; ++movement) {
        bytes.append(startsTheArray && movement == first ? "\n    " : ",\n    ");
        const std::string element = JsonCoding::pretty(Json(*movement));
        // pretty() ends with a line break, which the array does not want.
        const std::string_view lines(element.data(), element.size() - 1);
        std::size_t start = 0;
        for (auto end = lines.find('\n'); end != std::string_view::npos; end = lines.find('\n', start)) {
            bytes.append(lines.substr(start, end + 1 - start)).append("    ");
            start = end + 1;
        }
        bytes.append(lines.substr(start));
    }
    return bytes;
}

}  // namespace

LedgerStore::StoreError LedgerStore::StoreError::newerFormat(std::int64_t version) {
    return StoreError(Code::newerFormat,
                      L10n::tr("Il file dei movimenti viene da una versione più recente di Vantello (formato {n}).",
                               {{"n", std::to_string(version)}}),
                      version);
}

LedgerStore::LedgerStore() : file_(dataFolder() / fileName) {}

LedgerStore::LedgerStore(std::filesystem::path file) : file_(std::move(file)) {}

LedgerData LedgerStore::load() const { return loadContents().data; }

LedgerStore::Contents LedgerStore::loadContents() const {
    std::string text;
    try {
        text = readWholeFile(file_);
    } catch (const FileError& error) {
        if (error.systemError() == ENOENT) return {};
        throw;
    }
    return decode(text);
}

LedgerStore::Contents LedgerStore::decode(std::string_view text) {
    LedgerFileText file = readLedgerFileText(text);
    const Json& document = file.document;
    // A bare array of movements (or any other value) is not a ledger file.
    static_cast<void>(JsonCoding::requireObject(document));

    // The version decides whether the rest can be understood at all, so it comes first.
    const FormatVersion version = decodeVersion(document);
    if (!version.isReadable()) throw StoreError::newerFormat(version.value);
    if (file.transactionError) std::rethrow_exception(file.transactionError);

    Contents contents{version, {}};
    for (const LedgerCollection& collection : ledgerCollections()) {
        collection.decode(document, collection.key, contents.data);
    }
    // Read apart from the document, which then holds an empty array in their place.
    if (file.transactions) contents.data.transactions = std::move(*file.transactions);
    refuseRepeatedIDs(contents.data);
    return contents;
}

std::string LedgerStore::encode(const LedgerData& data) {
    // Every key is written, empty or not, and the id sets come out in ascending order, so that
    // the same ledger always gives the same bytes.
    Json document = Json::object();
    document["version"] = FormatVersion::written;
    for (const LedgerCollection& collection : ledgerCollections()) {
        collection.encode(data, collection.key, document);
    }
    const std::string frame = JsonCoding::pretty(document);
    if (data.transactions.empty()) return frame;

    // The movements are written one by one into the place of the empty array, each indented
    // as the whole document would indent it, rather than as one big JSON tree. A line break
    // never occurs inside a written string, so the top-level key is found unambiguously.
    constexpr std::string_view emptyMovements = "\n  \"transactions\": []";
    const auto insertion = frame.find(emptyMovements) + emptyMovements.size() - 1;

    const auto& transactions = data.transactions;
    std::string firstHalf;
    std::string secondHalf;
    if (worthSplitting(transactions.size(), parallelMovementCount)) {
        const auto middle = transactions.begin() + static_cast<std::ptrdiff_t>(transactions.size() / 2);
        runSideBySide([&] { firstHalf = encodeMovements(transactions.begin(), middle, true); },
                      [&] { secondHalf = encodeMovements(middle, transactions.end(), false); });
    } else {
        firstHalf = encodeMovements(transactions.begin(), transactions.end(), true);
    }

    std::string bytes;
    bytes.reserve(frame.size() + firstHalf.size() + secondHalf.size() + 4);
    bytes.append(frame, 0, insertion).append(firstHalf).append(secondHalf).append("\n  ");
    bytes.append(frame, insertion, std::string::npos);
    return bytes;
}

void LedgerStore::save(const LedgerData& data) const {
    const std::string bytes = encode(data);
    if (file_.has_parent_path()) {
        std::error_code error;
        std::filesystem::create_directories(file_.parent_path(), error);
        if (error) throw FileError::writing(file_, error.value());
    }
    writeFileAtomically(file_, bytes);
}

std::filesystem::path LedgerStore::moveDamagedFileAside(Instant now) const {
    const auto moved = file_.parent_path() / ("movimenti-danneggiato-" + std::to_string(unixSeconds(now)) + ".json");
    // Two damaged files set aside within one second must not overwrite each other.
    if (::renameat2(AT_FDCWD, file_.c_str(), AT_FDCWD, moved.c_str(), RENAME_NOREPLACE) != 0) {
        int failure = errno;
        if (failure == EINVAL || failure == ENOSYS) {
            // The file system cannot refuse to replace by itself.
            std::error_code error;
            if (std::filesystem::exists(moved, error)) {
                failure = EEXIST;
            } else {
                failure = ::rename(file_.c_str(), moved.c_str()) == 0 ? 0 : errno;
            }
        }
        if (failure != 0) throw FileError::moving(file_, failure);
    }
    return moved;
}

}  // namespace vantello
