#include "core/base/Localization.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

TEST(TransactionCategory, NamesAreLookedUpOnceOnFirstUse) {
    (void)builtInCategories();
    L10n::install([](std::string_view) { return std::string("tradotto"); });
    EXPECT_EQ(builtInCategory("casa")->name, "Casa");
    L10n::install({});
}

TEST(TransactionCategory, JsonNeedsAllFourKeys) {
    const TransactionCategory custom{"custom-1", "Palestra", "figure.run", TransactionKind::income};
    const Json written = custom;
    EXPECT_EQ(written, Json::parse(R"({"id": "custom-1", "name": "Palestra", "symbol": "figure.run",
                                       "kind": "income"})"));
    EXPECT_EQ(written.get<TransactionCategory>(), custom);
    for (const char* key : {"id", "name", "symbol", "kind"}) {
        auto incomplete = written;
        incomplete.erase(key);
        EXPECT_THROW((void)incomplete.get<TransactionCategory>(), DecodingError) << key;
    }
    for (const char* kind : {R"("Expense")", "0", "null"}) {
        EXPECT_THROW((void)Json::parse(kind).get<TransactionKind>(), DecodingError) << kind;
    }
}

}  // namespace
}  // namespace vantello
