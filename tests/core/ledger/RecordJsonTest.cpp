#include "core/ledger/Account.hpp"
#include "core/ledger/Asset.hpp"
#include "core/ledger/CategoryRule.hpp"
#include "core/ledger/Loan.hpp"
#include "core/ledger/Person.hpp"
#include "core/ledger/RecurringRule.hpp"
#include "core/ledger/SavedSearch.hpp"
#include "core/ledger/SavingsGoal.hpp"
#include "core/ledger/SharedEntry.hpp"
#include "core/ledger/UnemploymentPeriod.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace vantello;

namespace {

Uuid uuid(const char* text) { return *Uuid::parse(text); }
const Uuid idA = uuid("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
const Uuid idB = uuid("0A1B2C3D-4E5F-4071-8293-A4B5C6D7E8F9");
const Instant march1 = instantFromUnixSeconds(1740823200);  // 2025-03-01T10:00:00Z
const Instant june30 = instantFromUnixSeconds(1751284800);

std::set<std::string> keysOf(const Json& object) {
    std::set<std::string> keys;
    for (const auto& item : object.items()) keys.insert(item.key());
    return keys;
}

// Writes the record as the file does (text included), reads it back and checks the keys.
template <typename Record>
void expectRoundTrip(const Record& record, const std::set<std::string>& keys) {
    const Json written = record;
    EXPECT_EQ(keysOf(written), keys) << written.dump();
    EXPECT_EQ(JsonCoding::parse(JsonCoding::pretty(written)).get<Record>(), record) << written.dump();
}

template <typename Record>
bool refuses(const char* text) {
    try {
        (void)JsonCoding::parse(text).get<Record>();
    } catch (const DecodingError&) {
        return true;
    }
    return false;
}

TransactionFilter fullFilter() {
    return {"caffè", TransactionFilter::Period::custom, march1, june30, TransactionKind::expense,
            {"spesa", "casa", "bar"}, Decimal(5), Decimal(1250, -2), true, "conto-1"};
}

}  // namespace

TEST(RecordJson, FullRecordsKeepEveryFieldAndKey) {
    expectRoundTrip(Account{"conto-1", "Carta", "creditcard", Decimal(125, -1), Decimal(-50)},
                    {"id", "name", "symbol", "openingBalance", "lowBalanceThreshold"});
    expectRoundTrip(RecurringRule{idA, TransactionKind::expense, Decimal(800), "giroconto", "principale", "Affitto",
                                  "conto-1", RecurringRule::Frequency::weekly, march1, june30, march1},
                    {"id", "kind", "amount", "categoryID", "accountID", "note", "frequency", "startDate", "endDate",
                     "lastGenerated", "transferToAccountID"});
    expectRoundTrip(CategoryRule{idA, "supermercato", "spesa"}, {"id", "pattern", "categoryID"});
    expectRoundTrip(Person{idA, "Giulia"}, {"id", "name"});
    expectRoundTrip(SharedEntry{idA, idB, SharedEntry::Kind::theyPaidForMe, Decimal(25), march1, "Cena"},
                    {"id", "personID", "kind", "amount", "date", "note"});
    expectRoundTrip(UnemploymentPeriod{idA, march1, june30, "Contratto scaduto"}, {"id", "start", "end", "note"});
    expectRoundTrip(SavingsGoal{idA, "Vacanze", "airplane", Decimal(1000), june30, march1,
                                {{idB, march1, Decimal(250), "Primo"}, {idA, june30, Decimal(-40), ""}}},
                    {"id", "name", "symbol", "target", "deadline", "createdAt", "contributions"});
    expectRoundTrip(Loan{idA, "Mutuo", Decimal(100000), Decimal(35, -1), 240, march1, "principale", "casa", idB},
                    {"id", "name", "principal", "annualRate", "months", "firstPayment", "accountID", "categoryID",
                     "recurringRuleID"});
    expectRoundTrip(Asset{idA, "Auto", "car", {{march1, Decimal(12000)}, {june30, Decimal(0)}}},
                    {"id", "name", "symbol", "valuations"});
    expectRoundTrip(SavedSearch{idA, "Caffè al bar", fullFilter()}, {"id", "name", "filter"});
    expectRoundTrip(fullFilter(), {"text", "period", "customStart", "customEnd", "kind", "categoryIDs", "minAmount",
                                   "maxAmount", "onlyWithAttachments", "accountID"});
}

TEST(RecordJson, AbsentOptionalsAreLeftOut) {
    expectRoundTrip(Account::main(), {"id", "name", "symbol", "openingBalance"});
    expectRoundTrip(RecurringRule{idA, TransactionKind::income, Decimal(1500), "stipendio", "principale", "",
                                  std::nullopt, RecurringRule::Frequency::monthly, march1, std::nullopt, std::nullopt},
                    {"id", "kind", "amount", "categoryID", "accountID", "note", "frequency", "startDate"});
    expectRoundTrip(UnemploymentPeriod{idA, march1, std::nullopt, ""}, {"id", "start", "note"});
    expectRoundTrip(SavingsGoal{idA, "Fondo", "banknote", Decimal(500), std::nullopt, march1, {}},
                    {"id", "name", "symbol", "target", "createdAt", "contributions"});
    expectRoundTrip(Loan{idA, "Prestito", Decimal(10000), Decimal(0), 12, march1, "principale", "altre-uscite", {}},
                    {"id", "name", "principal", "annualRate", "months", "firstPayment", "accountID", "categoryID"});
    expectRoundTrip(TransactionFilter{}, {"text", "period", "categoryIDs", "onlyWithAttachments"});
}

TEST(RecordJson, WrittenFormIsTextForAmountsDatesAndEnums) {
    const Json filter = fullFilter();
    EXPECT_EQ(filter["maxAmount"], Json("12.5"));
    EXPECT_EQ(filter["customStart"], Json("2025-03-01T10:00:00Z"));
    EXPECT_EQ(filter["period"], Json("custom"));
    EXPECT_EQ(filter["categoryIDs"], Json::parse(R"(["bar", "casa", "spesa"])"));
    EXPECT_EQ(Json(TransactionFilter::Period::last12Months), Json("last12Months"));
    EXPECT_EQ(Json(SharedEntry::Kind::paymentReceived), Json("paymentReceived"));
    EXPECT_EQ(Json(Account{"c", "C", "s", Decimal(125, -1), std::nullopt})["openingBalance"], Json("12.5"));
    EXPECT_EQ(Json(Loan{idA, "L", Decimal(100000), Decimal(35, -1), 1, march1, "a", "c", {}})["annualRate"],
              Json("3.5"));
}

TEST(RecordJson, NumbersWhereAmountsBelongAndUnknownCasesAreRefused) {
    EXPECT_TRUE(refuses<Account>(R"({"id": "c", "name": "C", "symbol": "s", "openingBalance": 12.5})"));
    EXPECT_TRUE(refuses<Asset::Valuation>(R"({"date": "2025-03-01T10:00:00Z", "value": 100})"));
    EXPECT_TRUE(refuses<TransactionFilter>(R"({"minAmount": 5})"));
    EXPECT_TRUE(refuses<RecurringRule::Frequency>(R"("daily")"));
    EXPECT_TRUE(refuses<SharedEntry::Kind>(R"("gift")"));
    EXPECT_TRUE(refuses<TransactionFilter>(R"({"period": "lastWeek"})"));
    EXPECT_TRUE(refuses<TransactionFilter::Period>("2"));
}

TEST(RecordJson, MissingKeysAreLenientOnlyWhereDataWouldBeLost) {
    EXPECT_EQ(JsonCoding::parse("{}").get<TransactionFilter>(), TransactionFilter{});
    const auto account = JsonCoding::parse(R"({"id": "c", "name": "C", "openingBalance": "0"})").get<Account>();
    EXPECT_EQ(account.symbol, "");
    const auto entry = JsonCoding::parse(R"({"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "kind": "paymentMade",
        "personID": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "amount": "3", "date": "2025-03-01T11:00:00+01:00"})")
                           .get<SharedEntry>();
    EXPECT_EQ(entry.note, "");
    EXPECT_EQ(entry.date, march1);
    EXPECT_TRUE(refuses<Account>(R"({"id": "c", "name": "C", "symbol": "s"})"));
    EXPECT_TRUE(refuses<Loan>(R"({"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "name": "L", "principal": "1",
        "annualRate": "1", "firstPayment": "2025-03-01T10:00:00Z", "accountID": "a", "categoryID": "c"})"));
}
