#include "core/files/LedgerFileReader.hpp"

#include "core/base/SideBySide.hpp"
#include "core/files/MovementFastReader.hpp"

#include <string>
#include <utility>
#include <vector>

namespace vantello {

namespace {

// A raw line break never occurs inside a JSON string, so in valid JSON these texts can only
// be layout: the movement array's key at the top level, the end of a movement, the step to
// the next movement and the end of the array.
constexpr std::string_view movementsKey = "\n  \"transactions\": [";
constexpr std::string_view movementEnd = "\n    }";
constexpr std::string_view nextMovement = ",\n    {";
constexpr std::string_view arrayEnd = "\n  ]";

// Below this many bytes of movements a second thread costs more than it saves.
constexpr std::size_t parallelBytes = 512 * 1024;

// Whether `prefix` ends outside any string, directly inside the top-level object.
bool endsAtTopLevel(std::string_view prefix) {
    int depth = 0;
    for (std::size_t index = 0; index < prefix.size(); ++index) {
        switch (prefix[index]) {
            case '"':
                for (++index; index < prefix.size() && prefix[index] != '"'; ++index) {
                    if (prefix[index] == '\\') ++index;
                }
                if (index >= prefix.size()) return false;
                break;
            case '{':
            case '[':
                ++depth;
                break;
            case '}':
            case ']':
                if (--depth < 1) return false;
                break;
            default:
                break;
        }
    }
    return depth == 1;
}

// The movements of one stretch of the array, converted in order. `readable` turns false when
// the layout is not the expected one or a piece does not parse: the caller then parses the
// whole text instead, which either reads it after all or reports the fault with its position.
struct Stretch {
    SharedList<Transaction> transactions;
    std::exception_ptr conversionError;
    bool readable = true;
    std::size_t arrayClose = 0;  // set by the stretch that reaches the end of the array
};

// Parses one movement into a JSON tree and converts it, as the whole-document reader would;
// false when the text is no JSON, and the caller then parses the whole text instead.
bool readOrdinarily(std::string_view movement, Stretch& stretch) {
    Json element;
    try {
        element = Json::parse(movement);
    } catch (const Json::exception&) {
        stretch.readable = false;
        return false;
    }
    if (!stretch.conversionError) {
        try {
            stretch.transactions.push_back(JsonCoding::convert<Transaction>(element, "transactions"));
        } catch (...) {
            stretch.conversionError = std::current_exception();
        }
    }
    return true;
}

// Reads the movements from the one whose "{" is at `begin` up to the one ending at `stop`,
// or, when `stop` is npos, to the end of the array.
void readStretch(std::string_view text, std::size_t begin, std::size_t stop, Stretch& stretch) {
    MovementFastReader fastReader;
    std::size_t start = begin;
    for (;;) {
        const auto close = text.find(movementEnd, start);
        if (close == std::string_view::npos || close >= stop) {
            stretch.readable = false;
            return;
        }
        const std::size_t end = close + movementEnd.size();
        const std::string_view movement = text.substr(start, end - start);
        if (auto transaction = fastReader.read(movement, text.size() - start)) {
            if (!stretch.conversionError) stretch.transactions.push_back(std::move(*transaction));
        } else if (!readOrdinarily(movement, stretch)) {
            return;
        }
        if (end == stop) return;
        const auto after = text.substr(end);
        if (after.starts_with(nextMovement)) {
            start = end + nextMovement.size() - 1;
        } else if (after.starts_with(arrayEnd) && stop == std::string_view::npos) {
            stretch.arrayClose = end + arrayEnd.size() - 1;
            return;
        } else {
            stretch.readable = false;
            return;
        }
    }
}

// Everything but the movements, with their array left empty; nothing unless "transactions"
// occurs exactly once in the top-level object.
std::optional<Json> parseRest(std::string_view text, std::size_t arrayOpen, std::size_t arrayClose) {
    std::string rest;
    rest.reserve(arrayOpen + 1 + text.size() - arrayClose);
    rest.append(text.substr(0, arrayOpen + 1)).append(text.substr(arrayClose));
    int movementKeys = 0;
    try {
        Json document = Json::parse(rest, [&](int depth, Json::parse_event_t event, Json& parsed) {
            if (event == Json::parse_event_t::key && depth == 1 && parsed == "transactions") ++movementKeys;
            return true;
        });
        if (movementKeys != 1) return std::nullopt;
        return document;
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

std::optional<LedgerFileText> readLaidOutFile(std::string_view text) {
    const auto key = text.find(movementsKey);
    if (key == std::string_view::npos || !endsAtTopLevel(text.substr(0, key))) return std::nullopt;
    const std::size_t arrayOpen = key + movementsKey.size() - 1;

    LedgerFileText result;
    std::vector<Stretch> stretches;
    if (text.substr(arrayOpen + 1).starts_with("]")) {
        stretches.emplace_back().arrayClose = arrayOpen + 1;
    } else if (!text.substr(arrayOpen + 1).starts_with(nextMovement.substr(1))) {
        return std::nullopt;
    } else {
        const std::size_t first = arrayOpen + nextMovement.size() - 1;
        // Cut near the middle at the end of a movement; the first stretch must land exactly
        // on it, which proves that it is one.
        const auto cut = text.find(std::string(movementEnd) + std::string(nextMovement), (first + text.size()) / 2);
        if (cut == std::string_view::npos || !worthSplitting(text.size() - first, parallelBytes)) {
            readStretch(text, first, std::string_view::npos, stretches.emplace_back());
        } else {
            stretches.resize(2);
            const std::size_t stop = cut + movementEnd.size();
            runSideBySide([&] { readStretch(text, first, stop, stretches[0]); },
                          [&] { readStretch(text, stop + nextMovement.size() - 1, std::string_view::npos, stretches[1]); });
        }
    }
    for (const Stretch& stretch : stretches) {
        if (!stretch.readable) return std::nullopt;
    }

    auto document = parseRest(text, arrayOpen, stretches.back().arrayClose);
    if (!document) return std::nullopt;
    result.document = std::move(*document);

    // The stretches' chunks are taken over as they are, so the movements are never held twice.
    SharedList<Transaction> transactions;
    for (Stretch& stretch : stretches) {
        if (stretch.conversionError && !result.transactionError) result.transactionError = stretch.conversionError;
        if (result.transactionError) break;
        transactions.append(stretch.transactions);
        stretch.transactions = {};
    }
    result.transactions = std::move(transactions);
    return result;
}

}  // namespace

LedgerFileText readLedgerFileText(std::string_view text) {
    if (auto laidOut = readLaidOutFile(text)) return std::move(*laidOut);
    LedgerFileText result;
    result.document = JsonCoding::parse(text);
    return result;
}

}  // namespace vantello
