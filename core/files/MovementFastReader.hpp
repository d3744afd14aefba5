#pragma once
// Reads one movement of the ledger file straight into a Transaction, without building a JSON
// tree first: the common case made fast. It accepts only what it fully understands (every key
// known and given once, every value of the expected type and form); for anything else it gives
// nothing, and the caller reads that movement the ordinary way, which reads it the same or
// reports its fault. One reader per thread.

#include "core/ledger/Transaction.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace vantello {

class MovementFastReader {
public:
    MovementFastReader();
    ~MovementFastReader();
    MovementFastReader(const MovementFastReader&) = delete;
    MovementFastReader& operator=(const MovementFastReader&) = delete;

    // `movement` is the text of one JSON object; `readableAfter` is how many bytes may be read
    // from its start on (the rest of the file counts), which spares a copy when there is room.
    [[nodiscard]] std::optional<Transaction> read(std::string_view movement, std::size_t readableAfter);

private:
    struct Parser;
    std::unique_ptr<Parser> parser_;
};

}  // namespace vantello
