#pragma once
// Texts and figures as the screens show them: Italian keys through the installed catalogue, and
// amounts and dates in the interface language ("1.250,00 €" and "5 mar 2026" in Italian,
// "€1,250.00" and "Mar 5, 2026" in English). Every screen and item model formats through here.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QString>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace vantello::app {

// The interface text for an Italian key, with "{name}" placeholders filled.
[[nodiscard]] QString uiText(std::string_view italianKey);
[[nodiscard]] QString uiText(std::string_view italianKey,
                             std::initializer_list<std::pair<std::string_view, std::string_view>> values);

// A count in its singular or plural text ("{count} movimento", "{count} movimenti"): the
// catalogue has no plural rules, so each form is a key of its own.
[[nodiscard]] QString countedText(int count, std::string_view one, std::string_view many);

// An amount in euros, sign as the number has it.
[[nodiscard]] QString euroText(const Decimal& amount);
// An amount as the user types it in a field, without grouping: "1250,50" in Italian.
[[nodiscard]] QString typedAmountText(const Decimal& amount);
// A movement's amount with its direction: "+1.250,00 €" for income, "−12,50 €" for an expense.
[[nodiscard]] QString movementAmountText(const Decimal& amount, TransactionKind kind);
// The abbreviated date of the day the moment falls on.
[[nodiscard]] QString dayText(Instant moment, const Calendar& calendar);
// "marzo 2026", "March 2026".
[[nodiscard]] QString monthTitle(Instant moment, const Calendar& calendar);

}  // namespace vantello::app
