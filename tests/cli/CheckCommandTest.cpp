// "check" reports what a data folder's ledger holds, or exactly why it cannot be read.

#include "CliRunner.hpp"
#include "cli/Commands.hpp"
#include "core/base/Json.hpp"
#include "core/files/LedgerStore.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class CheckCommand : public vantello::testing::TemporaryFolderTest {
protected:
    vantello::testing::CliOutcome check(std::vector<std::string> options) const {
        std::vector<std::string> arguments{"check", "--data-dir", folder.string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return vantello::testing::runCli(arguments);
    }
};

Transaction movement(TransactionKind kind, const char* amount, std::string account) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = kind;
    transaction.amount = *Decimal::fromCanonical(amount);
    transaction.date = instantFromUnixSeconds(1'700'000'000);
    transaction.categoryID = kind == TransactionKind::income ? "stipendio" : "spesa";
    transaction.accountID = std::move(account);
    return transaction;
}

TEST_F(CheckCommand, ReportsCountsAndBalances) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-carta", "Carta", "creditcard", Decimal(100), std::nullopt}};
    data.transactions = std::vector<Transaction>{movement(TransactionKind::income, "1500", "principale"),
                                                 movement(TransactionKind::expense, "12.5", "conto-carta")};
    data.budgets["spesa"] = Decimal(300);
    LedgerStore(folder / "movimenti.json").save(data);

    const auto result = check({"--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json report = Json::parse(result.out);
    EXPECT_EQ(report["version"], 7);
    EXPECT_EQ(report["counts"].size(), 15u);
    EXPECT_EQ(report["counts"]["transactions"], 2);
    EXPECT_EQ(report["counts"]["budgets"], 1);
    EXPECT_EQ(report["counts"]["people"], 0);
    EXPECT_EQ(report["accounts"], Json::parse(R"([{"id":"principale","name":"Conto principale","balance":"1500.00"},
                                                  {"id":"conto-carta","name":"Carta","balance":"87.50"}])"));

    const auto text = check({});
    EXPECT_EQ(text.status, 0);
    EXPECT_NE(text.out.find("Movimenti: 2\n"), std::string::npos) << text.out;
    EXPECT_NE(text.out.find("Carta (conto-carta): 87.50\n"), std::string::npos) << text.out;
}

TEST_F(CheckCommand, EmptyFolderHoldsOnlyTheMainAccount) {
    const auto result = check({"--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json report = Json::parse(result.out);
    EXPECT_FALSE(report.contains("version"));
    for (const auto& [key, count] : report["counts"].items()) EXPECT_EQ(count, key == "accounts" ? 1 : 0) << key;
    EXPECT_EQ(report["accounts"], Json::parse(R"([{"id":"principale","name":"Conto principale","balance":"0.00"}])"));
}

TEST_F(CheckCommand, UnreadableFileFailsWithItsMessage) {
    std::ofstream(folder / "movimenti.json")
        << R"({"version":7,"transactions":[{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","kind":"expense",)"
           R"("amount":"dieci","date":"2020-03-01T10:00:00Z","categoryID":"spesa"}]})";
    const auto damaged = check({});
    EXPECT_EQ(damaged.status, 1);
    EXPECT_EQ(damaged.err, "Importo non valido: dieci\n");
    EXPECT_TRUE(damaged.out.empty());

    std::ofstream(folder / "movimenti.json", std::ios::trunc) << R"({"version":9,"transactions":[]})";
    EXPECT_EQ(check({"--json"}).err, "Il file dei movimenti viene da una versione più recente di Vantello (formato 9).\n");
}

TEST_F(CheckCommand, BadOptionsExitWithUsage) {
    const auto unknown = check({"--frobnicate"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_NE(unknown.err.find("--frobnicate"), std::string::npos);
    EXPECT_NE(unknown.err.find("Uso: vantello-cli check"), std::string::npos);

    std::ostringstream out, err;
    EXPECT_EQ(cli::run({"check", "--data-dir"}, out, err), 2);
    EXPECT_EQ(check({"superfluo"}).status, 2);
}

}  // namespace
