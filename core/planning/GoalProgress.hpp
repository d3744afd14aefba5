#pragma once
// What a savings goal's card shows, derived from its contributions, the day and the calendar:
// how much is saved and missing, the monthly amount that meets the deadline, the pace so far,
// whether the goal is on track, and when it will be reached at that pace.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/SavingsGoal.hpp"

#include <optional>
#include <string>

namespace vantello {

enum class GoalStatus { completed, noDeadline, onTrack, behind, overdue };

struct GoalProgress {
    Decimal saved;
    Decimal remaining;                           // zero once the target is reached
    double progress = 0;                         // saved ÷ target, 0...1
    std::optional<int> monthsLeft;               // with a deadline: at least 1
    std::optional<Decimal> monthlyAmountNeeded;  // rounded up to cents; none when completed or without deadline
    Decimal monthlyPace;                         // saved ÷ months since the creation month (included)
    GoalStatus status = GoalStatus::noDeadline;
    std::optional<Instant> projectedReachDate;   // at the current pace; none without a pace

    bool operator==(const GoalProgress&) const = default;
};

[[nodiscard]] GoalProgress goalProgress(const SavingsGoal& goal, Instant now, const Calendar& calendar);

// `now` moved forward by the months needed to save `remaining` at `perMonth` (rounded up, in
// double precision); none when `perMonth` is not positive.
[[nodiscard]] std::optional<Instant> dateReachedAtPace(const Decimal& remaining, const Decimal& perMonth, Instant now,
                                                       const Calendar& calendar);

// The status as the goal card names it ("In linea", "In ritardo"…).
[[nodiscard]] std::string goalStatusLabel(GoalStatus status);

void to_json(Json& json, GoalStatus status);
void to_json(Json& json, const GoalProgress& progress);

}  // namespace vantello
