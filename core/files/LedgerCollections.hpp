#pragma once
// The fifteen collections of the ledger file, listed once in file order: the key each has in
// the file, what a report calls it, how many records it holds, and how it is read from the
// document and written into it. The store's decoder and encoder and the command line's check
// all go through this list, so a new collection is one entry here.

#include "core/base/Json.hpp"
#include "core/ledger/LedgerData.hpp"

#include <array>
#include <cstddef>
#include <string_view>

namespace vantello {

struct LedgerCollection {
    std::string_view key;    // the collection's key in the ledger file
    std::string_view label;  // how a report calls it (Italian, a catalogue key)
    std::size_t (*count)(const LedgerData& data);
    // Reads the collection from the document into `data`; a missing key gives an empty collection,
    // except for the movements, which every file has.
    void (*decode)(const Json& document, std::string_view key, LedgerData& data);
    // Writes the collection under its key; every collection is written, empty or not. The
    // movements are written as an empty array, whose place the store fills in itself.
    void (*encode)(const LedgerData& data, std::string_view key, Json& document);
};

[[nodiscard]] const std::array<LedgerCollection, 15>& ledgerCollections();

}  // namespace vantello
