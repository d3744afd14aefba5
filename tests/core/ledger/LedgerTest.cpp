#include "core/ledger/Ledger.hpp"

#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/SharedError.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <variant>

using namespace vantello;

namespace {

using AnyCode = std::variant<std::monostate, LedgerErrorCode, CategoryErrorCode, AdvancedErrorCode, SharedErrorCode>;

AnyCode codeThrownBy(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const LedgerError& error) {
        return error.code();
    } catch (const CategoryError& error) {
        return error.code();
    } catch (const AdvancedError& error) {
        return error.code();
    } catch (const SharedError& error) {
        return error.code();
    }
    return std::monostate{};
}

Transaction movement(std::string categoryID, Decimal amount, int day,
                     TransactionKind kind = TransactionKind::expense) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = kind;
    transaction.amount = amount;
    transaction.date = instantFromUnixSeconds(1'700'000'000LL + day * 86'400LL);
    transaction.categoryID = std::move(categoryID);
    return transaction;
}

Transaction transfer(std::optional<std::string> to) {
    Transaction transaction = movement(std::string(transferCategoryID), 50, 0);
    transaction.transferToAccountID = std::move(to);
    return transaction;
}

Account otherAccount() { return {"conto-B", "Carta", "creditcard", 0, std::nullopt}; }

}  // namespace

TEST(Ledger, ConstructionAddsMainAccountFirstOnlyWhenMissing) {
    LedgerData without;
    without.accounts = {otherAccount()};
    const Ledger added(without);
    ASSERT_EQ(added.accounts().size(), 2u);
    EXPECT_EQ(added.accounts()[0], Account::main());
    EXPECT_EQ(added.accounts()[1].id, "conto-B");

    LedgerData with;
    with.accounts = {otherAccount(), Account::main()};
    EXPECT_EQ(Ledger(with).accounts(), with.accounts);
    EXPECT_EQ(Ledger().accounts(), std::vector<Account>{Account::main()});
}

TEST(Ledger, ConstructionSortsNewestFirstKeepingEqualDatesInOrder) {
    const Transaction a = movement("spesa", 1, 1);
    const Transaction b = movement("spesa", 2, 3);
    const Transaction c = movement("casa", 3, 1);
    const Transaction d = movement("svago", 4, 2);
    LedgerData data;
    data.transactions = std::vector<Transaction>{a, b, c, d};
    const Ledger ledger(data);
    EXPECT_EQ(ledger.transactions().toVector(), (std::vector<Transaction>{b, d, a, c}));
}

TEST(Ledger, FailedOperationLeavesLedgerAsItWas) {
    LedgerData data;
    data.accounts = {Account::main(), otherAccount()};
    Ledger ledger(data);
    const Transaction existing = movement("spesa", 20, 0);
    ledger.add(existing);
    ledger.setBudget("spesa", Decimal(100));
    const TransactionCategory custom = ledger.addCategory("Viaggi", "airplane", TransactionKind::expense);

    Transaction zero = existing;
    zero.amount = 0;
    Transaction fromNowhere = movement("spesa", 5, 0);
    fromNowhere.accountID = "conto-X";
    Transaction incomeWithShare = movement("stipendio", 100, 0, TransactionKind::income);
    incomeWithShare.shares = {{Uuid::random(), 10}};

    const struct {
        const char* name;
        std::function<void(Ledger&)> operation;
        AnyCode expected;
    } cases[] = {
        {"zero amount", [&](Ledger& l) { l.add(movement("spesa", 0, 0)); }, LedgerErrorCode::amountNotPositive},
        {"unknown category before account",
         [&](Ledger& l) {
             Transaction t = movement("nessuna", 5, 0);
             t.accountID = "conto-X";
             l.add(t);
         },
         LedgerErrorCode::unknownCategory},
        {"expense in income category", [&](Ledger& l) { l.add(movement("stipendio", 5, 0)); },
         LedgerErrorCode::categoryKindMismatch},
        {"unknown account", [&](Ledger& l) { l.add(fromNowhere); }, AdvancedErrorCode::unknownAccount},
        {"transfer without destination", [&](Ledger& l) { l.add(transfer(std::nullopt)); },
         AdvancedErrorCode::transferWithoutDestination},
        {"transfer to unknown account", [&](Ledger& l) { l.add(transfer("conto-X")); },
         AdvancedErrorCode::unknownAccount},
        {"transfer to itself", [&](Ledger& l) { l.add(transfer("principale")); },
         AdvancedErrorCode::transferToSameAccount},
        {"shares on income", [&](Ledger& l) { l.add(incomeWithShare); }, SharedErrorCode::sharesOnlyOnExpenses},
        {"same movement twice", [&](Ledger& l) { l.add(existing); }, LedgerErrorCode::duplicateID},
        {"update of a missing movement", [&](Ledger& l) { l.update(movement("spesa", 5, 0)); },
         LedgerErrorCode::notFound},
        {"invalid update", [&](Ledger& l) { l.update(zero); }, LedgerErrorCode::amountNotPositive},
        {"blank category name", [&](Ledger& l) { l.addCategory(" \n ", "x", TransactionKind::expense); },
         CategoryErrorCode::emptyName},
        {"rename built-in", [&](Ledger& l) { l.renameCategory("spesa", "Cibo", "x"); },
         CategoryErrorCode::notCustom},
        {"rename onto built-in name", [&](Ledger& l) { l.renameCategory(custom.id, "svagó", "x"); },
         CategoryErrorCode::duplicateName},
        {"delete built-in", [&](Ledger& l) { l.deleteCategory("casa"); }, CategoryErrorCode::notCustom},
        {"budget on unknown category", [&](Ledger& l) { l.setBudget("nessuna", Decimal(5)); },
         LedgerErrorCode::unknownCategory},
        {"budget on income", [&](Ledger& l) { l.setBudget("stipendio", Decimal(5)); },
         LedgerErrorCode::budgetOnlyForExpenses},
        {"budget removal on income", [&](Ledger& l) { l.setBudget("stipendio", std::nullopt); },
         LedgerErrorCode::budgetOnlyForExpenses},
    };
    for (const auto& testCase : cases) {
        SCOPED_TRACE(testCase.name);
        Ledger changed = ledger;
        EXPECT_EQ(codeThrownBy([&] { testCase.operation(changed); }), testCase.expected);
        EXPECT_EQ(changed, ledger);
    }
}

