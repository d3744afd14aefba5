#include "core/ledger/TransactionFilter.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <array>
#include <string_view>
#include <tuple>
#include <utility>

namespace vantello {

namespace {

using Period = TransactionFilter::Period;

constexpr JsonFields::EnumNames<Period, 5> periodNames{{
    {Period::all, "all"},
    {Period::thisMonth, "thisMonth"},
    {Period::thisYear, "thisYear"},
    {Period::last12Months, "last12Months"},
    {Period::custom, "custom"},
}};

}  // namespace

void to_json(Json& json, TransactionFilter::Period period) { JsonFields::writeName(json, period, periodNames); }

void from_json(const Json& json, TransactionFilter::Period& period) {
    period = JsonFields::readName(json, periodNames, L10n::key("Periodo di ricerca sconosciuto: {text}"));
}

const auto transactionFilterFields = std::tuple{
    // Every condition has a neutral value, so a sparse filter still opens as the search it was.
    JsonFields::orDefault("text", &TransactionFilter::text, std::string()),
    JsonFields::orDefault("period", &TransactionFilter::period, TransactionFilter::Period::all),
    JsonFields::optional("customStart", &TransactionFilter::customStart),
    JsonFields::optional("customEnd", &TransactionFilter::customEnd),
    JsonFields::optional("kind", &TransactionFilter::kind),
    // A std::set comes out in ascending order, so the saved file does not change between saves.
    JsonFields::orDefault("categoryIDs", &TransactionFilter::categoryIDs),
    JsonFields::optional("minAmount", &TransactionFilter::minAmount),
    JsonFields::optional("maxAmount", &TransactionFilter::maxAmount),
    JsonFields::orDefault("onlyWithAttachments", &TransactionFilter::onlyWithAttachments, false),
    JsonFields::optional("accountID", &TransactionFilter::accountID),
};

void to_json(Json& json, const TransactionFilter& filter) { JsonFields::write(json, filter, transactionFilterFields); }

void from_json(const Json& json, TransactionFilter& filter) { JsonFields::read(json, filter, transactionFilterFields); }

}  // namespace vantello
