#pragma once
// The conditions of a search over the movements: text, period, kind, categories, amounts,
// attachments and account.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <optional>
#include <set>
#include <string>

namespace vantello {

struct TransactionFilter {
    enum class Period { all, thisMonth, thisYear, last12Months, custom };
    // The text condition prepared once per search (amount, matching categories, fast path);
    // defined with the search itself in core/analysis/TransactionQuery.hpp.
    struct Query;

    std::string text;
    Period period = Period::all;
    std::optional<Instant> customStart;
    std::optional<Instant> customEnd;
    std::optional<TransactionKind> kind;  // absent means both
    std::set<std::string> categoryIDs;    // empty means all
    std::optional<Decimal> minAmount;
    std::optional<Decimal> maxAmount;
    bool onlyWithAttachments = false;
    std::optional<std::string> accountID;

    bool operator==(const TransactionFilter&) const = default;
};

void to_json(Json& json, TransactionFilter::Period period);
void from_json(const Json& json, TransactionFilter::Period& period);
void to_json(Json& json, const TransactionFilter& filter);
void from_json(const Json& json, TransactionFilter& filter);

}  // namespace vantello
