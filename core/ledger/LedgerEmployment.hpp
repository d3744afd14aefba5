#pragma once
// The periods without work of a ledger: saving one from the editor's draft, deleting one, and
// the period still in progress. Saving throws EmploymentError and leaves the ledger as it was,
// or changes it.

#include "core/ledger/Ledger.hpp"

#include <optional>

namespace vantello {

// What the period editor holds: a new period, an edited one, or an ongoing one being closed.
struct UnemploymentDraft {
    Uuid id;
    bool isNew = true;      // adding rather than editing
    bool isEnding = false;  // opened to set the end of the period in progress
    Instant start;
    bool hasEnd = false;
    Instant end;
    std::string note;
    bool operator==(const UnemploymentDraft&) const = default;
};

// Keeps the note trimmed, then refuses an end before the start (an end equal to the start is a
// one-day period), a second period without end, and a period sharing time with another (a
// missing end counts as the far future; touching ends do not overlap). Inserts the period, or
// replaces the one with the same id.
void saveUnemploymentPeriod(Ledger& ledger, const UnemploymentDraft& draft);
void deleteUnemploymentPeriod(Ledger& ledger, const Uuid& periodID);  // an unknown id is ignored

// The period without end, if any.
[[nodiscard]] std::optional<UnemploymentPeriod> ongoingUnemploymentPeriod(const Ledger& ledger);

}  // namespace vantello
