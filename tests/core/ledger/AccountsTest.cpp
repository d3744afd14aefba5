#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerAccounts.hpp"
#include "core/ledger/LedgerRecurring.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace vantello {
namespace {

Transaction movement(TransactionKind kind, int amount, std::string accountID,
                     std::optional<std::string> transferTo = std::nullopt) {
    Transaction made;
    made.id = Uuid::random();
    made.kind = kind;
    made.amount = amount;
    made.date = instantFromUnixSeconds(1'700'000'000);
    made.categoryID = kind == TransactionKind::income ? "stipendio" : "spesa";
    made.accountID = std::move(accountID);
    if (transferTo) {
        made.categoryID = "giroconto";
        made.transferToAccountID = std::move(transferTo);
    }
    return made;
}

AdvancedError::Code codeOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const AdvancedError& error) {
        return error.code();
    }
    ADD_FAILURE() << "no error";
    return {};
}

// A ledger with the main account and a card with an opening balance of 100.
Ledger withCard(std::vector<Transaction> movements = {}) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-CARTA", "Carta", "creditcard", 100, std::nullopt}};
    data.transactions = std::move(movements);
    return Ledger(std::move(data));
}

TEST(Accounts, NamesAreTrimmedLimitedAndUniqueIgnoringCaseAndAccents) {
    Ledger ledger = withCard();
    const Account added = addAccount(ledger, "  Càssa\n", "banknote", 20, Decimal(5));
    EXPECT_EQ(added.name, "Càssa");
    EXPECT_EQ(added.id, "conto-" + Uuid::parse(added.id.substr(6)).value_or(Uuid()).text());
    EXPECT_EQ(ledger.accounts().back(), added);
    EXPECT_NO_THROW(addAccount(ledger, std::string(39, 'x') + "😀", "wallet", 0, std::nullopt));

    const Ledger before = ledger;
    EXPECT_EQ(codeOf([&] { addAccount(ledger, " \n ", "", 0, std::nullopt); }), AdvancedError::Code::emptyName);
    EXPECT_EQ(codeOf([&] { addAccount(ledger, std::string(41, 'x'), "", 0, std::nullopt); }),
              AdvancedError::Code::nameTooLong);
    EXPECT_EQ(codeOf([&] { addAccount(ledger, "CASSA", "", 0, std::nullopt); }), AdvancedError::Code::duplicateAccount);

    Account renamed = added;
    renamed.name = "carta";
    EXPECT_EQ(codeOf([&] { updateAccount(ledger, renamed); }), AdvancedError::Code::duplicateAccount);
    renamed.id = "conto-NESSUNO";
    EXPECT_EQ(codeOf([&] { updateAccount(ledger, renamed); }), AdvancedError::Code::unknownAccount);
    EXPECT_EQ(ledger, before);

    renamed = added;
    renamed.name = " CASSA ";  // its own name in another case is no clash
    updateAccount(ledger, renamed);
    EXPECT_EQ(ledger.account(added.id)->name, "CASSA");
}

TEST(Accounts, BalancesCountTransfersOnBothSides) {
    const Ledger ledger = withCard({
        movement(TransactionKind::income, 1000, "principale"),
        movement(TransactionKind::expense, 50, "principale"),
        movement(TransactionKind::expense, 200, "principale", "conto-CARTA"),
        movement(TransactionKind::expense, 30, "conto-CARTA"),
    });
    const std::map<std::string, Decimal> expected{{"principale", 750}, {"conto-CARTA", 270}};
    EXPECT_EQ(accountBalances(ledger), expected);
    EXPECT_EQ(accountBalance(ledger, "conto-CARTA"), Decimal(270));
}

TEST(Accounts, DeletingMovesEverythingToMainDissolvingSelfTransfers) {
    Ledger ledger = withCard({
        movement(TransactionKind::expense, 30, "conto-CARTA"),
        movement(TransactionKind::expense, 200, "principale", "conto-CARTA"),
        movement(TransactionKind::expense, 80, "conto-CARTA", "principale"),
        movement(TransactionKind::income, 1000, "principale"),
    });
    RecurringRule rule;
    rule.id = Uuid::random();
    rule.amount = 10;
    rule.categoryID = "giroconto";
    rule.accountID = "principale";
    rule.transferToAccountID = "conto-CARTA";
    addRecurringRule(ledger, rule);
    const Transaction untouched = ledger.transactions()[3];
    const Ledger before = ledger;
    EXPECT_EQ(codeOf([&] { deleteAccount(ledger, "principale"); }), AdvancedError::Code::mainAccount);
    EXPECT_EQ(codeOf([&] { deleteAccount(ledger, "conto-NESSUNO"); }), AdvancedError::Code::unknownAccount);
    EXPECT_EQ(ledger, before);

    EXPECT_EQ(deleteAccount(ledger, "conto-CARTA"), 3);
    EXPECT_EQ(ledger.accounts(), std::vector{Account::main()});
    for (const Transaction& transaction : ledger.transactions()) {
        EXPECT_EQ(transaction.accountID, "principale");
        EXPECT_FALSE(transaction.transferToAccountID);
    }
    EXPECT_EQ(ledger.transactions()[0].categoryID, "spesa");
    EXPECT_EQ(ledger.transactions()[1].categoryID, "altre-uscite");
    EXPECT_EQ(ledger.transactions()[2].categoryID, "altre-uscite");
    EXPECT_EQ(ledger.transactions()[2].kind, TransactionKind::expense);
    EXPECT_EQ(ledger.transactions()[3], untouched);
    EXPECT_EQ(ledger.recurringRules()[0].transferToAccountID, std::nullopt);
    EXPECT_EQ(ledger.recurringRules()[0].categoryID, "altre-uscite");
    EXPECT_EQ(accountBalance(ledger, "principale"), Decimal(1000 - 30 - 200 - 80));
}

}  // namespace
}  // namespace vantello
