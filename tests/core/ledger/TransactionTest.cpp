#include "core/ledger/Transaction.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

Uuid uuid(const char* text) { return *Uuid::parse(text); }
Decimal amount(const char* text) { return *Decimal::fromCanonical(text); }

Transaction minimalExpense() {
    Transaction expense;
    expense.id = uuid("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    expense.amount = amount("12.5");
    expense.date = instantFromUnixSeconds(1740823200);  // 2025-03-01T10:00:00Z
    expense.categoryID = "spesa";
    return expense;
}

Transaction everyFieldSet() {
    Transaction full = minimalExpense();
    full.note = "Cena con Anna";
    full.attachments.push_back({uuid("0F3A0C36-3B1B-4C4F-9D57-7E7A45C1D001"), "Scontrino.PDF",
                                "0F3A0C36-3B1B-4C4F-9D57-7E7A45C1D001.pdf", 26214400,
                                instantFromUnixSeconds(1740823260)});
    full.accountID = "conto-4C1F2A8E-1111-4B2B-8C3D-9E8F7A6B5C4D";
    full.recurringRuleID = uuid("7B0C1E2D-2222-4A3B-9C4D-5E6F7A8B9C0D");
    full.transferToAccountID = "principale";
    full.shares = {{uuid("1A2B3C4D-3333-4E5F-8A9B-0C1D2E3F4A5B"), amount("4.17")}};
    full.currency = "USD";
    full.originalAmount = amount("13.6");
    return full;
}

TEST(Transaction, WritesOnlyTheOptionalKeysThatHoldSomething) {
    const Json minimal = minimalExpense();
    EXPECT_EQ(minimal, Json::parse(R"({
        "id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "kind": "expense", "amount": "12.5",
        "date": "2025-03-01T10:00:00Z", "categoryID": "spesa", "note": "", "attachments": [],
        "accountID": "principale"})"));

    const Json full = everyFieldSet();
    EXPECT_EQ(full.at("shares"), Json::parse(
        R"([{"personID": "1A2B3C4D-3333-4E5F-8A9B-0C1D2E3F4A5B", "amount": "4.17"}])"));
    EXPECT_EQ(full.at("originalAmount"), "13.6");
    EXPECT_EQ(full.at("attachments").at(0).at("addedAt"), "2025-03-01T10:01:00Z");
    EXPECT_EQ(full.size(), 13u);
}

TEST(Transaction, SurvivesTheFileUnchanged) {
    for (const auto& original : {minimalExpense(), everyFieldSet()}) {
        const auto text = JsonCoding::pretty(original);
        EXPECT_EQ(JsonCoding::parse(text).get<Transaction>(), original) << text;
    }
}

TEST(Transaction, OldFilesReadWithDefaults) {
    const auto read = Json::parse(R"({"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "kind": "income",
        "amount": "1250", "date": "2025-03-01T11:00:00+01:00", "categoryID": "stipendio"})")
                          .get<Transaction>();
    EXPECT_EQ(read.accountID, "principale");
    EXPECT_EQ(read.note, "");
    EXPECT_EQ(read.amount, Decimal(1250));
    EXPECT_EQ(read.date, instantFromUnixSeconds(1740823200));
    EXPECT_TRUE(read.attachments.empty() && read.shares.empty());
    EXPECT_FALSE(read.recurringRuleID || read.transferToAccountID || read.currency || read.originalAmount);
    EXPECT_FALSE(read.isTransfer());
}

void expectDecodingMessage(const char* amountJson, const std::string& message) {
    auto document = Json(minimalExpense());
    document["amount"] = Json::parse(amountJson);
    try {
        (void)document.get<Transaction>();
        ADD_FAILURE() << amountJson << " was accepted";
    } catch (const DecodingError& error) {
        EXPECT_EQ(error.message(), message);
    }
}

TEST(Transaction, UnreadableAmountFailsTheWholeMovement) {
    expectDecodingMessage(R"("12,5")", "Importo non valido: 12,5");
    expectDecodingMessage("12.5", "Dati non validi: la chiave «amount» ha un valore del tipo sbagliato.");
}

}  // namespace
}  // namespace vantello
