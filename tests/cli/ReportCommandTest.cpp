// "report" prints what the month screen shows; the JSON of a small fixed ledger is kept as a
// golden file, on a fixed day in Rome.

#include "CliRunner.hpp"
#include "core/base/Json.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <cstdio>

namespace {

using namespace vantello;
using vantello::testing::at;

Uuid numbered(int number) {
    char text[40];
    std::snprintf(text, sizeof text, "00000000-0000-4000-8000-%012d", number);
    return *Uuid::parse(text);
}

Transaction movement(int number, TransactionKind kind, const char* amount, Instant date, std::string category,
                     std::string note = "") {
    Transaction made;
    made.id = numbered(number);
    made.kind = kind;
    made.amount = *Decimal::fromCanonical(amount);
    made.date = date;
    made.categoryID = std::move(category);
    made.note = std::move(note);
    return made;
}

RecurringRule monthly(int number, TransactionKind kind, const char* amount, std::string category, Instant start,
                      Instant lastGenerated) {
    RecurringRule rule;
    rule.id = numbered(number);
    rule.kind = kind;
    rule.amount = *Decimal::fromCanonical(amount);
    rule.categoryID = std::move(category);
    rule.startDate = start;
    rule.lastGenerated = lastGenerated;
    rule.accountID = "principale";
    return rule;
}

// April 2026 with seven expense categories (two fold into "others"; Ristoranti and Trasporti tie),
// three budgets at their three levels, a card under its threshold, a charge made twice, unusual
// leisure spending, rent already created and a salary still due on the 27th.
LedgerData aprilLedger() {
    using enum TransactionKind;
    LedgerData data;
    Account main = Account::main();
    main.openingBalance = Decimal(2000);
    data.accounts = {main, Account{"conto-carta", "Carta", "creditcard", Decimal(100), Decimal(300)}};
    Transaction toCard = movement(20, expense, "150", at(2026, 4, 4), "giroconto");
    toCard.transferToAccountID = "conto-carta";
    Transaction rent = movement(21, expense, "700", at(2026, 4, 5), "casa", "Affitto");
    rent.recurringRuleID = numbered(90);
    data.transactions = std::vector{
        movement(1, income, "1800", at(2026, 4, 1), "stipendio"),  movement(2, expense, "120", at(2026, 4, 2), "spesa"),
        movement(3, expense, "80", at(2026, 4, 3), "bollette"),    movement(4, expense, "45", at(2026, 4, 6), "trasporti"),
        movement(5, expense, "22.5", at(2026, 4, 8), "ristoranti", "BAR CENTRALE 12"),
        movement(6, expense, "22.5", at(2026, 4, 9), "ristoranti", "Bar centrale 7"),
        movement(7, expense, "30", at(2026, 4, 9), "svago"),       movement(8, expense, "20", at(2026, 4, 10), "salute"),
        movement(9, expense, "300", at(2026, 3, 12), "spesa"),     movement(10, income, "1800", at(2026, 3, 1), "stipendio"),
        movement(11, expense, "250", at(2026, 2, 12), "spesa"),    movement(12, expense, "10", at(2026, 2, 20), "svago"),
        toCard, rent,
    };
    data.budgets = {{"spesa", Decimal(150)}, {"svago", Decimal(25)}, {"casa", Decimal(1000)}};
    data.recurringRules = {monthly(90, expense, "700", "casa", at(2026, 1, 5), at(2026, 4, 5)),
                           monthly(91, income, "1800", "stipendio", at(2026, 1, 27), at(2026, 3, 27))};
    return data;
}

class ReportCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        // The alert texts carry amounts in the default locale.
        UErrorCode status = U_ZERO_ERROR;
        previousLocale = icu::Locale::getDefault();
        icu::Locale::setDefault(icu::Locale("it_IT"), status);
    }
    void TearDown() override {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(previousLocale, status);
    }

    vantello::testing::CliOutcome report(std::vector<std::string> options) const {
        std::vector<std::string> arguments{"report", "--data-dir", folder.string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return vantello::testing::runCli(arguments);
    }

    icu::Locale previousLocale;
};

