// "scenario" simulates the average month with the adjustments typed, says when there is no month
// to start from, and refuses bad input.

#include "CliRunner.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::amount;
using testing::at;

class ScenarioCommand : public testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        LedgerData data;
        std::vector<Transaction> movements;
        for (int month = 1; month <= 3; ++month) {
            movements.push_back(testing::income("2000", at(2025, month, 27)));
            movements.push_back(testing::expense("300", at(2025, month, 10), "spesa"));
            movements.push_back(testing::expense("800", at(2025, month, 1), "casa"));
        }
        data.transactions = movements;
        SavingsGoal holiday;
        holiday.id = *Uuid::parse("6F1C2E8A-3B4D-4E5F-8A9B-0C1D2E3F4A5B");
        holiday.name = "Vacanza";
        holiday.symbol = "airplane";
        holiday.target = amount("3000");
        holiday.createdAt = at(2025, 1, 5);
        holiday.contributions.push_back(
            {*Uuid::parse("1A2B3C4D-5E6F-4A7B-8C9D-0E1F2A3B4C5D"), at(2025, 1, 5), amount("500"), ""});
        data.savingsGoals = {holiday};
        LedgerStore(ledgerFile).save(data);
    }
    testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "scenario");
        arguments.insert(arguments.end(), {"--data-dir", (folder / "dati").string()});
        return testing::runCli(arguments);
    }

    const std::filesystem::path ledgerFile = folder / "dati" / "movimenti.json";
};

TEST_F(ScenarioCommand, AdjustedAverageMonthWithProjectionAndGoals) {
    const auto result = run({"--category", "spesa=-10", "--income", "5", "--monthly-expense", "49,90", "--today",
                             "2025-04-15", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(testing::matchesGolden(Json::parse(result.out), "planning", "scenario-adjusted"));

    const auto noBasis = run({"--today", "2025-08-15"});
    ASSERT_EQ(noBasis.status, 0) << noBasis.err;
    EXPECT_EQ(noBasis.out, "Servono i movimenti di almeno un mese completo per simulare.\n");
}

TEST_F(ScenarioCommand, BadInputIsRefused) {
    const std::string before = readWholeFile(ledgerFile);
    const auto unknown = run({"--category", "gelati=-10"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.err.starts_with("La categoria «gelati» non esiste.\n")) << unknown.err;
    for (const std::vector<std::string>& bad :
         {std::vector<std::string>{"--category", "spesa"}, {"--category", "spesa=dieci"}, {"--income", "-150"},
          {"--income", "5%"}, {"--monthly-expense", "12,5,0"}, {"--today", "2025-02-30"}}) {
        EXPECT_EQ(run(bad).status, 2) << bad[0] << ' ' << bad[1];
    }
    EXPECT_EQ(readWholeFile(ledgerFile), before);
}

}  // namespace
}  // namespace vantello
