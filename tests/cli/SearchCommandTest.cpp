// "search" saves a filter under a name that "--saved" runs later, refuses bad input without
// writing, and "alerts dismiss" keeps an alert away for good.

#include "CliRunner.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class SearchCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        LedgerData data;
        const auto movement = [](const char* date, const char* amount, const char* note) {
            Transaction made;
            made.id = Uuid::random();
            made.amount = *Decimal::fromCanonical(amount);
            made.date = *Iso8601::parse(date);
            made.categoryID = "ristoranti";
            made.note = note;
            return made;
        };
        data.transactions = std::vector{movement("2025-03-10T08:00:00Z", "1.2", "CAFFE' BAR SPORT"),
                                        movement("2025-03-12T08:00:00Z", "12.5", "Pranzo"),
                                        movement("2025-01-05T08:00:00Z", "1.1", "Caffè")};
        LedgerStore(ledgerFile).save(data);
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", (folder / "dati").string()});
        return vantello::testing::runCli(arguments);
    }
    std::vector<std::string> notesOf(const std::string& json) const {
        std::vector<std::string> notes;
        const Json found = Json::parse(json);
        for (const Json& transaction : found["transactions"]) notes.push_back(transaction["note"]);
        return notes;
    }

    const fs::path ledgerFile = folder / "dati" / "movimenti.json";
};

TEST_F(SearchCommand, SavedSearchRunsLaterWithTheSameConditions) {
    const auto saved = run({"search", "--save", "Caffè di marzo", "--text", "caffè", "--from", "2025-03-01", "--to",
                            "2025-03-31", "--max", "1,50", "--category", "ristoranti", "--category", "svago"});
    ASSERT_EQ(saved.status, 0) << saved.err;
    const Ledger ledger(LedgerStore(ledgerFile).load());
    ASSERT_EQ(ledger.data().savedSearches.size(), 1u);
    EXPECT_EQ(ledger.data().savedSearches[0].filter.categoryIDs, (std::set<std::string>{"ristoranti", "svago"}));

    const auto found = run({"search", "--saved", "caffe di MARZO", "--json"});
    ASSERT_EQ(found.status, 0) << found.err;
    EXPECT_EQ(notesOf(found.out), std::vector<std::string>{"CAFFE' BAR SPORT"});

    const auto byAmount = run({"search", "--text", "12,50", "--json"});
    ASSERT_EQ(byAmount.status, 0) << byAmount.err;
    EXPECT_EQ(notesOf(byAmount.out), std::vector<std::string>{"Pranzo"});
    const auto thisMonth = run({"search", "--period", "thisMonth", "--today", "2025-01-31", "--json"});
    EXPECT_EQ(notesOf(thisMonth.out), std::vector<std::string>{"Caffè"});
}

TEST_F(SearchCommand, BadInputFailsAndWritesNothing) {
    const std::string before = readWholeFile(ledgerFile);
    EXPECT_EQ(run({"search", "--save", "Prova", "--min", "12,5,0"}).status, 2);
    EXPECT_EQ(run({"search", "--save", "Prova", "--from", "2025-02-30"}).status, 2);
    EXPECT_EQ(run({"search", "--save", "Prova", "--period", "thisMonth", "--from", "2025-02-01"}).status, 2);
    EXPECT_EQ(run({"search", "--saved", "Prova", "--text", "bar"}).status, 2);
    const auto unknownCategory = run({"search", "--save", "Prova", "--category", "gelati"});
    EXPECT_EQ(unknownCategory.status, 1);
    EXPECT_NE(unknownCategory.err.find("La categoria «gelati» non esiste."), std::string::npos);
    EXPECT_EQ(run({"search", "--save", "Prova", "--account", "conto-nessuno"}).status, 1);
    const auto blankName = run({"search", "--save", "  ", "--text", "bar"});
    EXPECT_EQ(blankName.status, 1);
    EXPECT_EQ(blankName.err, "Scrivi un nome per la ricerca.\n");
    EXPECT_EQ(run({"search", "--saved", "Nessuna"}).status, 1);
    EXPECT_EQ(readWholeFile(ledgerFile), before);
}

TEST_F(SearchCommand, DismissedAlertIsSavedOnce) {
    ASSERT_EQ(run({"alerts", "dismiss", "saldo-basso-principale-2025-03"}).status, 0);
    const std::string once = readWholeFile(ledgerFile);
    EXPECT_EQ(Ledger(LedgerStore(ledgerFile).load()).data().dismissedAlerts,
              std::set<std::string>{"saldo-basso-principale-2025-03"});
    EXPECT_EQ(run({"alerts", "dismiss", "saldo-basso-principale-2025-03"}).status, 0);
    EXPECT_EQ(readWholeFile(ledgerFile), once);
    EXPECT_EQ(run({"alerts", "dismiss"}).status, 2);
}

}  // namespace
