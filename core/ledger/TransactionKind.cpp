#include "core/ledger/TransactionKind.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

std::string_view fileText(TransactionKind kind) {
    switch (kind) {
        case TransactionKind::expense: return "expense";
        case TransactionKind::income: return "income";
    }
    return "expense";
}

std::optional<TransactionKind> transactionKindFromFileText(std::string_view text) {
    for (auto kind : allTransactionKinds) {
        if (fileText(kind) == text) return kind;
    }
    return std::nullopt;
}

void to_json(Json& json, const TransactionKind& kind) {
    json = std::string(fileText(kind));
}

void from_json(const Json& json, TransactionKind& kind) {
    const auto* text = json.get_ptr<const std::string*>();
    const auto found = text ? transactionKindFromFileText(*text) : std::nullopt;
    if (!found) {
        throw DecodingError(L10n::tr("Tipo di movimento sconosciuto: {text}",
                                     {{"text", json.dump()}}));
    }
    kind = *found;
}

}  // namespace vantello
