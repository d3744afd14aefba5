#include "app/model/ImportOutcome.hpp"

#include "app/model/DisplayText.hpp"
#include "core/base/Localization.hpp"

#include <QStringList>

#include <string>

namespace vantello::app {

ImportResult expectedImport(const Ledger& ledger, const StatementImport& statement, std::string_view accountID,
                            bool detectTransfers, const Calendar& calendar, RepeatedMovements repeated) {
    Ledger trial = ledger;
    return importTransactions(trial, statement.transactions(), accountID, detectTransfers, calendar, repeated);
}

QString importSummaryText(const ImportResult& result, int unreadableRows) {
    QStringList parts;
    parts << (result.added == 0 ? uiText("Nessun movimento importato")
                                : countedText(result.added, L10n::key("Importato {count} movimento"),
                                          L10n::key("Importati {count} movimenti")));
    if (result.duplicates > 0)
        parts << countedText(result.duplicates, L10n::key("{count} già presente"), L10n::key("{count} già presenti"));
    if (result.transfers > 0)
        parts << countedText(result.transfers, L10n::key("{count} giroconto"), L10n::key("{count} giroconti"));
    const int invalid = result.invalid + unreadableRows;
    if (invalid > 0)
        parts << countedText(invalid, L10n::key("{count} riga non valida"), L10n::key("{count} righe non valide"));
    return parts.join(QStringLiteral(" · "));
}

}  // namespace vantello::app
