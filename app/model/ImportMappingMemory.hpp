#pragma once
// The CSV columns the user last confirmed for each bank, kept under the preference
// "importMappings" (JSON text) and keyed on the header row of the bank's statements, so that the
// next statement of the same bank is read the same way without choosing the columns again.

#include "app/model/LedgerViewModel.hpp"
#include "app/settings/Preferences.hpp"
#include "core/statements/StatementImport.hpp"

#include <QString>

#include <optional>

namespace vantello::app {

class ImportMappingMemory {
public:
    explicit ImportMappingMemory(Preferences& preferences) : preferences_(preferences) {}

    // The bank's key: the cells of the header row the guess found, folded (case, accents, outer
    // spaces) and hashed. Absent for OFX, QIF and CAMT and for a table where no header was found,
    // whose first row is a movement and names no bank.
    [[nodiscard]] static std::optional<QString> fingerprint(const StatementImport& statement);

    // The choices the statement was read with, every column spelled out (-1 for "none"), so that
    // a later guess that differs cannot change what the user confirmed.
    [[nodiscard]] static CSVImportOverrides mappingOf(const StatementImport& statement);

    // The mapping stored under the key, its columns checked against `statement` (opened with the
    // guess): one naming a column the table lacks, or a damaged entry, gives nothing.
    [[nodiscard]] std::optional<CSVImportOverrides> recall(const QString& fingerprint,
                                                           const StatementImport& statement) const;

    // Reads the open session again with the mapping remembered for its bank, when there is one
    // that changes the guess and still reads a movement where the guess does; otherwise leaves
    // the session as it was. Says whether it applied one.
    bool proposeRemembered(LedgerViewModel& model, const QString& fingerprint) const;

    // Stores the choices the statement was read with under the key; the oldest of many banks
    // are let go.
    void remember(const QString& fingerprint, const StatementImport& statement);
    void forget(const QString& fingerprint);

    static constexpr int maximumBanks = 40;

private:
    Preferences& preferences_;
};

}  // namespace vantello::app
