#include "core/analysis/AlertDismissal.hpp"
#include "core/analysis/AlertSettings.hpp"
#include "core/analysis/NegativeForecastAlerts.hpp"
#include "core/analysis/SmartAlerts.hpp"

#include "core/ledger/LedgerAccounts.hpp"
#include "support/Dates.hpp"
#include "support/ItalianLocale.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

const Instant now = at(2025, 3, 20);

Transaction expense(Instant date, Decimal amount, std::string categoryID, std::string note = {}) {
    Transaction made;
    made.id = Uuid::random();
    made.amount = amount;
    made.date = date;
    made.categoryID = std::move(categoryID);
    made.note = std::move(note);
    return made;
}

// A ledger raising one alert of every kind on 20 March 2025.
Ledger everyKindOfTrouble() {
    Ledger ledger;
    (void)addAccount(ledger, "Carta", "creditcard", 0, Decimal(10));
    ledger.add(expense(at(2025, 2, 10), 40, "svago"));
    ledger.add(expense(at(2025, 3, 5), 200, "svago"));
    ledger.add(expense(at(2025, 3, 18), 9, "ristoranti", "Bar Sport"));
    ledger.add(expense(at(2025, 3, 19), 9, "ristoranti", "BAR SPORT"));
    return ledger;
}

std::vector<SmartAlert::Kind> kindsOf(const std::vector<SmartAlert>& alerts) {
    std::vector<SmartAlert::Kind> kinds;
    for (const SmartAlert& alert : alerts) kinds.push_back(alert.kind);
    return kinds;
}

TEST(SmartAlerts, EnabledDetectorsRunInOrderAndDismissedAlertsStayAway) {
    using Kind = SmartAlert::Kind;
    Ledger ledger = everyKindOfTrouble();
    const auto all = smartAlerts(ledger, AlertSettings{}, {}, now, rome());
    ASSERT_EQ(kindsOf(all),
              (std::vector{Kind::unusualSpending, Kind::possibleDuplicate, Kind::lowBalance, Kind::negativeForecast}));
    EXPECT_EQ(all[3].id, "previsione-negativa-2025-03");

    AlertSettings some;
    some.enabled = {Kind::lowBalance, Kind::unusualSpending};
    EXPECT_EQ(kindsOf(smartAlerts(ledger, some, {}, now, rome())), (std::vector{Kind::unusualSpending, Kind::lowBalance}));

    dismissAlert(ledger, all[1].id);
    dismissAlert(ledger, all[3].id);
    const Ledger afterDismissing = ledger;
    dismissAlert(ledger, all[1].id);  // already dismissed
    dismissAlert(ledger, "");
    EXPECT_EQ(ledger, afterDismissing);
    EXPECT_EQ(ledger.data().dismissedAlerts, (std::set<std::string>{all[1].id, all[3].id}));
    const auto left = smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, rome());
    EXPECT_EQ(left, (std::vector{all[0], all[2]}));
}

TEST(SmartAlerts, NegativeForecastOnlyBelowZero) {
    const testing::ItalianLocale italian;
    EXPECT_TRUE(negativeForecastAlerts(0, now, rome()).empty());
    const auto alerts = negativeForecastAlerts(Decimal(-12345, -2), now, rome());
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].title, "Previsione di fine mese negativa");
    EXPECT_EQ(testing::withPlainSpaces(alerts[0].message), "Al ritmo attuale il mese chiude a -123,45 €.");
}

TEST(AlertSettings, JsonHoldsTheEnabledKindsByName) {
    AlertSettings settings;
    settings.enabled = {SmartAlert::Kind::negativeForecast, SmartAlert::Kind::possibleDuplicate};
    const Json json = settings;
    EXPECT_EQ(json, Json::parse(R"({"enabled": ["possibleDuplicate", "negativeForecast"]})"));
    EXPECT_EQ(json.get<AlertSettings>(), settings);
    EXPECT_TRUE(Json::parse(R"({"enabled": []})").get<AlertSettings>().enabled.empty());
    EXPECT_EQ(Json::parse("{}").get<AlertSettings>(), AlertSettings{});
    EXPECT_EQ(AlertSettings{}.enabled.size(), 4u);
    EXPECT_THROW((void)Json::parse(R"({"enabled": ["loudNoise"]})").get<AlertSettings>(), DecodingError);
}

}  // namespace
}  // namespace vantello
