#include "app/model/RuleActions.hpp"

#include "app/model/DisplayText.hpp"

namespace vantello::app {

std::optional<QString> saveCategoryRule(LedgerViewModel& model, const std::optional<Uuid>& ruleID,
                                        const QString& pattern, const std::string& categoryID) {
    const std::string text = pattern.toStdString();
    if (!ruleID) {
        return model.apply(uiText("Aggiungi regola"),
                           [&](Ledger& ledger) { addCategoryRule(ledger, text, categoryID); },
                           LedgerViewModel::ErrorRoute::caller);
    }
    return model.apply(uiText("Modifica regola"),
                       [&](Ledger& ledger) { updateCategoryRule(ledger, CategoryRule{*ruleID, text, categoryID}); },
                       LedgerViewModel::ErrorRoute::caller);
}

void removeCategoryRule(LedgerViewModel& model, const Uuid& ruleID) {
    model.apply(uiText("Elimina regola"), [&](Ledger& ledger) { deleteCategoryRule(ledger, ruleID); });
}

void moveRule(LedgerViewModel& model, const Uuid& ruleID, MoveDirection direction) {
    model.apply(uiText("Sposta regola"), [&](Ledger& ledger) { moveCategoryRule(ledger, ruleID, direction); });
}

}  // namespace vantello::app
