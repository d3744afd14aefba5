#include "core/files/MovementFastReader.hpp"

#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <string>

namespace vantello {
namespace {

// What the ordinary reader makes of a movement's text.
Transaction ordinarily(const std::string& text) { return JsonCoding::parse(text).get<Transaction>(); }

const std::string fullMovement = R"({
      "accountID": "conto-1",
      "amount": "1250.5",
      "attachments": [
        {
          "addedAt": "2024-03-05T10:00:00Z",
          "byteCount": 2048,
          "id": "6F1C2B8E-3D4A-4E5F-9A6B-7C8D9E0F1A2B",
          "originalName": "scontrino \"marzo\" \u00e8.pdf",
          "storedName": "6F1C2B8E-scontrino.pdf"
        }
      ],
      "categoryID": "spesa",
      "currency": "USD",
      "date": "2024-03-05T10:00:00+01:00",
      "id": "0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D",
      "kind": "expense",
      "note": "Caff\u00e8 \\ bar\nsecondo rigo",
      "originalAmount": "1357.8",
      "recurringRuleID": "1B2C3D4E-5F6A-4B7C-8D9E-0F1A2B3C4D5E",
      "shares": [
        {
          "amount": "400",
          "personID": "2C3D4E5F-6A7B-4C8D-9E0F-1A2B3C4D5E6F"
        }
      ],
      "transferToAccountID": null
    })";

TEST(MovementFastReader, ReadsWhatTheOrdinaryReaderReads) {
    MovementFastReader reader;
    const std::vector<std::string> movements{
        fullMovement,
        // Only the required keys: the defaults fill the rest.
        R"({"amount": "3", "categoryID": "stipendio", "date": "2024-01-01T00:00:00Z",
            "id": "0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D", "kind": "income"})",
        // Null where a default or an absence is allowed.
        R"({"accountID": null, "amount": "0.01", "attachments": null, "categoryID": "giroconto",
            "currency": null, "date": "2024-01-01T00:00:00Z", "id": "0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D",
            "kind": "expense", "note": null, "originalAmount": null, "recurringRuleID": null, "shares": null,
            "transferToAccountID": "conto-2"})",
    };
    for (const std::string& text : movements) {
        const auto fast = reader.read(text, text.size());
        ASSERT_TRUE(fast.has_value()) << text;
        EXPECT_EQ(*fast, ordinarily(text)) << text;
    }
}

// Anything it is not sure of is left to the ordinary reader, which reads it (an unknown key, a
// layout with tabs) or reports the fault with the key it concerns.
TEST(MovementFastReader, LeavesAnythingUnusualToTheOrdinaryReader) {
    MovementFastReader reader;
    const auto replaced = [](std::string_view from, std::string_view to) {
        std::string text = fullMovement;
        text.replace(text.find(from), from.size(), to);
        return text;
    };
    const std::vector<std::string> unusual{
        replaced(R"("kind": "expense",)", R"("kind": "expense", "extra": [1, {"x": 2}],)"),
        replaced(R"("kind": "expense",)", R"("kind": "expense", "kind": "income",)"),
        replaced(R"("kind": "expense")", "\t\"kind\": \"expense\""),
        replaced(R"("amount": "1250.5")", R"("amount": 1250.5)"),
        replaced(R"("amount": "1250.5")", R"("amount": "1.250,50")"),
        replaced(R"("kind": "expense")", R"("kind": "spesa")"),
        replaced(R"("id": "0A1B2C3D-4E5F-4A6B-8C7D-9E0F1A2B3C4D")", R"("id": null)"),
        replaced(R"("date": "2024-03-05T10:00:00+01:00")", R"("date": "5/3/2024")"),
        replaced(R"("byteCount": 2048)", R"("byteCount": 2048.0)"),
        replaced(R"("categoryID": "spesa",)", ""),
        replaced(R"("personID")", R"("person")"),
        fullMovement + " {}",
        fullMovement.substr(0, fullMovement.size() - 1),
        "[" + fullMovement + "]",
    };
    for (const std::string& text : unusual) EXPECT_FALSE(reader.read(text, text.size()).has_value()) << text;
}

}  // namespace
}  // namespace vantello
