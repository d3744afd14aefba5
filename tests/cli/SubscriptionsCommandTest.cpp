// "subscriptions" lists what comes back with its costs, turns one into a recurring rule once,
// hides one for good, and refuses bad input without writing.

#include "CliRunner.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/GoldenFile.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;

class SubscriptionsCommand : public testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        const auto charge = [](const char* value, Instant date, const char* note, const char* category) {
            return testing::noted(testing::expense(value, date, category), note);
        };
        LedgerData data;
        data.transactions = std::vector{
            charge("9.99", at(2025, 1, 3), "NETFLIX.COM 0101", "abbonamenti"),
            charge("9.99", at(2025, 2, 4), "NETFLIX.COM 0402", "abbonamenti"),
            charge("9.99", at(2025, 3, 3), "NETFLIX.COM 0303", "abbonamenti"),
            charge("10.99", at(2025, 4, 2), "NETFLIX.COM 0204", "abbonamenti"),
            charge("240", at(2024, 3, 1), "Assicurazione casa", "casa"),
            charge("240", at(2025, 3, 1), "Assicurazione casa", "casa"),
            charge("35.20", at(2025, 3, 9), "Pizzeria da Gino", "ristoranti")};
        LedgerStore(ledgerFile).save(data);
    }
    testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), "subscriptions");
        arguments.insert(arguments.end(), {"--data-dir", (folder / "dati").string()});
        return testing::runCli(arguments);
    }

    const std::filesystem::path ledgerFile = folder / "dati" / "movimenti.json";
};

TEST_F(SubscriptionsCommand, ListsThenMakesRecurringOnceAndIgnores) {
    const auto listed = run({"--json"});
    ASSERT_EQ(listed.status, 0) << listed.err;
    EXPECT_TRUE(testing::matchesGolden(Json::parse(listed.out), "planning", "subscriptions-list"));

    const auto made = run({"recurring", "netflix com"});
    ASSERT_EQ(made.status, 0) << made.err;
    const Ledger ledger(LedgerStore(ledgerFile).load());
    ASSERT_EQ(ledger.recurringRules().size(), 1u);
    EXPECT_EQ(ledger.recurringRules()[0].startDate, at(2025, 5, 2));
    const std::string once = readWholeFile(ledgerFile);
    const auto again = run({"recurring", "netflix com"});
    EXPECT_EQ(again.status, 2);
    EXPECT_EQ(again.err, "Questo abbonamento è già un movimento ricorrente.\n");
    EXPECT_EQ(readWholeFile(ledgerFile), once);

    ASSERT_EQ(run({"ignore", "assicurazione casa"}).status, 0);
    const Json left = Json::parse(run({"--json"}).out);
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left[0]["id"], "netflix com");
}

TEST_F(SubscriptionsCommand, BadInputWritesNothing) {
    const std::string before = readWholeFile(ledgerFile);
    EXPECT_EQ(run({"ignore", "pizzeria da gino"}).status, 2);
    EXPECT_EQ(run({"recurring", "spotify"}).status, 2);
    EXPECT_EQ(run({"ignore"}).status, 2);
    EXPECT_EQ(run({"ignore", "netflix com", "--json"}).status, 2);
    EXPECT_EQ(run({"pause", "netflix com"}).status, 2);
    EXPECT_EQ(readWholeFile(ledgerFile), before);
}

}  // namespace
}  // namespace vantello
