#pragma once
// What the categories screen changes in the ledger, each through the model's one door (saved,
// undoable). The core's refusal comes back as text for the sheet or the screen to show.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QString>

#include <optional>
#include <string>
#include <variant>

namespace vantello::app {

// Adds a custom category; returns its id, or the reason it cannot be added.
[[nodiscard]] std::variant<std::string, QString> addCustomCategory(LedgerViewModel& model, const QString& name,
                                                                   const std::string& symbol, TransactionKind kind);
// Gives a custom category a new name and icon; built-in ones are refused by the core.
[[nodiscard]] std::optional<QString> changeCategory(LedgerViewModel& model, const std::string& categoryID,
                                                    const QString& name, const std::string& symbol);
// Deletes a custom category; its movements go to the fallback category of its kind.
[[nodiscard]] std::optional<QString> removeCategory(LedgerViewModel& model, const std::string& categoryID);

}  // namespace vantello::app