TEST(Ledger, MovementsAreAppendedReplacedInPlaceAndDeleted) {
    LedgerData data;
    data.accounts = {Account::main(), otherAccount()};
    Ledger ledger(data);
    const Transaction old = movement("spesa", 10, 0);
    const Transaction newer = movement("casa", 20, 5);
    ledger.add(old);
    ledger.add(newer);  // appended, not sorted
    Transaction moved = transfer("conto-B");
    moved.id = old.id;
    ledger.update(moved);
    EXPECT_EQ(ledger.transactions().toVector(), (std::vector<Transaction>{moved, newer}));
    EXPECT_EQ(*ledger.transaction(old.id), moved);

    ledger.deleteTransaction(old.id);
    ledger.deleteTransaction(old.id);  // already gone: ignored
    EXPECT_EQ(ledger.transactions().toVector(), std::vector<Transaction>{newer});
    EXPECT_EQ(codeThrownBy([&] { ledger.update(moved); }), AnyCode{LedgerErrorCode::notFound});
    try {
        ledger.add(movement("nessuna", 5, 0));
        ADD_FAILURE() << "an unknown category was accepted";
    } catch (const LedgerError& error) {
        EXPECT_EQ(error.message(), "La categoria «nessuna» non esiste.");
    }
}

TEST(Ledger, CategoryNamesClashOnlyWithinTheirKind) {
    Ledger ledger;
    EXPECT_EQ(codeThrownBy([&] { ledger.addCategory("  Casa  ", "house", TransactionKind::expense); }),
              AnyCode{CategoryErrorCode::duplicateName});
    const TransactionCategory added = ledger.addCategory("  Casa  ", "house", TransactionKind::income);
    EXPECT_EQ(added.name, "Casa");
    EXPECT_EQ(added.id.rfind("custom-", 0), 0u);
    EXPECT_EQ(Uuid::parse(added.id.substr(7))->text(), added.id.substr(7));  // upper-case UUID
    EXPECT_EQ(ledger.categories(TransactionKind::income).back(), added);
    EXPECT_EQ(*ledger.category(added.id), added);
    EXPECT_EQ(ledger.category("giroconto"), transferCategory());
    EXPECT_EQ(ledger.allCategories().size(), builtInCategories().size() + 1);

    // Renaming may change only the case of its own name; another custom name still clashes.
    ledger.renameCategory(added.id, "CASA", "house.fill");
    EXPECT_EQ(ledger.category(added.id)->name, "CASA");
    ledger.addCategory("Regali", "gift", TransactionKind::income);
    EXPECT_EQ(codeThrownBy([&] { ledger.renameCategory(added.id, "regàli", "gift"); }),
              AnyCode{CategoryErrorCode::duplicateName});
}

TEST(Ledger, CategoryNameLimitCountsUserPerceivedCharacters) {
    const std::string family = "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7";
    Ledger ledger;
    EXPECT_EQ(ledger.addCategory(std::string(39, 'a') + family, "x", TransactionKind::expense).name,
              std::string(39, 'a') + family);
    EXPECT_EQ(codeThrownBy([&] { ledger.addCategory(std::string(40, 'b') + family, "x", TransactionKind::expense); }),
              AnyCode{CategoryErrorCode::nameTooLong});
}

TEST(Ledger, DeletingCustomIncomeCategoryMovesMovementsToFallbackAndDropsBudget) {
    const TransactionCategory gifts{"custom-GIFTS", "Regali", "gift", TransactionKind::income};
    const Transaction gift = movement(gifts.id, 50, 0, TransactionKind::income);
    const Transaction salary = movement("stipendio", 900, 1, TransactionKind::income);
    LedgerData data;
    data.customCategories = {gifts};
    data.transactions = std::vector<Transaction>{gift, salary};
    data.budgets = {{gifts.id, Decimal(10)}, {"spesa", Decimal(20)}};
    Ledger ledger(data);

    ledger.deleteCategory(gifts.id);
    EXPECT_EQ(ledger.transaction(gift.id)->categoryID, "altre-entrate");
    EXPECT_EQ(*ledger.transaction(salary.id), salary);
    EXPECT_EQ(ledger.budgets(), (std::map<std::string, Decimal>{{"spesa", Decimal(20)}}));
    EXPECT_TRUE(ledger.customCategories().empty());
}

TEST(Ledger, PositiveBudgetIsStoredAndZeroOrNothingRemovesIt) {
    Ledger ledger;
    ledger.setBudget("spesa", Decimal(250));
    ledger.setBudget("casa", Decimal(80));
    EXPECT_EQ(ledger.budgets().at("spesa"), Decimal(250));
    ledger.setBudget("spesa", Decimal(0));
    ledger.setBudget("casa", std::nullopt);
    EXPECT_TRUE(ledger.budgets().empty());
    EXPECT_EQ(codeThrownBy([&] { ledger.setBudget("giroconto", Decimal(5)); }),
              AnyCode{LedgerErrorCode::budgetOnlyForExpenses});
}
