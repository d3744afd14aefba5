#include "app/model/ImportOutcome.hpp"

#include "app/model/DisplayText.hpp"
#include "core/base/Localization.hpp"

#include <QStringList>

#include <string>

namespace vantello::app {

namespace {

// Italian has no plural rule in the catalogue: each count picks its singular or plural text.
QString counted(int count, std::string_view one, std::string_view many) {
    const std::string number = std::to_string(count);
    return count == 1 ? uiText(one, {{"count", number}}) : uiText(many, {{"count", number}});
}

}  // namespace

ImportResult expectedImport(const Ledger& ledger, const StatementImport& statement, std::string_view accountID,
                            bool detectTransfers, const Calendar& calendar, RepeatedMovements repeated) {
    Ledger trial = ledger;
    return importTransactions(trial, statement.transactions(), accountID, detectTransfers, calendar, repeated);
}

QString importSummaryText(const ImportResult& result, int unreadableRows) {
    QStringList parts;
    parts << (result.added == 0 ? uiText("Nessun movimento importato")
                                : counted(result.added, L10n::key("Importato {count} movimento"),
                                          L10n::key("Importati {count} movimenti")));
    if (result.duplicates > 0)
        parts << counted(result.duplicates, L10n::key("{count} già presente"), L10n::key("{count} già presenti"));
    if (result.transfers > 0)
        parts << counted(result.transfers, L10n::key("{count} giroconto"), L10n::key("{count} giroconti"));
    const int invalid = result.invalid + unreadableRows;
    if (invalid > 0)
        parts << counted(invalid, L10n::key("{count} riga non valida"), L10n::key("{count} righe non valide"));
    return parts.join(QStringLiteral(" · "));
}

}  // namespace vantello::app
