#include "core/ledger/TransactionDraft.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

TransactionDraft expenseDraft(std::string amountText) {
    TransactionDraft draft(TransactionKind::expense, instantFromUnixSeconds(1740823200), "ristoranti", "principale");
    draft.amountText = std::move(amountText);
    return draft;
}

TEST(TransactionDraft, OnlyAmountsAboveZeroMakeAMovement) {
    for (const char* text : {"0", "0,00", "", "abc", "-5"}) {
        EXPECT_FALSE(expenseDraft(text).transaction().has_value()) << text;
    }
    EXPECT_EQ(expenseDraft("1.250,5").transaction()->amount, Decimal(12505, -1));
    EXPECT_NE(expenseDraft("").id, expenseDraft("").id);
}

TEST(TransactionDraft, TransferBecomesAnExpenseInGirocontoWithoutShares) {
    auto draft = expenseDraft("30");
    draft.shares = {{Uuid::random(), Decimal(10)}, {Uuid::random(), Decimal(10)}};
    EXPECT_EQ(draft.transaction()->shares, draft.shares);

    draft.kind = TransactionKind::income;
    EXPECT_TRUE(draft.transaction()->shares.empty());

    draft.transferToAccountID = "conto-risparmi";
    const auto transfer = *draft.transaction();
    EXPECT_EQ(transfer.kind, TransactionKind::expense);
    EXPECT_EQ(transfer.categoryID, "giroconto");
    EXPECT_EQ(transfer.transferToAccountID, "conto-risparmi");
    EXPECT_TRUE(transfer.shares.empty());
}

TEST(TransactionDraft, ForeignAmountKeptOnlyOutsideTheEuro) {
    auto draft = expenseDraft("12,50");
    draft.currency = "EUR";
    draft.originalAmountText = "12,50";
    EXPECT_FALSE(draft.transaction()->currency || draft.transaction()->originalAmount);

    draft.currency = "USD";
    draft.originalAmountText = "13,60";
    EXPECT_EQ(draft.transaction()->currency, "USD");
    EXPECT_EQ(draft.transaction()->originalAmount, Decimal(136, -1));
    draft.originalAmountText = "tredici";
    EXPECT_FALSE(draft.transaction()->originalAmount.has_value());
}

TEST(TransactionDraft, EditingShowsTwoDecimalsInTheLocaleAndReadsBackExactly) {
    Transaction existing = *expenseDraft("1250").transaction();
    existing.currency = "CHF";
    existing.originalAmount = Decimal(11995, -1);

    const TransactionDraft italian(existing, "it_IT");
    EXPECT_FALSE(italian.isNew);
    EXPECT_EQ(italian.amountText, "1250,00");
    EXPECT_EQ(italian.originalAmountText, "1199,50");
    EXPECT_EQ(italian.transaction(), existing);

    const TransactionDraft english(existing, "en_US");
    EXPECT_EQ(english.amountText, "1250.00");
    EXPECT_EQ(english.transaction(), existing);
}

TEST(TransactionDraft, NoteIsTrimmedOfBlanksAndLineBreaks) {
    auto draft = expenseDraft("5");
    draft.note = " \n\u00A0\t";
    EXPECT_EQ(draft.transaction()->note, "");
    draft.note = "\n Pizza da Gino \r\n";
    EXPECT_EQ(draft.transaction()->note, "Pizza da Gino");
}

}  // namespace
}  // namespace vantello
