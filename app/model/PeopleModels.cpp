#include "app/model/PeopleModels.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerAnalyses.hpp"
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
    const std::map<Uuid, Decimal>& balances = model_.analyses().peopleBalances();
    for (const Person& person : model_.ledger().people()) {
        const Decimal& balance = balances.at(person.id);
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
    const std::map<Uuid, std::vector<SharedHistoryItem>>& histories = model_.analyses().peopleHistories();
    const auto found = person_ ? histories.find(*person_) : histories.end();
    if (found == histories.end()) person_.reset();
    items_ = found == histories.end() ? std::vector<SharedHistoryItem>{} : found->second;
    std::vector<Row> rows;
    rows.reserve(items_.size());
    for (const SharedHistoryItem& item : items_) rows.push_back({item.id, {}, {}, item.effect.sign()});
    setRows(std::move(rows));
}

QString PersonHistoryModel::cellText(int row, int column) const {
    const SharedHistoryItem& item = items_[std::size_t(row)];
    switch (column) {
        case 0: return dayText(item.date, model_.calendar());
        case 1: return QString::fromStdString(item.description);
        default:
            // Plus: the person owes the user more; minus: less.
            if (item.effect.isZero()) return euroText(item.effect);
            return movementAmountText(item.effect.magnitude(),
                                      item.effect.sign() > 0 ? TransactionKind::income : TransactionKind::expense);
    }
}

}  // namespace vantello::app
