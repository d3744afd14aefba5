#pragma once
// The direction of a movement: money spent or money received. Amounts stay positive; the kind
// says which way they go.

#include "core/base/Json.hpp"

#include <array>
#include <optional>
#include <string_view>

namespace vantello {

enum class TransactionKind { expense, income };

// Every kind in picker order.
inline constexpr std::array<TransactionKind, 2> allTransactionKinds{TransactionKind::expense,
                                                                    TransactionKind::income};

// The text kept in files: "expense" or "income".
[[nodiscard]] std::string_view fileText(TransactionKind kind);
[[nodiscard]] std::optional<TransactionKind> transactionKindFromFileText(std::string_view text);

void to_json(Json& json, const TransactionKind& kind);
// Anything but "expense" or "income" is a DecodingError.
void from_json(const Json& json, TransactionKind& kind);

}  // namespace vantello
