#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerError.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

Transaction movement(TransactionKind kind, std::string categoryID, std::string note) {
    Transaction made;
    made.id = Uuid::random();
    made.kind = kind;
    made.amount = 42;
    made.date = instantFromUnixSeconds(1'700'000'000);
    made.categoryID = std::move(categoryID);
    made.note = std::move(note);
    return made;
}

TEST(CategoryRules, OnlyMovementsInTheFallbackOfTheirKindAreRefiled) {
    LedgerData data;
    data.transactions = std::vector{
        movement(TransactionKind::expense, "altre-uscite", "PAGAMENTO SUPERMERCATO"),
        movement(TransactionKind::expense, "casa", "PAGAMENTO SUPERMERCATO"),
        movement(TransactionKind::income, "altre-entrate", "rimborso supermercato"),
        movement(TransactionKind::expense, "altre-uscite", "bonifico"),
    };
    Ledger ledger(data);
    const CategoryRule added = ledger.addCategoryRule("  supermercato\n", "spesa");
    EXPECT_EQ(added.pattern, "supermercato");

    EXPECT_EQ(ledger.applyCategoryRules(), 1);
    EXPECT_EQ(ledger.transactions()[0].categoryID, "spesa");
    EXPECT_EQ(ledger.transactions()[1].categoryID, "casa");
    EXPECT_EQ(ledger.transactions()[2].categoryID, "altre-entrate");
    EXPECT_EQ(ledger.transactions()[3].categoryID, "altre-uscite");
    EXPECT_EQ(ledger.applyCategoryRules(), 0);
}

TEST(CategoryRules, FirstRuleWithCategoryOfTheKindWinsAndOrderCanBeChanged) {
    Ledger ledger;
    ledger.addCategoryRule("caffè", "stipendio");  // an income category: passed over for expenses
    const CategoryRule bar = ledger.addCategoryRule("CAFFE", "ristoranti");
    const CategoryRule shop = ledger.addCategoryRule("caffe", "spesa");
    EXPECT_EQ(ledger.categoryByRules("Caffè Nero Milano", TransactionKind::expense), "ristoranti");
    EXPECT_EQ(ledger.categoryByRules("caffe nero", TransactionKind::income), "stipendio");
    EXPECT_EQ(ledger.categoryByRules("tè verde", TransactionKind::expense), std::nullopt);

    ledger.moveCategoryRule(shop.id, Ledger::Direction::up);
    EXPECT_EQ(ledger.categoryByRules("CAFFE", TransactionKind::expense), "spesa");
    ledger.moveCategoryRule(shop.id, Ledger::Direction::up);
    const Ledger atTop = ledger;
    ledger.moveCategoryRule(shop.id, Ledger::Direction::up);
    EXPECT_EQ(ledger, atTop);
    ledger.moveCategoryRule(bar.id, Ledger::Direction::down);
    EXPECT_EQ(ledger.categoryRules().back().id, bar.id);

    CategoryRule blank = shop;
    blank.pattern = "zzz";
    ledger.updateCategoryRule(blank);
    EXPECT_EQ(ledger.categoryByRules("CAFFE", TransactionKind::expense), "ristoranti");
    ledger.deleteCategoryRule(bar.id);
    EXPECT_EQ(ledger.categoryByRules("CAFFE", TransactionKind::expense), std::nullopt);
}

TEST(CategoryRules, InvalidRulesLeaveLedgerAsItWas) {
    Ledger ledger;
    CategoryRule rule = ledger.addCategoryRule("netflix", "abbonamenti");
    const Ledger before = ledger;
    try {
        ledger.addCategoryRule(" \t", "spesa");
        ADD_FAILURE();
    } catch (const AdvancedError& error) {
        EXPECT_EQ(error.code(), AdvancedError::Code::emptyPattern);
    }
    EXPECT_THROW(ledger.addCategoryRule("netflix", "nessuna"), LedgerError);
    EXPECT_THROW(ledger.addCategoryRule("netflix", "giroconto"), LedgerError);
    rule.pattern = "";
    EXPECT_THROW(ledger.updateCategoryRule(rule), AdvancedError);
    rule.pattern = "netflix";
    rule.id = Uuid::random();
    EXPECT_THROW(ledger.updateCategoryRule(rule), LedgerError);
    EXPECT_EQ(ledger, before);
}

}  // namespace
}  // namespace vantello
