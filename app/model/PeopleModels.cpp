#include "app/model/PeopleModels.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/LedgerSharing.hpp"

#include <algorithm>

namespace vantello::app {

QString balanceText(const Decimal& balance) {
    const std::string amount = euroText(balance.magnitude()).toStdString();
    if (balance.sign() > 0) return uiText("Ti deve {amount}", {{"amount", amount}});
    if (balance.sign() < 0) return uiText("Devi {amount}", {{"amount", amount}});
    return uiText("In pari");
}

PeopleListModel::PeopleListModel(LedgerViewModel& model, QObject* parent) : WealthTableModel(parent), model_(model) {
    setColumns({{QStringLiteral("name"), uiText("Persona")},
                {QStringLiteral("balance"), uiText("Saldo"), true, true}});
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &PeopleListModel::refresh);
    refresh();
}

void PeopleListModel::refresh() {
    std::vector<Row> rows;
    const Ledger& ledger = model_.ledger();
    for (const Person& person : ledger.people()) {
        const Decimal balance = personBalance(ledger, person.id);
        rows.push_back({person.id, {QString::fromStdString(person.name), balanceText(balance)}, {}, balance.sign()});
    }
    setRows(std::move(rows));
}

PersonHistoryModel::PersonHistoryModel(LedgerViewModel& model, QObject* parent)
    : WealthTableModel(parent), model_(model) {
    setColumns({{QStringLiteral("date"), uiText("Data")},
                {QStringLiteral("description"), uiText("Descrizione")},
                {QStringLiteral("effect"), uiText("Effetto sul saldo"), true, true}});
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &PersonHistoryModel::refresh);
}

void PersonHistoryModel::setPerson(std::optional<Uuid> personID) {
    person_ = std::move(personID);
    refresh();
}

void PersonHistoryModel::refresh() {
    std::vector<Row> rows;
    const Ledger& ledger = model_.ledger();
    if (person_ && std::ranges::none_of(ledger.people(), [&](const Person& p) { return p.id == *person_; })) {
        person_.reset();
    }
    if (person_) {
        const Calendar& calendar = model_.calendar();
        for (const SharedHistoryItem& item : personHistory(ledger, *person_)) {
            // Plus: the person owes the user more; minus: less.
            const QString effect = item.effect.isZero()
                                       ? euroText(item.effect)
                                       : movementAmountText(item.effect.magnitude(), item.effect.sign() > 0
                                                                                         ? TransactionKind::income
                                                                                         : TransactionKind::expense);
            rows.push_back({item.id,
                            {dayText(item.date, calendar), QString::fromStdString(item.description), effect},
                            {},
                            item.effect.sign()});
        }
    }
    setRows(std::move(rows));
}

}  // namespace vantello::app
