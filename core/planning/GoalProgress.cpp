#include "core/planning/GoalProgress.hpp"

#include "core/base/Localization.hpp"

#include <algorithm>
#include <cmath>

namespace vantello {

namespace {

int monthsBetweenMonthStarts(Instant from, Instant to, const Calendar& calendar) {
    return calendar.wholeMonthsBetween(calendar.monthInterval(from).start, calendar.monthInterval(to).start);
}

GoalStatus statusOf(const SavingsGoal& goal, const GoalProgress& progress, Instant now, const Calendar& calendar) {
    if (progress.saved >= goal.target) return GoalStatus::completed;
    if (!goal.deadline) return GoalStatus::noDeadline;
    if (calendar.startOfDay(now) > calendar.startOfDay(*goal.deadline)) return GoalStatus::overdue;
    if (progress.saved + progress.monthlyPace * Decimal(*progress.monthsLeft) < goal.target) return GoalStatus::behind;
    return GoalStatus::onTrack;
}

}  // namespace

std::optional<Instant> dateReachedAtPace(const Decimal& remaining, const Decimal& perMonth, Instant now,
                                         const Calendar& calendar) {
    if (perMonth <= Decimal()) return std::nullopt;
    const double months = std::ceil(remaining.toDouble() / perMonth.toDouble());
    if (!(months < 1e6)) return std::nullopt;
    return calendar.adding(CalendarUnit::month, static_cast<int>(months), now);
}

GoalProgress goalProgress(const SavingsGoal& goal, Instant now, const Calendar& calendar) {
    GoalProgress result;
    result.saved = goal.saved();
    result.remaining = result.saved < goal.target ? goal.target - result.saved : Decimal();
    if (goal.target > Decimal()) {
        result.progress = std::clamp(result.saved.toDouble() / goal.target.toDouble(), 0.0, 1.0);
    }
    if (goal.deadline) {
        result.monthsLeft = std::max(monthsBetweenMonthStarts(now, *goal.deadline, calendar), 1);
        if (result.saved < goal.target) {
            result.monthlyAmountNeeded =
                result.remaining.dividedBy(Decimal(*result.monthsLeft))->rounded(2, RoundingMode::up);
        }
    }
    const int monthsElapsed = std::max(monthsBetweenMonthStarts(goal.createdAt, now, calendar) + 1, 1);
    result.monthlyPace = *result.saved.dividedBy(Decimal(monthsElapsed));
    result.status = statusOf(goal, result, now, calendar);
    if (result.saved < goal.target) {
        result.projectedReachDate = dateReachedAtPace(result.remaining, result.monthlyPace, now, calendar);
    }
    return result;
}

std::string goalStatusLabel(GoalStatus status) {
    switch (status) {
        case GoalStatus::completed: return L10n::tr("Raggiunto");
        case GoalStatus::noDeadline: return L10n::tr("Senza scadenza");
        case GoalStatus::onTrack: return L10n::tr("In linea");
        case GoalStatus::behind: return L10n::tr("In ritardo");
        case GoalStatus::overdue: return L10n::tr("Scaduto");
    }
    return {};
}

void to_json(Json& json, GoalStatus status) {
    switch (status) {
        case GoalStatus::completed: json = "completed"; return;
        case GoalStatus::noDeadline: json = "noDeadline"; return;
        case GoalStatus::onTrack: json = "onTrack"; return;
        case GoalStatus::behind: json = "behind"; return;
        case GoalStatus::overdue: json = "overdue"; return;
    }
}

void to_json(Json& json, const GoalProgress& progress) {
    json = Json::object();
    json["saved"] = progress.saved;
    json["remaining"] = progress.remaining;
    json["progress"] = progress.progress;
    JsonCoding::putIfPresent(json, "monthsLeft", progress.monthsLeft);
    JsonCoding::putIfPresent(json, "monthlyAmountNeeded", progress.monthlyAmountNeeded);
    json["monthlyPace"] = progress.monthlyPace;
    json["status"] = progress.status;
    JsonCoding::putIfPresent(json, "projectedReachDate", progress.projectedReachDate);
}

}  // namespace vantello
