#include "core/statements/CSV.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using Table = CSV::Table;

TEST(CSV, QuotedCellsHoldSeparatorsDoubledQuotesAndLineBreaks) {
    EXPECT_EQ(CSV::parse("a;\"b;c\";\"d, \"\"e\"\"\"\n\"x\r\ny\";z\n", ';'),
              (Table{{"a", "b;c", "d, \"e\""}, {"x\r\ny", "z"}}));
    // After the closing quote the cell goes on as ordinary text; an unclosed quote runs to the end.
    EXPECT_EQ(CSV::parse("\"ab\"cd,\"\",\"x\nyz", ','), (Table{{"abcd", "", "x\nyz"}}));
    EXPECT_EQ(CSV::parse("\"last\"", ','), (Table{{"last"}}));
}

TEST(CSV, QuoteInsideAnUnquotedCellIsText) {
    EXPECT_EQ(CSV::parse("12\" pollici;x\n  \"a;b\"", ';'), (Table{{"12\" pollici", "x"}, {"  \"a", "b\""}}));
}

TEST(CSV, BlankRowsAreDroppedAndCellsKeepTheirSpaces) {
    EXPECT_EQ(CSV::parse("a;b\n;;\n \t; \n\n\"\";\"\"\n c ;d\n", ';'), (Table{{"a", "b"}, {" c ", "d"}}));
    EXPECT_TRUE(CSV::parse("\xEF\xBB\xBF\n \n").empty());
}

TEST(CSV, LineOfALoneQuoteOpensNoCell) {
    EXPECT_EQ(CSV::parse("\"\r\nConto;IT60X\nData;Descrizione\n01/11/2026;\"A;B\"\n\"", ';'),
              (Table{{"Conto", "IT60X"}, {"Data", "Descrizione"}, {"01/11/2026", "A;B"}}));
}

TEST(CSV, BelowAFirstLineWithoutSeparatorTheRowsAgreeingOnTheCellsDecide) {
    // The descriptions hold commas, but only the semicolon splits every row alike.
    const auto belowTitle = CSV::guessSeparator(
        "Controvalori aggiornati al 23/11/2026\nData;Descrizione;Importo\n"
        "03/11/2026;POS CONAD, BOLOGNA;-1,00\n04/11/2026;ENEL;-2,00\n05/11/2026;A, B;3\n");
    EXPECT_EQ(belowTitle.separator, ';');
    EXPECT_EQ(belowTitle.rule, "consistentRows");
    const auto belowQuote = CSV::guessSeparator("\"\nData\tImporto\n01/11/2026\t-1,00\n");
    EXPECT_EQ(belowQuote.separator, '\t');
    // The first line decides whenever it holds a candidate, as detectSeparator says.
    const auto firstLine = CSV::guessSeparator("Data;Importo\n1,2,3\n4,5,6\n");
    EXPECT_EQ(firstLine.separator, ';');
    EXPECT_EQ(firstLine.rule, "firstLine");
    EXPECT_EQ(CSV::guessSeparator("Titolo\nData;Importo\nfine\n").rule, "default");
}

TEST(CSV, EveryNewlineEndsARowAndCarriageReturnLineFeedIsOne) {
    EXPECT_EQ(CSV::parse("a\r\nb\rc\nd\ve\ff\xC2\x85g\xE2\x80\xA8h\xE2\x80\xA9i", ','),
              (Table{{"a"}, {"b"}, {"c"}, {"d"}, {"e"}, {"f"}, {"g"}, {"h"}, {"i"}}));
}

TEST(CSV, MarkedSeparatorOrQuoteIsOrdinaryText) {
    // A combining accent after ";" or '"' makes one character with it; a tab is a control and
    // takes no marks; a prepended sign glues the separator after it.
    EXPECT_EQ(CSV::parse("a;\xCC\x81" "b;c", ';'), (Table{{"a;\xCC\x81" "b", "c"}}));
    EXPECT_EQ(CSV::parse("\"\xCC\x81x\",y", ','), (Table{{"\"\xCC\x81x\"", "y"}}));
    EXPECT_EQ(CSV::parse("a\t\xCC\x81" "b", '\t'), (Table{{"a", "\xCC\x81" "b"}}));
    EXPECT_EQ(CSV::parse("\xD8\x80;x;y", ';'), (Table{{"\xD8\x80;x", "y"}}));
    EXPECT_EQ(CSV::detectSeparator("a;\xCC\x81" "b,c"), ',');
}

TEST(CSV, ByteOrderMarkIsDroppedBeforeDetection) {
    EXPECT_EQ(CSV::parse("\xEF\xBB\xBF" "Data;Importo\n1;2"), (Table{{"Data", "Importo"}, {"1", "2"}}));
}

TEST(CSV, DetectionCountsTheFirstLineOutsideQuotes) {
    EXPECT_EQ(CSV::detectSeparator("a;b,c"), ';');       // a tie goes to ";"
    EXPECT_EQ(CSV::detectSeparator("a\tb;c"), ';');
    EXPECT_EQ(CSV::detectSeparator("a\tb\tc,d"), '\t');  // then to the tab
    EXPECT_EQ(CSV::detectSeparator("a\tb,c"), '\t');
    EXPECT_EQ(CSV::detectSeparator("a,b,c;d"), ',');
    EXPECT_EQ(CSV::detectSeparator("Data Importo\na;b;c"), ',');
    EXPECT_EQ(CSV::detectSeparator("\"Data;valuta;x\",Importo\n;;;"), ',');
    EXPECT_EQ(CSV::detectSeparator("\"Causale\nsu due righe\";Importo"), ';');
    EXPECT_EQ(CSV::detectSeparator(""), ',');
}

TEST(CSV, GivenSeparatorIsUsedUnlessItCannotSeparate) {
    EXPECT_EQ(CSV::parse("a;b,c", ','), (Table{{"a;b", "c"}}));
    EXPECT_EQ(CSV::parse("a;b,c", '"'), (Table{{"a", "b,c"}}));
}

}  // namespace
}  // namespace vantello
