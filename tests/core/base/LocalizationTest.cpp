#include "core/base/Localization.hpp"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace vantello;

namespace {

// Installs an English test catalogue for one test and restores the identity afterwards.
class EnglishCatalogue {
public:
    EnglishCatalogue() {
        L10n::install([](std::string_view key) -> std::string {
            static const std::map<std::string, std::string, std::less<>> english{
                {"Importo non valido: {text}", "Invalid amount: {text}"},
                {"{n} movimenti in {mese}", "{mese}: {n} movements"},
            };
            auto found = english.find(key);
            return found == english.end() ? std::string(key) : found->second;
        });
    }
    ~EnglishCatalogue() { L10n::install({}); }
};

}  // namespace

TEST(Localization, IdentityWithoutCatalogue) {
    EXPECT_EQ(L10n::tr("Conto principale"), "Conto principale");
    EXPECT_EQ(L10n::tr("Importo non valido: {text}", {{"text", "abc"}}), "Importo non valido: abc");
}

TEST(Localization, PlaceholdersAreFilledAfterTheLookup) {
    {
        EnglishCatalogue english;
        EXPECT_EQ(L10n::tr("Importo non valido: {text}", {{"text", "abc"}}), "Invalid amount: abc");
        EXPECT_EQ(L10n::tr("{n} movimenti in {mese}", {{"n", "8"}, {"mese", "marzo"}}), "marzo: 8 movements");
        EXPECT_EQ(L10n::tr("Non tradotto"), "Non tradotto");
    }
    EXPECT_EQ(L10n::tr("{n} movimenti in {mese}", {{"n", "8"}, {"mese", "marzo"}}), "8 movimenti in marzo");
}

TEST(Localization, FillingLeavesUnknownPlaceholdersAndValuesAlone) {
    EXPECT_EQ(L10n::fill("{a} e {b} e {a}", {{"a", "1"}}), "1 e {b} e 1");
    EXPECT_EQ(L10n::fill("{a}", {{"a", "{a}{b}"}, {"b", "x"}}), "{a}{b}");
    EXPECT_EQ(L10n::fill("graffe {{a}} e {non chiusa", {{"a", "1"}}), "graffe {1} e {non chiusa");
    EXPECT_EQ(L10n::fill("", {{"a", "1"}}), "");
}