TEST_F(ReportCommand, MonthInProgressAsJson) {
    LedgerStore(folder / LedgerStore::fileName).save(aprilLedger());
    const auto result = report({"--month", "2026-04", "--today", "2026-04-10", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(vantello::testing::matchesGolden(Json::parse(result.out), "report", "april-in-progress"));

    const auto card = report({"--month", "2026-04", "--today", "2026-04-10", "--account", "conto-carta", "--json"});
    ASSERT_EQ(card.status, 0) << card.err;
    EXPECT_TRUE(vantello::testing::matchesGolden(Json::parse(card.out), "report", "april-card"));
}

TEST_F(ReportCommand, PastMonthHasNoForecastAndDismissedAlertsStayAway) {
    LedgerData data = aprilLedger();
    data.dismissedAlerts = {"saldo-basso-conto-carta-2026-04"};
    LedgerStore(folder / LedgerStore::fileName).save(data);
    const auto result = report({"--month", "2026-03", "--today", "2026-04-10", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json json = Json::parse(result.out);
    EXPECT_EQ(json["totals"], Json::parse(R"({"income":"1800","expenses":"300","net":"1500"})"));
    EXPECT_EQ(json["previousTotals"]["expenses"], "260");
    EXPECT_TRUE(json["forecast"].is_null());
    EXPECT_EQ(json["trend"].back()["month"], "2026-03");
    for (const Json& alert : json["alerts"]) EXPECT_NE(alert["kind"], "lowBalance");

    const auto text = report({"--month", "2026-04", "--today", "2026-04-10"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_NE(text.out.find("Altre (2)"), std::string::npos) << text.out;
    EXPECT_NE(text.out.find("Saldo più basso previsto"), std::string::npos) << text.out;
}

TEST_F(ReportCommand, EveryMonthByCategoryWithoutTransfers) {
    LedgerStore(folder / LedgerStore::fileName).save(aprilLedger());
    const auto result = report({"--all", "--by-month", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json months = Json::parse(result.out)["months"];
    ASSERT_EQ(months.size(), 3U);
    EXPECT_EQ(months[0], Json::parse(R"({"month":"2026-02","income":{},"expenses":{"spesa":"250","svago":"10"}})"));
    EXPECT_EQ(months[2]["income"], Json::parse(R"({"stipendio":"1800"})"));
    EXPECT_EQ(months[2]["expenses"]["ristoranti"], "45");
    EXPECT_FALSE(months[2]["expenses"].contains("giroconto"));

    const auto text = report({"--all", "--by-month", "--account", "principale"});
    ASSERT_EQ(text.status, 0) << text.err;
    EXPECT_NE(text.out.find("2026-03\n  entrate: Stipendio 1.800,00"), std::string::npos) << text.out;
}

TEST_F(ReportCommand, BadInputWritesNothing) {
    LedgerStore(folder / LedgerStore::fileName).save(aprilLedger());
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--month", "2026-4"}, {"--month", "2026-13"}, {"--month", "2026-04", "--today", "2026-02-30"},
          {"--month", "2026-04", "--today", "10/04/2026"}, {"--all"}, {"--by-month"},
          {"--all", "--by-month", "--month", "2026-04"}, {"--all", "--by-month", "--today", "2026-04-10"}, {}}) {
        const auto result = report(options);
        EXPECT_EQ(result.status, 2) << result.err;
        EXPECT_TRUE(result.out.empty());
        EXPECT_FALSE(result.err.empty());
    }
    const auto unknown = report({"--month", "2026-04", "--account", "conto-nessuno"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_TRUE(unknown.out.empty());
    EXPECT_NE(unknown.err.find("conto-nessuno"), std::string::npos);
    EXPECT_EQ(report({"--all", "--by-month", "--account", "conto-nessuno"}).status, 1);
}

}  // namespace
