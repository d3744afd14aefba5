#include "core/analysis/DuplicateChargeAlerts.hpp"

#include "core/analysis/DescriptionKey.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"

#include <algorithm>
#include <chrono>
#include <string>

namespace vantello {

namespace {

using std::chrono::seconds;

constexpr seconds lookBack{30 * 86'400};
constexpr seconds lookAhead{86'400};
constexpr seconds pairWindow{3 * 86'400};

struct Candidate {
    const Transaction* transaction;
    std::string key;  // the note's description key
};

bool isCandidate(const Transaction& transaction, Instant now) {
    return transaction.kind == TransactionKind::expense && !transaction.isTransfer() &&
           !transaction.recurringRuleID && !transaction.note.empty() && transaction.date >= now - lookBack &&
           transaction.date <= now + lookAhead;
}

SmartAlert alertFor(const Transaction& first, const Transaction& second, const Calendar& calendar) {
    SmartAlert alert;
    alert.id = "doppio-" + first.id.text() + "-" + second.id.text();
    alert.kind = SmartAlert::Kind::possibleDuplicate;
    alert.title = L10n::tr("Possibile addebito doppio");
    alert.message = L10n::tr("«{nota}» da {importo} compare due volte, il {data1} e il {data2}.",
                             {{"nota", first.note},
                              {"importo", PeopleFormat::euro(first.amount)},
                              {"data1", PeopleFormat::shortDate(first.date, calendar)},
                              {"data2", PeopleFormat::shortDate(second.date, calendar)}});
    alert.transactionIDs = {first.id, second.id};
    return alert;
}

}  // namespace

std::vector<SmartAlert> duplicateChargeAlerts(const Ledger& ledger, Instant now, const Calendar& calendar) {
    std::vector<Candidate> candidates;
    for (const Transaction& transaction : ledger.transactions()) {
        if (isCandidate(transaction, now)) candidates.push_back({&transaction, descriptionKey(transaction.note)});
    }
    std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
        return a.transaction->date < b.transaction->date;
    });

    std::vector<SmartAlert> alerts;
    for (auto first = candidates.begin(); first != candidates.end(); ++first) {
        const Transaction& a = *first->transaction;
        for (auto second = first + 1; second != candidates.end(); ++second) {
            const Transaction& b = *second->transaction;
            if (b.date - a.date > pairWindow) break;
            if (b.amount == a.amount && second->key == first->key) {
                alerts.push_back(alertFor(a, b, calendar));
                break;
            }
        }
    }
    return alerts;
}

}  // namespace vantello
