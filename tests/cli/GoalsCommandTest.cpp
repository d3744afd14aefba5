// "goals" prints every goal with what its card derives on the given day.

#include "CliRunner.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace {

using namespace vantello;
using namespace vantello::testing;

class GoalsCommand : public TemporaryFolderTest {
protected:
    CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", folder.string()});
        return runCli(arguments);
    }
};

TEST_F(GoalsCommand, JsonHoldsTheRecordsWithTheirDerivedValues) {
    LedgerData data;
    SavingsGoal holiday{*Uuid::parse("5B0E8C1A-3F52-4E0B-9C61-1D2A3B4C5D6E"), "Vacanze", "airplane", amount("1200"),
                        at(2026, 7, 31), at(2026, 1, 10), {}};
    holiday.contributions.push_back({*Uuid::parse("0F1E2D3C-4B5A-4978-8695-A4B3C2D1E0F9"), at(2026, 1, 10),
                                     amount("250"), "Primo versamento"});
    holiday.contributions.push_back({*Uuid::parse("1A2B3C4D-5E6F-4A0B-8C1D-2E3F4A5B6C7D"), at(2026, 2, 10),
                                     amount("-50"), ""});
    SavingsGoal fund{*Uuid::parse("9C8B7A69-5847-4362-9150-0F1E2D3C4B5A"), "Fondo emergenze", "shield", amount("3000"),
                     std::nullopt, at(2025, 12, 1), {}};
    data.savingsGoals = {holiday, fund};
    LedgerStore(folder / LedgerStore::fileName).save(data);

    const CliOutcome listed = run({"goals", "--today", "2026-03-15", "--json"});
    ASSERT_EQ(listed.status, 0) << listed.err;
    EXPECT_TRUE(matchesGolden(Json::parse(listed.out), "planning", "goals-two"));

    const CliOutcome text = run({"goals", "--today", "2026-03-15"});
    EXPECT_NE(text.out.find("Vacanze: 200,00\u00a0€ di 1.200,00\u00a0€ (In ritardo)"), std::string::npos) << text.out;
}

TEST_F(GoalsCommand, BadDayIsRefused) {
    const CliOutcome refused = run({"goals", "--today", "2026-02-30"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_FALSE(refused.err.empty());
}

}  // namespace
