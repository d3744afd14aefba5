#include "cli/SubscriptionsCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/base/PeopleFormat.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/planning/SubscriptionActions.hpp"
#include "core/planning/SubscriptionDetection.hpp"
#include "core/planning/SubscriptionError.hpp"

#include <functional>

namespace vantello::cli {

namespace {

constexpr const char* textLocale = "it_IT";

std::string euro(const Decimal& amount) { return PeopleFormat::euro(amount, textLocale); }

std::string frequencyLabel(RecurringRule::Frequency frequency) {
    switch (frequency) {
        case RecurringRule::Frequency::weekly: return L10n::tr("settimanale");
        case RecurringRule::Frequency::monthly: return L10n::tr("mensile");
        case RecurringRule::Frequency::yearly: return L10n::tr("annuale");
    }
    return {};
}

void print(const DetectedSubscription& subscription, const Calendar& calendar, std::ostream& out) {
    const auto day = [&](Instant moment) { return PeopleFormat::shortDate(moment, calendar, textLocale); };
    out << L10n::tr("{nome}: {importo} {frequenza} (al mese {mese}, all'anno {anno})",
                    {{"nome", subscription.name},
                     {"importo", euro(subscription.amount)},
                     {"frequenza", frequencyLabel(subscription.frequency)},
                     {"mese", euro(subscription.monthlyCost())},
                     {"anno", euro(subscription.yearlyCost())}})
        << '\n';
    if (subscription.priceIncreased()) {
        out << "  " << L10n::tr("prezzo aumentato, prima {importo}", {{"importo", euro(*subscription.previousAmount)}})
            << '\n';
    }
    out << "  "
        << L10n::tr("{numero} addebiti, l'ultimo il {ultimo}, il prossimo verso il {prossimo}",
                    {{"numero", std::to_string(subscription.occurrences)},
                     {"ultimo", day(subscription.lastDate)},
                     {"prossimo", day(subscription.nextExpected)}})
        << '\n';
    if (subscription.isRecurring) out << "  " << L10n::tr("già un movimento ricorrente") << '\n';
    out << "  " << L10n::tr("chiave: {chiave}", {{"chiave", subscription.id}}) << '\n';
}

int list(const Arguments& arguments, std::ostream& out) {
    const Calendar calendar = Calendar::current();
    const std::vector<DetectedSubscription> found = detectSubscriptions(readLedger(arguments), calendar);
    if (arguments.has("--json")) {
        out << JsonCoding::pretty(Json(found));
        return 0;
    }
    if (found.empty()) {
        out << L10n::tr("Nessun abbonamento trovato") << '\n';
        return 0;
    }
    for (const DetectedSubscription& subscription : found) print(subscription, calendar, out);
    out << L10n::tr("Abbonamenti: {numero}, in tutto {anno} all'anno",
                    {{"numero", std::to_string(found.size())}, {"anno", euro(yearlyTotal(found))}})
        << '\n';
    return 0;
}

// Acts on the subscription with `key` under the writer lock; a key that names no subscription
// to act on is a mistake in what was typed.
int act(const Arguments& arguments, const std::string& key, std::ostream& out, std::ostream& err,
        const std::function<std::string(Ledger&, const DetectedSubscription&, const Calendar&)>& action) {
    const Calendar calendar = Calendar::current();
    std::string done;
    try {
        changeLedger(arguments, [&](Ledger& ledger) { done = action(ledger, detectedSubscription(ledger, key, calendar), calendar); });
    } catch (const SubscriptionError& error) {
        err << error.message() << '\n';
        return 2;
    }
    out << done << '\n';
    return 0;
}

std::string ignore(Ledger& ledger, const DetectedSubscription& subscription, const Calendar&) {
    ignoreSubscription(ledger, subscription);
    return L10n::tr("«{nome}» non verrà più proposto come abbonamento.", {{"nome", subscription.name}});
}

std::string makeRecurring(Ledger& ledger, const DetectedSubscription& subscription, const Calendar& calendar) {
    makeSubscriptionRecurring(ledger, subscription);
    return L10n::tr("Movimento ricorrente creato: «{nome}», {importo} {frequenza} dal {data}.",
                    {{"nome", subscription.name},
                     {"importo", euro(subscription.amount)},
                     {"frequenza", frequencyLabel(subscription.frequency)},
                     {"data", PeopleFormat::shortDate(subscription.nextExpected, calendar, textLocale)}});
}

}  // namespace

int runSubscriptions(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.maximumPositional = 2;
    const std::string usage = L10n::tr(subscriptionsUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const auto& positional = parsed.positional();
        const std::string action = positional.empty() ? "list" : positional.front();
        if (action == "list") {
            if (positional.size() > 1) throw ArgumentError(L10n::tr("Argomento inatteso: {testo}", {{"testo", positional[1]}}));
            return [&parsed, &out] { return list(parsed, out); };
        }
        if (action != "ignore" && action != "recurring") {
            throw ArgumentError(
                L10n::tr("Azione sconosciuta: {testo} (list, ignore oppure recurring).", {{"testo", action}}));
        }
        if (positional.size() < 2 || positional[1].empty()) throw ArgumentError(L10n::tr("Manca la chiave dell'abbonamento."));
        if (parsed.has("--json")) throw ArgumentError(L10n::tr("--json vale solo per l'elenco degli abbonamenti."));
        const auto work = action == "ignore" ? ignore : makeRecurring;
        return [&parsed, &out, &err, work] { return act(parsed, parsed.positional()[1], out, err, work); };
    });
}

}  // namespace vantello::cli
