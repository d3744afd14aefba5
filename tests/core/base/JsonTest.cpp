#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <map>

using namespace vantello;

namespace {

template <typename Action>
std::string decodingMessage(Action action) {
    try {
        action();
    } catch (const DecodingError& error) {
        return error.message();
    }
    return "(nessun errore)";
}

}  // namespace

TEST(Json, DecimalTextIsAStringWithTheExactValue) {
    const DecimalText tenth{Decimal(1, -1)};
    const Json written = tenth;
    EXPECT_EQ(written, Json("0.1"));
    EXPECT_EQ(JsonCoding::parse(written.dump()).get<DecimalText>(), tenth);
    EXPECT_EQ(Json(Decimal(-125, 1)), Json("-1250"));
    EXPECT_EQ(Json("0.05").get<Decimal>(), Decimal(5, -2));
}

TEST(Json, AmountsRefuseNumbersAndNonCanonicalText) {
    const Json document = JsonCoding::parse(R"({"amount": 0.1, "text": "abc", "list": ["1", "12,5"]})");
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<DecimalText>(document, "amount"); }),
              "Dati non validi: la chiave «amount» ha un valore del tipo sbagliato.");
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<Decimal>(document, "text"); }),
              "Importo non valido: abc");
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<std::vector<DecimalText>>(document, "list"); }),
              "Importo non valido: 12,5");
    EXPECT_EQ(decodingMessage([] { (void)Json(".5").get<Decimal>(); }), "Importo non valido: .5");
}

TEST(Json, RequiredAndOptionalNameTheKey) {
    const Json document = JsonCoding::parse(R"({"version": 7, "name": "Casa", "none": null})");
    EXPECT_EQ(JsonCoding::required<int>(document, "version"), 7);
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<int>(document, "transactions"); }),
              "Dati non validi: la chiave «transactions» manca.");
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<int>(document, "none"); }),
              "Dati non validi: la chiave «none» ha un valore del tipo sbagliato.");
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::optional<int>(document, "name"); }),
              "Dati non validi: la chiave «name» ha un valore del tipo sbagliato.");
    EXPECT_EQ(JsonCoding::optional<std::string>(document, "name"), "Casa");
    EXPECT_FALSE(JsonCoding::optional<std::string>(document, "none"));
    EXPECT_FALSE(JsonCoding::optional<std::string>(document, "missing"));
    EXPECT_EQ(JsonCoding::valueOr<int>(document, "missing", 3), 3);
    EXPECT_THROW((void)JsonCoding::required<int>(Json::array({1}), "version"), DecodingError);
}

TEST(Json, MalformedTextGivesLineAndColumn) {
    EXPECT_EQ(decodingMessage([] { (void)JsonCoding::parse("{\n  \"città\": ,\n}"); }),
              "Il file non è un JSON valido (riga 2, colonna 12).");
    EXPECT_THROW((void)JsonCoding::parse(""), DecodingError);
    EXPECT_THROW((void)JsonCoding::parse("[1] x"), DecodingError);
    EXPECT_THROW((void)JsonCoding::parse("\"\xFF\""), DecodingError);
    EXPECT_THROW((void)JsonCoding::parse("1e999"), DecodingError);
}

TEST(Json, PrettyOutputIsSortedIndentedAndEndsWithANewline) {
    Json document = {{"zeta", 1}, {"alfa", {{"b", "ü"}, {"a", Json::array()}}}};
    EXPECT_EQ(JsonCoding::pretty(document),
              "{\n  \"alfa\": {\n    \"a\": [],\n    \"b\": \"ü\"\n  },\n  \"zeta\": 1\n}\n");
    EXPECT_EQ(JsonCoding::pretty(Json("a\xFF")), "\"a\xEF\xBF\xBD\"\n");
}

TEST(Json, UuidsAndInstantsAreText) {
    const Uuid id = Uuid::random();
    EXPECT_EQ(Json(id), Json(id.text()));
    EXPECT_EQ(Json(id).get<Uuid>(), id);
    EXPECT_EQ(decodingMessage([] { (void)Json("non-un-id").get<Uuid>(); }), "Identificativo non valido: non-un-id");

    const Instant moment = instantFromUnixSeconds(1740823200);  // 2025-03-01 10:00 UTC
    EXPECT_EQ(Json(moment), Json("2025-03-01T10:00:00Z"));
    EXPECT_EQ(Json("2025-03-01T11:00:00+01:00").get<Instant>(), moment);
    EXPECT_EQ(decodingMessage([] { (void)Json("2025-02-30T10:00:00Z").get<Instant>(); }),
              "Data non valida: 2025-02-30T10:00:00Z");
    const Json record = {{"date", 5}};
    EXPECT_EQ(decodingMessage([&] { (void)JsonCoding::required<Instant>(record, "date"); }),
              "Dati non validi: la chiave «date» ha un valore del tipo sbagliato.");
}
