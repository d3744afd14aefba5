// Exported movements open in a spreadsheet of the user's locale and read back cell for cell.

#include "core/statements/CSV.hpp"
#include "core/statements/CSVExport.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

namespace {

using namespace vantello;
using vantello::testing::at;
using vantello::testing::rome;

Transaction movement(TransactionKind kind, const char* amount, CivilDate day, std::string category,
                     std::string note = {}) {
    Transaction transaction;
    transaction.id = Uuid::random();
    transaction.kind = kind;
    transaction.amount = *Decimal::fromCanonical(amount);
    transaction.date = at(day, 0, 30);  // 23:30 UTC the day before
    transaction.categoryID = std::move(category);
    transaction.note = std::move(note);
    return transaction;
}

TEST(CSVExport, LocaleChoosesDecimalAndFieldSeparators) {
    const std::vector<Transaction> movements{
        movement(TransactionKind::expense, "1234.5", {2024, 3, 5}, "spesa", "Esselunga"),
        movement(TransactionKind::income, "2000", {2024, 3, 1}, "stipendio")};
    EXPECT_EQ(CSVExport::text(movements, builtInCategories(), rome(), "it"),
              "Data;Tipo;Categoria;Importo;Nota\r\n"
              "2024-03-01;Entrata;Stipendio;2000,00;\r\n"
              "2024-03-05;Uscita;Spesa alimentare;1234,50;Esselunga");
    EXPECT_EQ(CSVExport::text(movements, builtInCategories(), rome(), "en_US", CSVExport::Order::asGiven),
              "Data,Tipo,Categoria,Importo,Nota\r\n"
              "2024-03-05,Uscita,Spesa alimentare,1234.50,Esselunga\r\n"
              "2024-03-01,Entrata,Stipendio,2000.00,");
}

TEST(CSVExport, AwkwardNotesReadBackAsTheSameCells) {
    Transaction transfer = movement(TransactionKind::expense, "0.1", {2024, 2, 29}, "giroconto",
                                    "Rossi; \"Bianchi\"\ne figli\r\nfine\xE2\x80\xA8");
    transfer.transferToAccountID = "conto-altro";
    const std::vector<Transaction> movements{transfer,
                                             movement(TransactionKind::expense, "3", {2024, 3, 1}, "custom-x", "a,b")};
    for (const char* locale : {"it_IT", "en", "xx-nessuna"}) {
        const CSV::Table table = CSV::parse(CSVExport::text(movements, builtInCategories(), rome(), locale));
        ASSERT_EQ(table.size(), 3u) << locale;
        EXPECT_EQ(table[1], (CSV::Row{"2024-02-29", "Uscita", "Giroconto", table[1][3], transfer.note}));
        EXPECT_EQ(table[2][2], "custom-x");  // an unknown category keeps its id
        EXPECT_EQ(table[2][4], "a,b");
    }
}

TEST(CSVExport, NoMovementsGiveTheHeaderAlone) {
    EXPECT_EQ(CSVExport::text({}, {}, rome(), "it"), "Data;Tipo;Categoria;Importo;Nota");
    EXPECT_EQ(CSV::line({"", "x\xC2\x85y", "plain"}, ','), ",\"x\xC2\x85y\",plain");
}

}  // namespace
