#include "app/model/RecurringActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/LedgerRecurring.hpp"

namespace vantello::app {

std::optional<QString> saveRecurringRule(LedgerViewModel& model, RecurringRule rule, const QString& amountText,
                                         bool isNew) {
    const std::optional<Decimal> amount = AmountParser::parse(amountText.trimmed().toStdString());
    if (!amount) return uiText("Scrivi un importo, per esempio 250 o 250,00.");
    rule.amount = *amount;
    const Instant now = model.now();
    const Calendar& calendar = model.calendar();
    return model.apply(
        isNew ? uiText("Aggiungi movimento ricorrente") : uiText("Modifica movimento ricorrente"),
        [&](Ledger& ledger) {
            if (isNew) {
                addRecurringRule(ledger, rule);
            } else {
                updateRecurringRule(ledger, rule);
            }
            generateDueTransactions(ledger, now, calendar);
        },
        LedgerViewModel::ErrorRoute::caller);
}

void removeRecurringRule(LedgerViewModel& model, const Uuid& ruleID) {
    model.apply(uiText("Elimina movimento ricorrente"), [&](Ledger& ledger) { deleteRecurringRule(ledger, ruleID); });
}

}  // namespace vantello::app
