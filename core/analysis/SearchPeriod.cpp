#include "core/analysis/SearchPeriod.hpp"

namespace vantello {

namespace {

constexpr Instant distantPast = Instant::min();
constexpr Instant distantFuture = Instant::max();

DateInterval lastTwelveMonths(Instant now, const Calendar& calendar) {
    const DateInterval current = calendar.monthInterval(now);
    // Moving the first instant of the month never clamps, so the month found is the right one.
    const auto first = calendar.adding(CalendarUnit::month, -11, current.start);
    return {first ? calendar.monthInterval(*first).start : distantPast, current.end};
}

DateInterval customDays(const TransactionFilter& filter, const Calendar& calendar) {
    DateInterval days{distantPast, distantFuture};
    if (filter.customStart) days.start = calendar.startOfDay(*filter.customStart);
    if (filter.customEnd) {
        // The end day is part of the period: it ends where the next day begins.
        if (const auto nextDay = calendar.adding(CalendarUnit::day, 1, *filter.customEnd)) {
            days.end = calendar.startOfDay(*nextDay);
        }
    }
    return days;
}

}  // namespace

std::optional<DateInterval> periodInterval(const TransactionFilter& filter, Instant now, const Calendar& calendar) {
    switch (filter.period) {
        case TransactionFilter::Period::all: return std::nullopt;
        case TransactionFilter::Period::thisMonth: return calendar.monthInterval(now);
        case TransactionFilter::Period::thisYear: return calendar.yearInterval(now);
        case TransactionFilter::Period::last12Months: return lastTwelveMonths(now, calendar);
        case TransactionFilter::Period::custom: return customDays(filter, calendar);
    }
    return std::nullopt;
}

}  // namespace vantello
