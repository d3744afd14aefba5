// The ledger file: old formats load, newer ones are refused untouched, damage is reported as a
// decoding error, saving is stable byte for byte and a round trip keeps every value.

#include "core/files/LedgerStore.hpp"

#include "bench/LedgerGenerator.hpp"
#include "core/base/AtomicFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <sys/stat.h>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class LedgerStoreFile : public vantello::testing::TemporaryFolderTest {
protected:
    LedgerStore storeWith(const std::string& text) const {
        std::ofstream(folder / "movimenti.json", std::ios::binary) << text;
        return LedgerStore(folder / "movimenti.json");
    }
    std::string decodingMessage(const std::string& text) const {
        try {
            static_cast<void>(storeWith(text).load());
        } catch (const DecodingError& error) {
            return error.message();
        }
        return "(loaded)";
    }
};

constexpr const char* oldMovement =
    R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","kind":"expense","amount":"12.5",)"
    R"("date":"2020-03-01T10:00:00Z","categoryID":"spesa","note":"Pane"})";

TEST_F(LedgerStoreFile, FirstFormatLoadsWithEverythingElseEmptyOnTheMainAccount) {
    const auto data = storeWith(std::string(R"({"version":1,"transactions":[)") + oldMovement + "]}").load();
    ASSERT_EQ(data.transactions.size(), 1u);
    EXPECT_EQ(data.transactions[0].accountID, "principale");
    EXPECT_EQ(data.transactions[0].amount, Decimal(125, -1));
    LedgerData onlyMovements;
    onlyMovements.transactions = data.transactions;
    EXPECT_EQ(data, onlyMovements);

    EXPECT_EQ(LedgerStore(folder / "nessuno.json").load(), LedgerData{});
}

TEST_F(LedgerStoreFile, NewerFormatIsRefusedAndLeftAlone) {
    EXPECT_NO_THROW(static_cast<void>(storeWith(R"({"version":7,"transactions":[]})").load()));
    EXPECT_NO_THROW(static_cast<void>(storeWith(R"({"version":-3,"transactions":[]})").load()));

    // Refused before anything else is looked at, even a broken movement.
    const std::string newer = R"({"version":8,"transactions":[{"amount":"x"}]})";
    const auto store = storeWith(newer);
    try {
        static_cast<void>(store.load());
        FAIL() << "a newer format was read";
    } catch (const LedgerStore::StoreError& error) {
        EXPECT_EQ(error.code(), StoreErrorCode::newerFormat);
        EXPECT_EQ(error.version(), 8);
        EXPECT_EQ(error.message(), "Il file dei movimenti viene da una versione più recente di Vantello (formato 8).");
    }
    EXPECT_EQ(readWholeFile(store.file()), newer);
}

TEST_F(LedgerStoreFile, DamageIsADecodingError) {
    EXPECT_EQ(decodingMessage(std::string(R"({"version":7,"transactions":[)") + oldMovement)
                  .rfind("Il file non è un JSON valido", 0),
              0u);
    std::string badAmount = std::string(R"({"version":7,"transactions":[)") + oldMovement + "]}";
    badAmount.replace(badAmount.find("\"12.5\""), 6, "\"12,50\"");
    EXPECT_EQ(decodingMessage(badAmount), "Importo non valido: 12,50");
    EXPECT_NE(decodingMessage(std::string("[") + oldMovement + "]"), "(loaded)");
    EXPECT_NE(decodingMessage(R"({"version":7})"), "(loaded)");
    EXPECT_NE(decodingMessage(R"({"transactions":[]})"), "(loaded)");
    EXPECT_NE(decodingMessage(R"({"version":"7","transactions":[]})"), "(loaded)");
}

TEST_F(LedgerStoreFile, UnreadableBudgetIsDropped) {
    const auto data = storeWith(R"({"version":7,"transactions":[],"budgets":{"spesa":"abc","casa":"250.5"}})").load();
    EXPECT_EQ(data.budgets, (std::map<std::string, Decimal>{{"casa", Decimal(2505, -1)}}));
}

