// Merging statement movements: duplicates by day, kind, amount, note and account; opposite
// movements on another account within three days becoming one transfer; refused movements.

#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerAccounts.hpp"
#include "core/ledger/LedgerCategoryRules.hpp"
#include "core/statements/ImportMerge.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

namespace {

using namespace vantello;
using Result = ImportResult;
using vantello::testing::at;
using vantello::testing::rome;

Transaction movement(TransactionKind kind, const char* amount, Instant date, std::string note) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = kind;
    transaction.amount = *Decimal::fromCanonical(amount);
    transaction.date = date;
    transaction.categoryID = std::string(fallbackCategoryID(kind));
    transaction.note = std::move(note);
    return transaction;
}

class ImportMerge : public ::testing::Test {
protected:
    void SetUp() override { card = addAccount(ledger, "Carta", "creditcard", Decimal(0), std::nullopt).id; }

    Result import(std::vector<Transaction> rows, std::string_view account = mainAccountID, bool transfers = true) {
        return importTransactions(ledger, std::move(rows), account, transfers, rome());
    }

    Ledger ledger;
    std::string card;
};

TEST_F(ImportMerge, SameFileTwiceCountsDuplicates) {
    const std::vector<Transaction> file{movement(TransactionKind::expense, "12.5", at(2024, 3, 5, 10), "Esselunga"),
                                        movement(TransactionKind::income, "1500", at(2024, 3, 6, 9), "Stipendio")};
    EXPECT_EQ(import(file, card), (Result{0, 2, 0, 0}));
    const Ledger once = ledger;
    std::vector<Transaction> again = file;
    for (auto& row : again) row.id = Uuid::random();  // a fresh read of the file gives new ids
    EXPECT_EQ(import(again, card), (Result{0, 0, 2, 0}));
    EXPECT_EQ(ledger, once);
    EXPECT_EQ(ledger.transactions()[0].accountID, card);
}

TEST_F(ImportMerge, DuplicatesIgnoreTimeOfDayAndCaseOfTheNote) {
    ledger.add(movement(TransactionKind::expense, "30", at(2024, 3, 5, 9), "Pizzeria da Gino"));
    ledger.add(movement(TransactionKind::expense, "2", at(2024, 3, 5, 9), "Caffè Nerò"));
    const Result result = import({movement(TransactionKind::expense, "30", at(2024, 3, 5, 23), "PIZZERIA DA GINO"),
                                  movement(TransactionKind::expense, "2", at(2024, 3, 5, 8), "CAFFÈ NERÒ"),
                                  movement(TransactionKind::expense, "2", at(2024, 3, 5, 8), "CAFFE NERO"),
                                  movement(TransactionKind::expense, "30", at(2024, 3, 6, 0), "Pizzeria da Gino"),
                                  movement(TransactionKind::expense, "30.00", at(2024, 3, 6, 8), "pizzeria DA gino")});
    // Accents count; the next day is added and its twin in the same file skipped.
    EXPECT_EQ(result, (Result{0, 2, 3, 0, 1}));
}

TEST_F(ImportMerge, RepeatedMovementsAreOneDuplicateUnlessCounted) {
    const auto ticket = [] { return movement(TransactionKind::expense, "2.2", at(2024, 3, 5, 8), "Biglietto tram"); };
    const std::vector<Transaction> twoTickets{ticket(), ticket()};
    EXPECT_EQ(import(twoTickets), (Result{0, 1, 1, 0, 1}));

    ledger = Ledger();
    const auto counted = [&](std::vector<Transaction> rows) {
        return importTransactions(ledger, std::move(rows), mainAccountID, true, rome(), RepeatedMovements::counted);
    };
    EXPECT_EQ(counted(twoTickets), (Result{0, 2, 0, 0, 1}));
    EXPECT_EQ(counted({ticket(), ticket()}), (Result{0, 0, 2, 0, 1}));
    // Three in the file, two in the ledger: one more.
    EXPECT_EQ(counted({ticket(), ticket(), ticket()}), (Result{0, 1, 2, 0, 2}));
    EXPECT_EQ(ledger.transactions().size(), 3u);
}

TEST_F(ImportMerge, OppositeMovementOnAnotherAccountWithinThreeDaysBecomesTransfer) {
    ledger.add(movement(TransactionKind::expense, "100", at(2024, 3, 2, 10), "Bonifico"));
    ledger.add(movement(TransactionKind::expense, "100", at(2024, 3, 2, 10), "Bonifico"));  // later in the list
    EXPECT_EQ(import({movement(TransactionKind::income, "100", at(2024, 3, 5, 10), "Da conto principale")}, card),
              (Result{1, 0, 0, 0}));
    ASSERT_EQ(ledger.transactions().size(), 2u);
    const Transaction& transfer = ledger.transactions()[0];
    EXPECT_EQ(transfer.kind, TransactionKind::expense);
    EXPECT_EQ(transfer.categoryID, "giroconto");
    EXPECT_EQ(transfer.accountID, mainAccountID);
    EXPECT_EQ(transfer.transferToAccountID, card);
    EXPECT_EQ(transfer.note, "Bonifico");
    EXPECT_FALSE(ledger.transactions()[1].isTransfer());

    // The rewritten one is not matched again; the second existing expense is.
    EXPECT_EQ(import({movement(TransactionKind::income, "100", at(2024, 3, 4, 10), "Ancora")}, card),
              (Result{1, 0, 0, 0}));
    EXPECT_TRUE(ledger.transactions()[1].isTransfer());
    EXPECT_EQ(import({movement(TransactionKind::income, "100", at(2024, 3, 4, 11), "Terzo")}, card),
              (Result{0, 1, 0, 0}));
}

