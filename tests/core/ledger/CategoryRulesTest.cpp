#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerCategoryRules.hpp"
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
    const CategoryRule added = addCategoryRule(ledger, "  supermercato\n", "spesa");
    EXPECT_EQ(added.pattern, "supermercato");

    EXPECT_EQ(applyCategoryRules(ledger), 1);
    EXPECT_EQ(ledger.transactions()[0].categoryID, "spesa");
    EXPECT_EQ(ledger.transactions()[1].categoryID, "casa");
    EXPECT_EQ(ledger.transactions()[2].categoryID, "altre-entrate");
    EXPECT_EQ(ledger.transactions()[3].categoryID, "altre-uscite");
    EXPECT_EQ(applyCategoryRules(ledger), 0);
}

TEST(CategoryRules, ARuleNamingTheFallbackItselfWinsAndCountsLeavingTheMovementThere) {
    LedgerData data;
    data.transactions = std::vector{movement(TransactionKind::expense, "altre-uscite", "bonifico a Mario")};
    Ledger ledger(data);
    addCategoryRule(ledger, "bonifico", "altre-uscite");
    addCategoryRule(ledger, "mario", "svago");  // never tried: the first matching rule wins

    EXPECT_EQ(applyCategoryRules(ledger), 1);
    EXPECT_EQ(ledger.transactions()[0].categoryID, "altre-uscite");
}

TEST(CategoryRules, FirstRuleWithCategoryOfTheKindWinsAndOrderCanBeChanged) {
    Ledger ledger;
    addCategoryRule(ledger, "caffè", "stipendio");  // an income category: passed over for expenses
    const CategoryRule bar = addCategoryRule(ledger, "CAFFE", "ristoranti");
    const CategoryRule shop = addCategoryRule(ledger, "caffe", "spesa");
    EXPECT_EQ(categoryByRules(ledger, "Caffè Nero Milano", TransactionKind::expense), "ristoranti");
    EXPECT_EQ(categoryByRules(ledger, "caffe nero", TransactionKind::income), "stipendio");
    EXPECT_EQ(categoryByRules(ledger, "tè verde", TransactionKind::expense), std::nullopt);

    moveCategoryRule(ledger, shop.id, MoveDirection::up);
    EXPECT_EQ(categoryByRules(ledger, "CAFFE", TransactionKind::expense), "spesa");
    moveCategoryRule(ledger, shop.id, MoveDirection::up);
    const Ledger atTop = ledger;
    moveCategoryRule(ledger, shop.id, MoveDirection::up);
    EXPECT_EQ(ledger, atTop);
    moveCategoryRule(ledger, bar.id, MoveDirection::down);
    EXPECT_EQ(ledger.categoryRules().back().id, bar.id);

    CategoryRule blank = shop;
    blank.pattern = "zzz";
    updateCategoryRule(ledger, blank);
    EXPECT_EQ(categoryByRules(ledger, "CAFFE", TransactionKind::expense), "ristoranti");
    deleteCategoryRule(ledger, bar.id);
    EXPECT_EQ(categoryByRules(ledger, "CAFFE", TransactionKind::expense), std::nullopt);
}

TEST(CategoryRules, InvalidRulesLeaveLedgerAsItWas) {
    Ledger ledger;
    CategoryRule rule = addCategoryRule(ledger, "netflix", "abbonamenti");
    const Ledger before = ledger;
    try {
        addCategoryRule(ledger, " \t", "spesa");
        ADD_FAILURE();
    } catch (const AdvancedError& error) {
        EXPECT_EQ(error.code(), AdvancedError::Code::emptyPattern);
    }
    EXPECT_THROW(addCategoryRule(ledger, "netflix", "nessuna"), LedgerError);
    EXPECT_THROW(addCategoryRule(ledger, "netflix", "giroconto"), LedgerError);
    rule.pattern = "";
    EXPECT_THROW(updateCategoryRule(ledger, rule), AdvancedError);
    rule.pattern = "netflix";
    rule.id = Uuid::random();
    EXPECT_THROW(updateCategoryRule(ledger, rule), LedgerError);
    EXPECT_EQ(ledger, before);
}

}  // namespace
}  // namespace vantello
