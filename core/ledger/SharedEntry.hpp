#pragma once
// Money settled with another person: a payment either way, or an expense they paid for the
// user. A positive balance means the person owes the user.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <string>

namespace vantello {

struct SharedEntry {
    enum class Kind { paymentReceived, paymentMade, theyPaidForMe };

    Uuid id;
    Uuid personID;
    Kind kind = Kind::paymentReceived;
    Decimal amount;  // positive
    Instant date;
    std::string note;

    // What the entry does to the person's balance: minus, plus, minus the amount.
    [[nodiscard]] Decimal effect() const;
    // "Mi ha restituito", "Gli ho restituito", "Ha pagato per me" (localised).
    [[nodiscard]] static std::string pickerLabel(Kind kind);
    // "Ti ha restituito", "Gli hai restituito", "Ha pagato per te" (localised).
    [[nodiscard]] static std::string historyLabel(Kind kind);

    bool operator==(const SharedEntry&) const = default;
};

void to_json(Json& json, SharedEntry::Kind kind);
void from_json(const Json& json, SharedEntry::Kind& kind);
void to_json(Json& json, const SharedEntry& entry);
void from_json(const Json& json, SharedEntry& entry);

}  // namespace vantello
