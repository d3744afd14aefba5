// A movement's attachments are added and taken off by id; unknown ids change nothing.

#include "core/ledger/LedgerAttachments.hpp"

#include "core/ledger/LedgerError.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace {

using namespace vantello;
using vantello::testing::at;

TEST(LedgerAttachments, AddsAndRemovesByID) {
    const Transaction movement = vantello::testing::expense("10", at(2025, 3, 1));
    LedgerData data;
    data.transactions = std::vector{movement};
    Ledger ledger(data);
    Attachment receipt{Uuid::random(), "scontrino.pdf", "X.pdf", 12, at(2025, 3, 1)};
    addAttachment(ledger, movement.id, receipt);
    ASSERT_EQ(ledger.transaction(movement.id)->attachments, std::vector{receipt});

    const Ledger before = ledger;
    EXPECT_THROW(addAttachment(ledger, Uuid::random(), receipt), LedgerError);
    EXPECT_THROW((void)removeAttachment(ledger, movement.id, Uuid::random()), AttachmentLookupError);
    EXPECT_EQ(ledger, before);

    EXPECT_EQ(removeAttachment(ledger, movement.id, receipt.id), receipt);
    EXPECT_TRUE(ledger.transaction(movement.id)->attachments.empty());
}

}  // namespace
