#pragma once
// A short warning worked out from the ledger: spending well above the usual, a charge that seems
// to have been made twice, an account under its low-balance threshold, a month heading for a
// negative balance. Its id stays the same for the same situation, so a dismissed alert stays away.

#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <array>
#include <string>
#include <vector>

namespace vantello {

struct SmartAlert {
    enum class Kind { unusualSpending, possibleDuplicate, lowBalance, negativeForecast };

    std::string id;
    Kind kind = Kind::unusualSpending;
    std::string title;    // ready to show
    std::string message;  // ready to show
    std::vector<Uuid> transactionIDs;  // the movements concerned (the two of a duplicate charge)

    bool operator==(const SmartAlert&) const = default;
};

// Every kind, in the order the detectors run.
inline constexpr std::array<SmartAlert::Kind, 4> allSmartAlertKinds{
    SmartAlert::Kind::unusualSpending, SmartAlert::Kind::possibleDuplicate, SmartAlert::Kind::lowBalance,
    SmartAlert::Kind::negativeForecast};

// A kind is kept as its name ("lowBalance"); anything else is a DecodingError.
void to_json(Json& json, SmartAlert::Kind kind);
void from_json(const Json& json, SmartAlert::Kind& kind);
void to_json(Json& json, const SmartAlert& alert);
void from_json(const Json& json, SmartAlert& alert);

}  // namespace vantello
