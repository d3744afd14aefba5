#include "core/analysis/UnusualSpendingAlerts.hpp"

#include "core/analysis/MonthKey.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"

#include <algorithm>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace vantello {

namespace {

constexpr int comparedMonths = 3;
const Decimal excessFactor(15, -1);  // 1.5
const Decimal minimumExcess(20);

// Per-category expenses of this month and of each earlier month, and whether an earlier month
// holds any movement at all, gathered in one pass over the ledger.
struct MonthSums {
    DateInterval month;
    std::map<std::string, Decimal> expenses;
    bool holdsMovements = false;
};

std::vector<MonthSums> monthSums(const Ledger& ledger, Instant now, const Calendar& calendar) {
    const DateInterval thisMonth = calendar.monthInterval(now);
    std::vector<MonthSums> months{MonthSums{thisMonth, {}, false}};
    for (int back = 1; back <= comparedMonths; ++back) {
        if (const auto dayInMonth = calendar.adding(CalendarUnit::month, -back, thisMonth.start)) {
            months.push_back(MonthSums{calendar.monthInterval(*dayInMonth), {}, false});
        }
    }
    for (const Transaction& transaction : ledger.transactions()) {
        for (MonthSums& sums : months) {
            if (!sums.month.contains(transaction.date)) continue;
            sums.holdsMovements = true;
            // The same movements as the category breakdown: expenses, transfers left out.
            if (transaction.kind == TransactionKind::expense && countsInTotals(transaction)) {
                sums.expenses[transaction.categoryID] += transaction.amount;
            }
            break;
        }
    }
    return months;
}

struct Usual {
    std::map<std::string, Decimal> sums;
    int monthCount = 0;
};

// The earlier months that hold some movement, added up per category.
Usual usualSpending(std::span<const MonthSums> earlierMonths) {
    Usual usual;
    for (const MonthSums& month : earlierMonths) {
        if (!month.holdsMovements) continue;
        for (const auto& [categoryID, sum] : month.expenses) usual.sums[categoryID] += sum;
        ++usual.monthCount;
    }
    return usual;
}

// The ids in the order of the ledger's category list, so that the alerts keep a stable order;
// ids outside the list (a category since removed) come last, by id.
std::vector<std::string> inCategoryOrder(const Ledger& ledger, const std::map<std::string, Decimal>& sums) {
    std::vector<std::string> ordered;
    for (const TransactionCategory& category : ledger.allCategories()) {
        if (sums.contains(category.id)) ordered.push_back(category.id);
    }
    for (const auto& [categoryID, sum] : sums) {
        if (std::find(ordered.begin(), ordered.end(), categoryID) == ordered.end()) ordered.push_back(categoryID);
    }
    return ordered;
}

// (spent − average) ÷ average as a whole percentage: "50%".
std::string excessPercentage(const Decimal& spent, const Decimal& average) {
    const Decimal ratio = (spent - average).dividedBy(average).value_or(Decimal());
    return (ratio * Decimal(100)).rounded(0).description() + "%";
}

SmartAlert alertFor(const TransactionCategory& category, const Decimal& spent, const Decimal& average,
                    const std::string& month) {
    SmartAlert alert;
    alert.id = "spesa-anomala-" + category.id + "-" + month;
    alert.kind = SmartAlert::Kind::unusualSpending;
    alert.title = L10n::tr("Spesa insolita: {categoria}", {{"categoria", category.name}});
    alert.message = L10n::tr(
        "Questo mese hai già speso {speso} in {categoria}, il {percentuale} in più della tua media mensile "
        "({media}).",
        {{"speso", PeopleFormat::euro(spent)},
         {"categoria", category.name},
         {"percentuale", excessPercentage(spent, average)},
         {"media", PeopleFormat::euro(average)}});
    return alert;
}

}  // namespace

std::vector<SmartAlert> unusualSpendingAlerts(const Ledger& ledger, Instant now, const Calendar& calendar) {
    const std::vector<MonthSums> months = monthSums(ledger, now, calendar);
    const Usual usual = usualSpending(std::span(months).subspan(1));
    if (usual.monthCount == 0) return {};
    const std::map<std::string, Decimal>& spentThisMonth = months.front().expenses;
    const std::string month = monthKey(now, calendar);

    std::vector<SmartAlert> alerts;
    for (const std::string& categoryID : inCategoryOrder(ledger, spentThisMonth)) {
        const Decimal& spent = spentThisMonth.at(categoryID);
        const auto sum = usual.sums.find(categoryID);
        if (sum == usual.sums.end()) continue;
        const Decimal average = sum->second.dividedBy(Decimal(usual.monthCount)).value_or(Decimal());
        if (average.sign() <= 0 || !(average * excessFactor < spent) || spent - average < minimumExcess) continue;
        const auto category = ledger.category(categoryID);
        if (!category) continue;
        alerts.push_back(alertFor(*category, spent, average, month));
    }
    return alerts;
}

}  // namespace vantello
