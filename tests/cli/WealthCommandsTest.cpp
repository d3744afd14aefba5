// "loan", "loans", "networth" and "work" on a small ledger written by the test, their JSON kept
// as golden files, on fixed days in Rome.

#include "CliRunner.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace vantello;
using namespace vantello::testing;

Uuid numbered(int number) {
    const std::string digits = std::to_string(number);
    return *Uuid::parse("00000000-0000-4000-8000-" + std::string(12 - digits.size(), '0') + digits);
}

Transaction numberedMovement(int number, Transaction movement) {
    movement.id = numbered(number);
    return movement;
}

// A card beside the main account, salaries up to March 2026, a car valued twice, a loan paid
// from January 2026 and a period without work last summer.
LedgerData wealthLedger() {
    LedgerData data;
    Account main = Account::main();
    main.openingBalance = amount("2000");
    data.accounts = {main, Account{"conto-carta", "Carta", "creditcard", amount("100"), std::nullopt}};
    data.transactions = std::vector{numberedMovement(1, income("1800", at(2026, 2, 27))),
                                    numberedMovement(2, income("1850", at(2026, 3, 27))),
                                    numberedMovement(3, expense("400", at(2026, 3, 5), "spesa", "conto-carta"))};
    data.assets = {
        Asset{numbered(10), "Auto", "car", {{at(2025, 12, 1), amount("12000")}, {at(2026, 3, 1), amount("11500")}}}};
    data.loans = {Loan{numbered(20), "Prestito auto", amount("6000"), amount("4.5"), 12, at(2026, 1, 31), "principale",
                       "trasporti", std::nullopt}};
    data.unemploymentPeriods = {{numbered(30), at(2025, 7, 1, 0), at(2025, 8, 31, 0), "Fine contratto"}};
    return data;
}

class WealthCommands : public TemporaryFolderTest {
protected:
    CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", folder.string()});
        return runCli(arguments);
    }
    void expectGolden(const std::vector<std::string>& arguments, std::string_view golden) const {
        const CliOutcome outcome = run(arguments);
        ASSERT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_TRUE(matchesGolden(Json::parse(outcome.out), "planning", golden));
    }
};

TEST_F(WealthCommands, JsonOfEachCommand) {
    LedgerStore(folder / LedgerStore::fileName).save(wealthLedger());
    expectGolden({"loan", "schedule", "--principal", "1.200", "--rate", "4,5", "--months", "6", "--start", "2026-01-31",
                  "--json"},
                 "loan-schedule");
    expectGolden({"loans", "--today", "2026-04-10", "--json"}, "loan-list");
    expectGolden({"networth", "--months", "4", "--today", "2026-04-10", "--json"}, "networth-history");
    expectGolden({"work", "--reminder-day", "27", "--today", "2026-04-10", "--json"}, "work-status");
}

TEST_F(WealthCommands, OngoingPeriodSilencesTheReminder) {
    LedgerData data = wealthLedger();
    data.unemploymentPeriods.push_back({numbered(31), at(2026, 4, 1, 0), std::nullopt, ""});
    LedgerStore(folder / LedgerStore::fileName).save(data);
    const CliOutcome outcome =
        run({"work", "--reminder-day", "27", "--reminder-hour", "8", "--today", "2026-04-10", "--json"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    const Json json = Json::parse(outcome.out);
    EXPECT_EQ(json["ongoingPeriod"]["id"], numbered(31).text());
    EXPECT_TRUE(json["unemployedToday"].get<bool>());
    EXPECT_FALSE(json.contains("nextSalaryReminder"));
}

TEST_F(WealthCommands, BadInputIsRefusedAndWritesNothing) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"loan", "schedule", "--principal", "0", "--rate", "3", "--months", "12"},
             {"loan", "schedule", "--principal", "1000", "--rate", "tre", "--months", "12"},
             {"loan", "schedule", "--principal", "1000", "--rate", "3"},
             {"loan", "plan", "--principal", "1000", "--rate", "3", "--months", "12"},
             {"networth", "--months", "0"},
             {"work", "--reminder-day", "32"},
             {"work", "--reminder-hour", "9"},
             {"loans", "--today", "2026-02-30"}}) {
        const CliOutcome refused = run(arguments);
        EXPECT_EQ(refused.status, 2) << arguments.front() << ' ' << refused.err;
        EXPECT_TRUE(refused.out.empty());
        EXPECT_FALSE(refused.err.empty());
    }
    const CliOutcome zero = run({"loan", "schedule", "--principal", "0", "--rate", "3", "--months", "12"});
    EXPECT_EQ(zero.err.substr(0, zero.err.find('\n')),
              "Controlla capitale, tasso e numero di rate: devono essere maggiori di zero (il tasso può essere zero).");
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

}  // namespace
