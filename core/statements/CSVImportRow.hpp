#pragma once
// What one data row of a statement became: a candidate movement, or the reason it cannot be
// imported. Exactly one of the two is present.

#include "core/ledger/Transaction.hpp"

#include <optional>
#include <string>

namespace vantello {

struct CSVImportRow {
    int line = 0;  // 1-based position in the table, the header and the rows above it counted
    std::optional<Transaction> transaction;
    std::optional<std::string> problem;

    bool operator==(const CSVImportRow&) const = default;
};

}  // namespace vantello
