// The due dates of a recurring rule in the user's calendar.

#include "core/ledger/RecurringRule.hpp"

#include <algorithm>

namespace vantello {

namespace {

// A hard guard: a rule never looks at more candidates than this, however old it is.
constexpr int maximumCandidates = 2000;

CalendarUnit stepUnit(RecurringRule::Frequency frequency) {
    switch (frequency) {
        case RecurringRule::Frequency::weekly: return CalendarUnit::weekOfYear;
        case RecurringRule::Frequency::monthly: return CalendarUnit::month;
        case RecurringRule::Frequency::yearly: return CalendarUnit::year;
    }
    return CalendarUnit::month;
}

}  // namespace

std::vector<Instant> RecurringRule::occurrences(std::optional<Instant> after, Instant through,
                                                const Calendar& calendar) const {
    const CalendarUnit unit = stepUnit(frequency);
    std::vector<Instant> dueDates;
    for (int step = 0; step < maximumCandidates; ++step) {
        // Always counted from the start, so that 31 January → 29 February → 31 March does not
        // drift to the 29th.
        const std::optional<Instant> candidate = calendar.adding(unit, step, startDate);
        if (!candidate) break;
        if (endDate && *candidate > *endDate) break;
        if (*candidate > through) break;
        if (after && *candidate <= *after) continue;
        const Instant dueDate = calendar.noon(*candidate);
        // A rule starting after noon has its due date before its candidate: the due date already
        // dealt with (lastGenerated is a due date) must not come back a second time.
        if (after && dueDate <= *after) continue;
        dueDates.push_back(dueDate);
    }
    return dueDates;
}

std::optional<Instant> RecurringRule::nextOccurrence(Instant from, const Calendar& calendar) const {
    const Instant after = lastGenerated ? std::max(from, *lastGenerated) : from;
    const std::optional<Instant> horizon = calendar.adding(CalendarUnit::year, 2, from);
    if (!horizon) return std::nullopt;
    const std::vector<Instant> dueDates = occurrences(after, *horizon, calendar);
    if (dueDates.empty()) return std::nullopt;
    return dueDates.front();
}

}  // namespace vantello
