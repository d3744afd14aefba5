#include "app/model/GoalActions.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/Language.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/LedgerGoals.hpp"

#include <algorithm>

namespace vantello::app {

std::optional<QString> saveGoal(LedgerViewModel& model, const SavingsGoal& goal) {
    const auto& goals = model.ledger().data().savingsGoals;
    const bool exists = std::any_of(goals.begin(), goals.end(), [&](const SavingsGoal& other) { return other.id == goal.id; });
    if (exists) {
        return model.apply(uiText("Modifica obiettivo"), [&](Ledger& ledger) { updateGoal(ledger, goal); },
                           LedgerViewModel::ErrorRoute::caller);
    }
    return model.apply(uiText("Nuovo obiettivo"), [&](Ledger& ledger) { addGoal(ledger, goal); },
                       LedgerViewModel::ErrorRoute::caller);
}

void deleteGoal(LedgerViewModel& model, const Uuid& goalID) {
    model.apply(uiText("Elimina obiettivo"), [&](Ledger& ledger) { removeGoal(ledger, goalID); });
}

std::optional<QString> addGoalContribution(LedgerViewModel& model, const Uuid& goalID, const Decimal& amount,
                                           bool withdrawal, Instant date, const std::string& note) {
    SavingsGoal::Contribution contribution{Uuid::random(), date, withdrawal ? -amount : amount, note};
    return model.apply(withdrawal ? uiText("Prelievo dall'obiettivo") : uiText("Versamento sull'obiettivo"),
                       [&](Ledger& ledger) { addContribution(ledger, goalID, contribution); },
                       LedgerViewModel::ErrorRoute::caller);
}

void removeGoalContribution(LedgerViewModel& model, const Uuid& goalID, const Uuid& contributionID) {
    model.apply(uiText("Elimina versamento"),
                [&](Ledger& ledger) { removeContribution(ledger, goalID, contributionID); });
}

QString editableAmount(const Decimal& amount) {
    const bool english = interfaceLocaleName().starts_with("en");
    return QString::fromStdString(amount.toFixed(2, english ? '.' : ','));
}

std::variant<Decimal, QString> typedAmount(const QString& text) {
    const QByteArray utf8 = text.trimmed().toUtf8();
    if (const auto amount = AmountParser::parse(std::string_view(utf8.constData(), std::size_t(utf8.size())))) {
        return *amount;
    }
    return uiText("Importo non leggibile: «{text}»", {{"text", utf8.toStdString()}});
}

}  // namespace vantello::app
