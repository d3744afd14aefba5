#include "core/statements/CSVImportOptions.hpp"

#include "core/base/Localization.hpp"

namespace vantello {

using DateOrder = CSVImportOptions::DateOrder;
using AmountMode = CSVImportOptions::AmountMode;

std::string_view rawValue(DateOrder order) {
    switch (order) {
        case DateOrder::dayMonthYear: return "dayMonthYear";
        case DateOrder::yearMonthDay: return "yearMonthDay";
        case DateOrder::monthDayYear: return "monthDayYear";
    }
    return "dayMonthYear";
}

std::string_view rawValue(AmountMode mode) {
    return mode == AmountMode::separate ? "separate" : "signed";
}

std::optional<DateOrder> dateOrderFromRawValue(std::string_view text) {
    for (const auto order : allDateOrders) {
        if (rawValue(order) == text) return order;
    }
    return std::nullopt;
}

std::optional<AmountMode> amountModeFromRawValue(std::string_view text) {
    for (const auto mode : allAmountModes) {
        if (rawValue(mode) == text) return mode;
    }
    return std::nullopt;
}

std::string label(DateOrder order) {
    switch (order) {
        case DateOrder::dayMonthYear: return L10n::tr("Giorno/mese/anno");
        case DateOrder::yearMonthDay: return L10n::tr("Anno-mese-giorno");
        case DateOrder::monthDayYear: return L10n::tr("Mese/giorno/anno");
    }
    return L10n::tr("Giorno/mese/anno");
}

std::string label(AmountMode mode) {
    return mode == AmountMode::separate ? L10n::tr("Due colonne: entrate e uscite")
                                        : L10n::tr("Una colonna, con il meno per le uscite");
}

}  // namespace vantello
