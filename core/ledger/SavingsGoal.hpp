#pragma once
// An amount the user wants to put aside, optionally by a deadline, with its deposits and
// withdrawals.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct SavingsGoal {
    struct Contribution {
        Uuid id;
        Instant date;
        Decimal amount;  // positive for a deposit, negative for a withdrawal, never zero
        std::string note;
        bool operator==(const Contribution&) const = default;
    };

    Uuid id;
    std::string name;
    std::string symbol;
    Decimal target;
    std::optional<Instant> deadline;
    Instant createdAt;
    std::vector<Contribution> contributions;

    // Deposits minus withdrawals, from zero.
    [[nodiscard]] Decimal saved() const;

    bool operator==(const SavingsGoal&) const = default;
};

void to_json(Json& json, const SavingsGoal::Contribution& contribution);
void from_json(const Json& json, SavingsGoal::Contribution& contribution);
void to_json(Json& json, const SavingsGoal& goal);
void from_json(const Json& json, SavingsGoal& goal);

}  // namespace vantello