TEST_F(ImportMerge, ExistingIncomeTakesTheImportedAccountAsSource) {
    ledger.add([&] {
        auto income = movement(TransactionKind::income, "40", at(2024, 3, 10, 12), "Ricarica");
        income.accountID = card;
        return income;
    }());
    EXPECT_EQ(import({movement(TransactionKind::expense, "40", at(2024, 3, 7, 12), "Ricarica carta")}),
              (Result{1, 0, 0, 0}));
    const Transaction& transfer = ledger.transactions()[0];
    EXPECT_EQ(transfer.kind, TransactionKind::expense);
    EXPECT_EQ(transfer.accountID, mainAccountID);
    EXPECT_EQ(transfer.transferToAccountID, card);
}

TEST_F(ImportMerge, TransferNeedsTheOtherKindWithinAnInclusiveWindow) {
    const Instant existing = at(2024, 3, 2, 10);
    ledger.add(movement(TransactionKind::expense, "100", existing, "Uscita"));
    EXPECT_EQ(import({movement(TransactionKind::expense, "100", existing, "Stesso segno")}, card), (Result{0, 1, 0, 0}));
    EXPECT_EQ(import({movement(TransactionKind::income, "100", existing + std::chrono::seconds(259'201), "Tardi")}, card),
              (Result{0, 1, 0, 0}));
    EXPECT_EQ(import({movement(TransactionKind::income, "100", existing - std::chrono::seconds(259'201), "Presto")}, card),
              (Result{0, 1, 0, 0}));
    EXPECT_EQ(import({movement(TransactionKind::income, "100", existing + std::chrono::seconds(259'200), "Giusto")}, card),
              (Result{1, 0, 0, 0}));
}

TEST_F(ImportMerge, NoTransferOnTheSameAccountOrWhenDetectionIsOff) {
    ledger.add(movement(TransactionKind::expense, "100", at(2024, 3, 2, 10), "Uscita"));
    EXPECT_EQ(import({movement(TransactionKind::income, "100", at(2024, 3, 3, 10), "Stesso conto")}),
              (Result{0, 1, 0, 0}));
    EXPECT_EQ(import({movement(TransactionKind::income, "100", at(2024, 3, 3, 10), "Senza ricerca")}, card, false),
              (Result{0, 1, 0, 0}));
    EXPECT_FALSE(ledger.transactions()[0].isTransfer());
}

TEST_F(ImportMerge, CategoryRulesFileOnlyFallbackMovements) {
    addCategoryRule(ledger, "esselunga", "spesa");
    auto filed = movement(TransactionKind::expense, "20", at(2024, 3, 5, 10), "ESSELUNGA Milano");
    filed.categoryID = "svago";
    EXPECT_EQ(import({movement(TransactionKind::expense, "10", at(2024, 3, 5, 10), "Esselunga Milano"), filed}),
              (Result{0, 2, 0, 0}));
    EXPECT_EQ(ledger.transactions()[0].categoryID, "spesa");
    EXPECT_EQ(ledger.transactions()[1].categoryID, "svago");
}

TEST_F(ImportMerge, RefusedMovementsCountInvalid) {
    const Transaction existing = movement(TransactionKind::expense, "5", at(2024, 3, 1, 10), "Caffè");
    ledger.add(existing);
    auto sameID = movement(TransactionKind::expense, "7", at(2024, 3, 2, 10), "Altro");
    sameID.id = existing.id;
    auto unknownCategory = movement(TransactionKind::expense, "8", at(2024, 3, 2, 10), "Altro");
    unknownCategory.categoryID = "inesistente";
    auto twice = movement(TransactionKind::expense, "9", at(2024, 3, 2, 10), "Primo");
    auto twiceAgain = movement(TransactionKind::expense, "9", at(2024, 3, 3, 10), "Secondo");
    twiceAgain.id = twice.id;
    EXPECT_EQ(import({sameID, unknownCategory, twice, twiceAgain}), (Result{0, 1, 0, 3}));

    const Ledger before = ledger;
    EXPECT_EQ(import({movement(TransactionKind::expense, "1", at(2024, 3, 2, 10), "X")}, "conto-sconosciuto"),
              (Result{0, 0, 0, 1}));
    EXPECT_EQ(import({}), (Result{}));
    EXPECT_EQ(ledger, before);
}

}  // namespace
