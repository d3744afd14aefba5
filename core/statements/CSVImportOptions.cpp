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

CSVGuessRules rulesAfterChoices(CSVGuessRules rules, const CSVImportOptions& guessed,
                                const CSVImportOptions& chosen) {
    const auto mark = [&](std::string_view option, bool changed) {
        if (changed) rules.insert_or_assign(std::string(option), "user");
    };
    mark("hasHeader", guessed.hasHeader != chosen.hasHeader);
    mark("headerRow", guessed.headerRow != chosen.headerRow);
    mark("dateColumn", guessed.dateColumn != chosen.dateColumn);
    mark("dateOrder", guessed.dateOrder != chosen.dateOrder);
    mark("amountMode", guessed.amountMode != chosen.amountMode);
    mark("amountColumn", guessed.amountColumn != chosen.amountColumn);
    mark("incomeColumn", guessed.incomeColumn != chosen.incomeColumn);
    mark("expenseColumn", guessed.expenseColumn != chosen.expenseColumn);
    mark("descriptionColumn", guessed.descriptionColumn != chosen.descriptionColumn);
    mark("categoryColumn", guessed.categoryColumn != chosen.categoryColumn);
    mark("signColumn", guessed.signColumn != chosen.signColumn);
    mark("statusColumn", guessed.statusColumn != chosen.statusColumn);
    return rules;
}

}  // namespace vantello
