#pragma once
// Reads an amount cell of a statement: signed ("-12,50", "−12,50 €", "+1.500,00") or in
// accounting parentheses ("(12,50)"), written the Italian or the English way.

#include "core/base/Decimal.hpp"

#include <string_view>

namespace vantello {

// An empty cell and an unreadable one are different answers: only the second is a problem.
struct StatementAmount {
    enum class Status { empty, unreadable, amount };

    Status status = Status::empty;
    Decimal value;  // signed; zero unless the status is `amount`

    // White space (no-break spaces included) and "€" are removed first; a leading "-", "−" or
    // "+", or enclosing parentheses, give the sign; the rest goes to AmountParser.
    [[nodiscard]] static StatementAmount read(std::string_view cell);

    bool operator==(const StatementAmount&) const = default;
};

}  // namespace vantello
