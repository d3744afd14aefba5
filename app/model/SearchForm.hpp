#pragma once
// The search screen's conditions as the user typed them, turned into the core's filter (and
// back, for a saved search): amounts are read the Italian way, dates are whole calendar days.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/TransactionFilter.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QString>

#include <optional>
#include <set>
#include <string>
#include <variant>

namespace vantello::app {

struct SearchForm {
    QString text;
    TransactionFilter::Period period = TransactionFilter::Period::all;
    std::optional<CivilDate> from;  // used with the custom period only
    std::optional<CivilDate> to;
    std::optional<TransactionKind> kind;
    std::set<std::string> categoryIDs;
    QString minimum;  // "12,50"; empty for no bound
    QString maximum;
    bool onlyWithAttachments = false;
    std::optional<std::string> accountID;

    bool operator==(const SearchForm&) const = default;
};

// Which typed condition is wrong and why, in the user's language.
struct SearchFormProblem {
    enum class Field { minimum, maximum, dates };
    Field field;
    QString message;
};

[[nodiscard]] std::variant<TransactionFilter, SearchFormProblem> searchFilter(const SearchForm& form,
                                                                            const Calendar& calendar);
// The form that gives `filter` again, amounts written as the user would type them.
[[nodiscard]] SearchForm searchForm(const TransactionFilter& filter, const Calendar& calendar);

}  // namespace vantello::app
