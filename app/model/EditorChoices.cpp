#include "app/model/EditorChoices.hpp"

#include "app/model/SymbolIcons.hpp"
#include "core/rates/Currencies.hpp"

#include <utility>

namespace vantello::app {

void EditorChoiceModel::setChoices(std::vector<EditorChoice> choices) {
    beginResetModel();
    choices_ = std::move(choices);
    endResetModel();
}

std::optional<int> EditorChoiceModel::rowOf(std::string_view id) const {
    for (std::size_t row = 0; row < choices_.size(); ++row) {
        if (choices_[row].id == id) return static_cast<int>(row);
    }
    return std::nullopt;
}

int EditorChoiceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(choices_.size());
}

QVariant EditorChoiceModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const EditorChoice& choice = choices_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return choice.text;
        case Qt::DecorationRole: return choice.icon.isNull() ? QVariant() : QVariant(choice.icon);
        case idRole: return QString::fromStdString(choice.id);
        default: return {};
    }
}

std::vector<EditorChoice> categoryChoices(const Ledger& ledger, TransactionKind kind) {
    std::vector<EditorChoice> choices;
    for (const TransactionCategory& category : ledger.categories(kind)) {
        choices.push_back({category.id, QString::fromStdString(category.name), symbolIcon(category.symbol)});
    }
    return choices;
}

std::vector<EditorChoice> accountChoices(const Ledger& ledger, std::optional<std::string_view> except) {
    std::vector<EditorChoice> choices;
    for (const Account& account : ledger.accounts()) {
        if (except && account.id == *except) continue;
        choices.push_back({account.id, QString::fromStdString(account.name), symbolIcon(account.symbol)});
    }
    return choices;
}

std::vector<EditorChoice> currencyChoices() {
    std::vector<EditorChoice> choices;
    const std::string euro(Currencies::ledger);
    choices.push_back({euro, QStringLiteral("EUR \u20AC"), {}});
    for (std::string_view code : Currencies::offered) {
        choices.push_back({std::string(code), QString::fromLatin1(code.data(), static_cast<qsizetype>(code.size())), {}});
    }
    return choices;
}

}  // namespace vantello::app
