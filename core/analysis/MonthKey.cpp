#include "core/analysis/MonthKey.hpp"

#include "core/base/Iso8601.hpp"

namespace vantello {

std::string monthKey(Instant moment, const Calendar& calendar) { return Iso8601::month(calendar.civilDate(moment)); }

}  // namespace vantello
