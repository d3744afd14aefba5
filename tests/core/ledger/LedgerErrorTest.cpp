#include "core/base/Localization.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/SharedEntry.hpp"
#include "core/ledger/SharedError.hpp"

#include <gtest/gtest.h>

using namespace vantello;

TEST(LedgerErrors, MessagesAreTheFixedTexts) {
    EXPECT_EQ(LedgerError(LedgerError::Code::unknownCategory, "custom-X").message(),
              "La categoria «custom-X» non esiste.");
    EXPECT_EQ(LedgerError(LedgerError::Code::budgetOnlyForExpenses).message(),
              "Il budget si imposta solo sulle categorie di uscita.");
    EXPECT_EQ(CategoryError(CategoryError::Code::nameTooLong).message(),
              "Il nome della categoria è troppo lungo (massimo 40 caratteri).");
    EXPECT_EQ(AdvancedError(AdvancedError::Code::mainAccount).message(), "Il conto principale non si può eliminare.");
    EXPECT_EQ(AdvancedError(AdvancedError::Code::nameTooLong).code(), AdvancedError::Code::nameTooLong);
    EXPECT_EQ(SharedError(SharedError::Code::sharesTooLarge).message(),
              "Le quote degli altri non possono superare la spesa.");
}

TEST(LedgerErrors, TranslationMovesTheCategoryIdWithThePattern) {
    L10n::install([](std::string_view key) {
        return key == "La categoria «{id}» non esiste." ? std::string("Category “{id}” does not exist.")
                                                        : std::string(key);
    });
    const auto message = LedgerError(LedgerError::Code::unknownCategory, "spesa").message();
    const auto label = SharedEntry::historyLabel(SharedEntry::Kind::paymentMade);
    L10n::install({});
    EXPECT_EQ(message, "Category “spesa” does not exist.");
    EXPECT_EQ(label, "Gli hai restituito");
}

TEST(SharedEntry, EffectFollowsWhoOwesWhom) {
    SharedEntry entry{Uuid{}, Uuid{}, SharedEntry::Kind::paymentReceived, Decimal(10), {}, ""};
    EXPECT_EQ(entry.effect(), Decimal(-10));
    entry.kind = SharedEntry::Kind::paymentMade;
    EXPECT_EQ(entry.effect(), Decimal(10));
    entry.kind = SharedEntry::Kind::theyPaidForMe;
    EXPECT_EQ(entry.effect(), Decimal(-10));
    EXPECT_EQ(SharedEntry::pickerLabel(entry.kind), "Ha pagato per me");
}
