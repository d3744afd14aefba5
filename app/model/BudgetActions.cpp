#include "app/model/BudgetActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/AmountParser.hpp"

namespace vantello::app {

std::optional<QString> setCategoryBudget(LedgerViewModel& model, const std::string& categoryID,
                                         const QString& typedAmount) {
    const QString trimmed = typedAmount.trimmed();
    if (trimmed.isEmpty()) return uiText("Scrivi l'importo del budget, per esempio 250,00.");
    const std::optional<Decimal> amount = AmountParser::parse(trimmed.toStdString());
    if (!amount) return uiText("Importo non valido: {text}", {{"text", trimmed.toStdString()}});
    // The ledger takes zero as "no budget"; here it would be a typing slip, so it is refused.
    if (amount->sign() <= 0) return uiText("Il budget deve essere maggiore di zero.");
    return model.apply(
        uiText("Imposta budget"), [&](Ledger& ledger) { ledger.setBudget(categoryID, amount); },
        LedgerViewModel::ErrorRoute::caller);
}

void removeCategoryBudget(LedgerViewModel& model, const std::string& categoryID) {
    model.apply(uiText("Rimuovi budget"), [&](Ledger& ledger) { ledger.setBudget(categoryID, std::nullopt); });
}

}  // namespace vantello::app
