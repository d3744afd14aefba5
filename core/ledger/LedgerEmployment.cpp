#include "core/ledger/LedgerEmployment.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/EmploymentError.hpp"

#include <algorithm>

namespace vantello {

namespace {

Instant endOrFarFuture(const std::optional<Instant>& end) { return end.value_or(Instant::max()); }

void checkAgainstOthers(const std::vector<UnemploymentPeriod>& periods, const UnemploymentPeriod& period) {
    for (const UnemploymentPeriod& other : periods) {
        if (other.id == period.id) continue;
        if (!period.end && !other.end) throw EmploymentError(EmploymentError::Code::alreadyUnemployed);
    }
    for (const UnemploymentPeriod& other : periods) {
        if (other.id == period.id) continue;
        if (other.start < endOrFarFuture(period.end) && endOrFarFuture(other.end) > period.start) {
            throw EmploymentError(EmploymentError::Code::overlapping);
        }
    }
}

}  // namespace

void saveUnemploymentPeriod(Ledger& ledger, const UnemploymentDraft& draft) {
    UnemploymentPeriod period{draft.id, draft.start, std::nullopt, Text::trimmed(draft.note)};
    if (draft.hasEnd) {
        if (draft.end < draft.start) throw EmploymentError(EmploymentError::Code::endBeforeStart);
        period.end = draft.end;
    }
    checkAgainstOthers(ledger.unemploymentPeriods(), period);
    ledger.change([&](LedgerData& data) {
        const auto found = std::ranges::find(data.unemploymentPeriods, period.id, &UnemploymentPeriod::id);
        if (found == data.unemploymentPeriods.end()) {
            data.unemploymentPeriods.push_back(std::move(period));
        } else {
            *found = std::move(period);
        }
    });
}

void deleteUnemploymentPeriod(Ledger& ledger, const Uuid& periodID) {
    const Uuid removedID = periodID;  // `periodID` may refer to the period about to be erased
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.unemploymentPeriods,
                      [&](const UnemploymentPeriod& period) { return period.id == removedID; });
    });
}

std::optional<UnemploymentPeriod> ongoingUnemploymentPeriod(const Ledger& ledger) {
    const auto& periods = ledger.unemploymentPeriods();
    const auto found = std::ranges::find_if(periods, [](const UnemploymentPeriod& period) { return !period.end; });
    if (found == periods.end()) return std::nullopt;
    return *found;
}

}  // namespace vantello