TEST_F(LedgerStoreFile, RoundTripKeepsEveryValueAndTheSameBytes) {
    LedgerData data = bench::LedgerGenerator(11).generate(3'000);
    // Quotes, brackets and backslashes inside text must not confuse where a movement ends.
    data.transactions.update(1'600, [](Transaction& movement) { movement.note = "Cena \"da Gino\" }], {[ \\ àè 🍕\n"; });
    ASSERT_FALSE(data.customCategories.empty() || data.budgets.empty() || data.unemploymentPeriods.empty() ||
                 data.savedSearches.empty() || data.savingsGoals.empty() || data.loans.empty() ||
                 data.assets.empty() || data.ignoredSubscriptions.empty() || data.dismissedAlerts.empty() ||
                 data.people.empty() || data.sharedEntries.empty() || data.categoryRules.empty() ||
                 data.recurringRules.empty());

    const LedgerStore store(folder / "profilo" / "nuovo" / "movimenti.json");  // folders created
    store.save(data);
    const std::string first = readWholeFile(store.file());
    const auto contents = store.loadContents();
    EXPECT_EQ(contents.version, LedgerStore::FormatVersion{7});
    EXPECT_EQ(contents.data, data);

    store.save(contents.data);
    EXPECT_EQ(readWholeFile(store.file()), first);

    // Any other layout of the same document reads the same.
    EXPECT_EQ(storeWith(Json::parse(first).dump()).load(), data);
}

TEST_F(LedgerStoreFile, FewMovementsBeforeALongListReadBack) {
    // The list after the movements is laid out like them and makes up most of the file.
    LedgerData data = bench::LedgerGenerator(13).generate(2);
    data.unemploymentPeriods.assign(6'000, data.unemploymentPeriods.front());
    for (auto& period : data.unemploymentPeriods) period.id = Uuid::random();
    const LedgerStore store(folder / "movimenti.json");
    store.save(data);
    EXPECT_EQ(store.load(), data);
}

TEST_F(LedgerStoreFile, LargeFileReportsTheFirstFaultInFileOrder) {
    const LedgerStore store(folder / "movimenti.json");
    store.save(bench::LedgerGenerator(12).generate(3'000));
    const std::string saved = readWholeFile(store.file());
    const auto movements = saved.find("\"transactions\": [");
    std::vector<std::size_t> amounts;
    for (auto at = saved.find("\"amount\": \"", movements); at != std::string::npos; at = saved.find("\"amount\": \"", at + 1)) {
        amounts.push_back(at + 11);
    }
    ASSERT_GT(amounts.size(), 2'900u);

    std::string damaged = saved;
    damaged.insert(amounts[2'900], "y");  // in the second half, read by the other thread
    damaged.insert(amounts[10], "x");
    const auto amountFault = decodingMessage(damaged);
    EXPECT_EQ(amountFault.rfind("Importo non valido: x", 0), 0u) << amountFault;

    // Broken syntax outweighs an unreadable amount, wherever it is.
    std::string broken = saved;
    broken.insert(amounts[2'950] - 11, "!");
    broken.insert(amounts[10], "x");
    EXPECT_EQ(decodingMessage(broken).rfind("Il file non è un JSON valido (riga ", 0), 0u) << decodingMessage(broken);
}

// The store's own layout is read movement by movement, any other as one document: both give
// the same answer.
TEST_F(LedgerStoreFile, RepeatedIdIsDamageOnEitherReadingPath) {
    const auto refusal = [&](const LedgerData& data) {
        const std::string saved = LedgerStore::encode(data);
        const std::string laidOut = decodingMessage(saved);
        EXPECT_EQ(decodingMessage(Json::parse(saved).dump()), laidOut);
        return laidOut;
    };
    const LedgerData original = bench::LedgerGenerator(14).generate(3'000);

    LedgerData movements = original;
    const Uuid repeated = movements.transactions[2'900].id;
    movements.transactions.update(10, [&](Transaction& movement) { movement.id = repeated; });
    EXPECT_EQ(refusal(movements),
              "Dati non validi: l'identificativo " + repeated.text() + " compare più volte in «transactions».");

    LedgerData accounts = original;
    accounts.accounts.push_back(accounts.accounts.front());
    accounts.accounts.back().name = "Copia";
    EXPECT_EQ(refusal(accounts), "Dati non validi: l'identificativo " + accounts.accounts.front().id +
                                     " compare più volte in «accounts».");
}

// Money never has a hundred thousand digits; the message quotes only the start of the text.
TEST_F(LedgerStoreFile, AmountBeyondThePrecisionOfMoneyIsDamage) {
    const LedgerStore store(folder / "movimenti.json");
    store.save(bench::LedgerGenerator(15).generate(50));
    const std::string saved = readWholeFile(store.file());
    // A movement's amount (read by the fast reader, then the ordinary one) and a loan's.
    const auto movements = saved.find("\"transactions\": [");
    for (const auto& [key, from] : {std::pair<std::string, std::size_t>{"\"amount\": \"", movements},
                                    {"\"principal\": \"", 0}}) {
        const auto value = saved.find(key, from);
        ASSERT_NE(value, std::string::npos) << key;
        std::string damaged = saved;
        damaged.insert(value + key.size(), std::string(100'000, '9'));
        const std::string expected = "Importo non valido: " + std::string(40, '9') + "…";
        EXPECT_EQ(decodingMessage(damaged), expected) << key;
        EXPECT_EQ(decodingMessage(Json::parse(damaged).dump()), expected) << key;
    }
}

TEST_F(LedgerStoreFile, FifoInPlaceOfTheFileIsRefusedAtOnce) {
    const LedgerStore store(folder / "movimenti.json");
    ASSERT_EQ(::mkfifo(store.file().c_str(), 0600), 0);
    try {
        static_cast<void>(store.load());
        FAIL() << "a FIFO was read";
    } catch (const FileError& error) {
        EXPECT_TRUE(error.isNotRegular());
    }
    EXPECT_THROW(store.save(LedgerData{}), FileError);
    EXPECT_TRUE(fs::is_fifo(store.file()));
}

TEST_F(LedgerStoreFile, EmptyLedgerWritesEveryKey) {
    const LedgerStore store(folder / "movimenti.json");
    store.save(LedgerData{});
    EXPECT_EQ(readWholeFile(store.file()),
              "{\n  \"accounts\": [],\n  \"assets\": [],\n  \"budgets\": {},\n  \"categoryRules\": [],\n"
              "  \"customCategories\": [],\n  \"dismissedAlerts\": [],\n  \"ignoredSubscriptions\": [],\n"
              "  \"loans\": [],\n  \"people\": [],\n  \"recurringRules\": [],\n  \"savedSearches\": [],\n"
              "  \"savingsGoals\": [],\n  \"sharedEntries\": [],\n  \"transactions\": [],\n"
              "  \"unemploymentPeriods\": [],\n  \"version\": 7\n}\n");
}

TEST_F(LedgerStoreFile, DamagedFileIsSetAsideUnderItsTime) {
    const auto store = storeWith("{rotto");
    const auto moved = store.moveDamagedFileAside(instantFromUnixSeconds(1'700'000'000));
    EXPECT_EQ(moved, folder / "movimenti-danneggiato-1700000000.json");
    EXPECT_EQ(readWholeFile(moved), "{rotto");
    EXPECT_FALSE(fs::exists(store.file()));

    // A second damaged file in the same second never overwrites the first.
    storeWith("{ancora");
    EXPECT_THROW(static_cast<void>(store.moveDamagedFileAside(instantFromUnixSeconds(1'700'000'000))), FileError);
    EXPECT_EQ(readWholeFile(moved), "{rotto");
}

}  // namespace
