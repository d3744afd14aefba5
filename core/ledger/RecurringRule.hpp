#pragma once
// A movement that repeats by itself every week, month or year from a start date.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct RecurringRule {
    enum class Frequency { weekly, monthly, yearly };

    Uuid id;
    TransactionKind kind = TransactionKind::expense;
    Decimal amount;
    std::string categoryID;
    std::string accountID;
    std::string note;
    std::optional<std::string> transferToAccountID;  // every created movement is a transfer
    Frequency frequency = Frequency::monthly;
    Instant startDate;
    std::optional<Instant> endDate;
    std::optional<Instant> lastGenerated;  // the last occurrence already dealt with

    // Due dates (12:00 of their day) later than `after` and not later than `through` or the
    // end date, counted from the start date (never from the previous one, so month-end clamping
    // does not drift); at most 2000 candidates are looked at.
    [[nodiscard]] std::vector<Instant> occurrences(std::optional<Instant> after, Instant through,
                                                   const Calendar& calendar) const;
    // The first due date strictly after the later of `from` and lastGenerated, looking no
    // further than two years after `from`.
    [[nodiscard]] std::optional<Instant> nextOccurrence(Instant from, const Calendar& calendar) const;

    bool operator==(const RecurringRule&) const = default;
};

void to_json(Json& json, RecurringRule::Frequency frequency);
void from_json(const Json& json, RecurringRule::Frequency& frequency);
void to_json(Json& json, const RecurringRule& rule);
void from_json(const Json& json, RecurringRule& rule);

}  // namespace vantello
