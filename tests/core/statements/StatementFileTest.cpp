#include "core/statements/StatementFile.hpp"

#include "core/statements/CSV.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <sys/stat.h>

namespace vantello {
namespace {

class StatementFile : public testing::TemporaryFolderTest {
protected:
    std::string readBack(std::string_view bytes) {
        const auto path = folder / "estratto.csv";
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return readStatementText(path);
    }
};

TEST_F(StatementFile, EightBitTextReadsAsWindows1252OrLatin9ForTheEuro) {
    EXPECT_EQ(readBack("Data;Descrizione;Importo\r\n05/03/2024;Caff\xE8 Societ\xE0 \x93" "Bar\x94;-1,20\r\n"),
              "Data;Descrizione;Importo\r\n05/03/2024;Caffè Società “Bar”;-1,20\r\n");
    EXPECT_EQ(readBack("Caff\xE8;-12,50 \xA4\n"), "Caffè;-12,50 €\n");
    EXPECT_EQ(readBack("Caff\xE8;\xA4" "12\n"), "Caffè;€12\n");
    EXPECT_EQ(readBack("Prezzo \xA4 unitario\n"), "Prezzo ¤ unitario\n");
    // Windows-1252's own euro sign says which one it is.
    EXPECT_EQ(readBack("\x80 5;\xA4 5\n"), "€ 5;¤ 5\n");
}

TEST_F(StatementFile, UnicodeWithByteOrderMarks) {
    const std::string expected = "Data;Importo\n05/03/2024;€ 5,00\n";
    EXPECT_EQ(readBack("\xEF\xBB\xBF" + expected), expected);
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    std::string bomless;
    for (const char16_t unit : u"Data;Importo\n05/03/2024;€ 5,00\n") {
        if (unit == 0) break;
        little += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        big += {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
        bomless += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    }
    EXPECT_EQ(readBack(little), expected);
    EXPECT_EQ(readBack(big), expected);
    EXPECT_EQ(readBack(bomless), expected);
    // A mark repeated by a second editor, written in the file's own encoding, goes as well.
    EXPECT_EQ(readBack("\xEF\xBB\xBF\xEF\xBB\xBF" + expected), expected);
    EXPECT_EQ(readBack("\xFF\xFE" + little), expected);
    EXPECT_EQ(readBack("\xFE\xFF" + big), expected);
}

TEST_F(StatementFile, PaddingAfterTheLastLineIsDropped) {
    EXPECT_EQ(readBack(std::string("a;b\r\n  \0\0\x1A\0", 11)), "a;b\r\n");
    // Blanks of the last cell stay; only the filler after them goes.
    EXPECT_EQ(readBack(std::string("a;b  \0\0 ", 8)), "a;b  ");
    EXPECT_EQ(CSV::parse(readBack(std::string("Data;Importo\n05/03/2024;1\n\0\0\0\0", 30))).size(), 2U);
}

TEST_F(StatementFile, UnreadableFileIsNamedWithoutItsFolder) {
    const auto missing = folder / "mancante.csv";
    try {
        (void)readStatementText(missing);
        FAIL() << "a missing file was read";
    } catch (const StatementFileError& error) {
        EXPECT_STREQ(error.what(), "Non riesco a leggere «mancante.csv»…");
    }
    EXPECT_THROW((void)readStatementText(folder), StatementFileError);
    // A FIFO would keep the import waiting for a writer.
    const auto fifo = folder / "estratto.csv";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    try {
        (void)readStatementText(fifo);
        FAIL() << "a FIFO was read";
    } catch (const StatementFileError& error) {
        EXPECT_STREQ(error.what(), "«estratto.csv» non è un file normale.");
    }
    EXPECT_EQ(statementWithoutRowsMessage(folder / "vuoto.csv"), "«vuoto.csv» non contiene righe da importare.");
}

}  // namespace
}  // namespace vantello
