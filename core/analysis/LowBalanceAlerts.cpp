#include "core/analysis/LowBalanceAlerts.hpp"

#include "core/analysis/MonthKey.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"
#include "core/ledger/LedgerAccounts.hpp"

#include <string>

namespace vantello {

std::vector<SmartAlert> lowBalanceAlerts(const Ledger& ledger, Instant now, const Calendar& calendar) {
    std::vector<SmartAlert> alerts;
    // The month in the id lets a dismissed warning come back next month if the balance stays low.
    const std::string month = monthKey(now, calendar);
    std::vector<const Account*> watched;
    std::vector<std::string> watchedIDs;
    for (const Account& account : ledger.accounts()) {
        if (!account.lowBalanceThreshold) continue;
        watched.push_back(&account);
        watchedIDs.push_back(account.id);
    }
    if (watched.empty()) return alerts;
    // One walk over the movements for all the watched accounts.
    const std::vector<Decimal> balances = accountBalances(ledger, watchedIDs);
    for (std::size_t index = 0; index < watched.size(); ++index) {
        const Account& account = *watched[index];
        const Decimal& balance = balances[index];
        if (!(balance < *account.lowBalanceThreshold)) continue;
        SmartAlert alert;
        alert.id = "saldo-basso-" + account.id + "-" + month;
        alert.kind = SmartAlert::Kind::lowBalance;
        alert.title = L10n::tr("Saldo basso: {conto}", {{"conto", account.name}});
        alert.message = L10n::tr("Il saldo è {saldo}, sotto la soglia di {soglia} che hai scelto.",
                                 {{"saldo", PeopleFormat::euro(balance)},
                                  {"soglia", PeopleFormat::euro(*account.lowBalanceThreshold)}});
        alerts.push_back(std::move(alert));
    }
    return alerts;
}

}  // namespace vantello
