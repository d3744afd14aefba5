#pragma once
// The changes the shared-expenses screen makes to people and their entries, each through the
// model's one door (saved, undoable). Those asked for from a sheet return the core's message for
// the sheet to show.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/SharedEntry.hpp"

#include <QString>

#include <optional>
#include <string_view>

namespace vantello::app {

std::optional<QString> addPersonRecord(LedgerViewModel& model, std::string_view name);
std::optional<QString> renamePersonRecord(LedgerViewModel& model, const Uuid& personID, std::string_view name);
// Takes the person's shares off every movement and deletes the person's entries.
void deletePersonRecord(LedgerViewModel& model, const Uuid& personID);
// A payment either way or an expense the person paid for the user ("Salda").
std::optional<QString> addSettlement(LedgerViewModel& model, const SharedEntry& entry);

}  // namespace vantello::app
