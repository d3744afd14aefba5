#pragma once
// Reads the ledger file's text quickly. A file laid out the way the store writes it (pretty-
// printed, two spaces per level) is cut at the line breaks between movements: each movement is
// parsed and converted on its own, on two threads for a large file, and the small collections
// are parsed as one document. Every piece is still checked by the JSON parser, and any other
// layout is parsed as one whole document, so every file reads the same either way.

#include "core/base/Json.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Transaction.hpp"

#include <exception>
#include <optional>
#include <string_view>

namespace vantello {

struct LedgerFileText {
    // The document; when the movements were read separately, "transactions" is an empty array.
    Json document;
    // The movements, when they were read separately from the document.
    std::optional<SharedList<Transaction>> transactions;
    // The first movement (in file order) that could not be converted. Kept rather than thrown
    // so that the caller can look at the format version first: a newer file is refused for
    // that reason and no other.
    std::exception_ptr transactionError;
};

// DecodingError when the text is not well-formed JSON (with its line and column).
[[nodiscard]] LedgerFileText readLedgerFileText(std::string_view text);

}  // namespace vantello
