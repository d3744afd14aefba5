#include "core/statements/StatementImport.hpp"

#include "core/statements/StatementFile.hpp"
#include "support/Dates.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace vantello {
namespace {

using testing::rome;

constexpr std::string_view statementText =
    "Data;Descrizione;Importo;Note\n"
    "05/03/2024;POS ESSELUNGA;-12,50;carta\n"
    "31/02/2024;Boh;-3;\n"
    "06/03/2024;Stipendio;1.500,00;\n";

StatementImport opened(std::string_view text, const CSVImportOverrides& overrides = {}) {
    return openStatementText(text, "estratto.csv", overrides, builtInCategories(), rome());
}

// Identifiers are drawn at random for every reading.
std::vector<CSVImportRow> withoutIDs(std::vector<CSVImportRow> rows) {
    for (CSVImportRow& row : rows) {
        if (row.transaction) row.transaction->id = {};
    }
    return rows;
}

TEST(StatementImport, ChoicesWinOverTheGuessAndReachTheRows) {
    CSVImportOverrides overrides;
    overrides.descriptionColumn = 3;
    const auto statement = opened(statementText, overrides);
    EXPECT_EQ(statement.guessedOptions.descriptionColumn, 1);
    EXPECT_EQ(statement.options.descriptionColumn, 3);
    ASSERT_EQ(statement.rows.size(), 3u);
    EXPECT_EQ(statement.rows[0].transaction->note, "carta");

    const auto transactions = statement.transactions();
    ASSERT_EQ(transactions.size(), 2u);
    EXPECT_EQ(transactions[1].amount, Decimal(1500));
    const auto problems = statement.problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0], &statement.rows[1]);

    // Without a header the column names become a row that cannot be read; a separator that
    // does not occur leaves one column.
    overrides = {};
    overrides.noHeader = true;
    overrides.separator = ',';
    const auto unseparated = opened(statementText, overrides);
    EXPECT_TRUE(unseparated.guessedOptions.hasHeader);
    EXPECT_FALSE(unseparated.options.hasHeader);
    EXPECT_EQ(unseparated.separator, ',');
    EXPECT_EQ(unseparated.table.front(), CSV::Row{"Data;Descrizione;Importo;Note"});
    EXPECT_EQ(unseparated.rows.size(), 4u);
    EXPECT_TRUE(unseparated.transactions().empty());
}

TEST(StatementImport, FileAndTextGiveTheSameStatement) {
    const testing::TemporaryFolder temporary;
    const auto file = temporary.path() / "estratto.csv";
    // Windows-1252, as many banks still write it: "Caffè".
    std::ofstream(file, std::ios::binary) << "Data,Descrizione,Importo\r\n05/03/2024,Caff\xE8,\"-1,20\"\r\n";
    CSVImportOverrides overrides;
    overrides.dateOrder = CSVImportOptions::DateOrder::monthDayYear;

    const auto fromFile = openStatement(file, overrides, builtInCategories(), rome());
    const auto fromText = opened(readStatementText(file), overrides);
    EXPECT_EQ(fromFile.separator, fromText.separator);
    EXPECT_EQ(fromFile.table, fromText.table);
    EXPECT_EQ(fromFile.guessedOptions, fromText.guessedOptions);
    EXPECT_EQ(fromFile.options, fromText.options);
    EXPECT_EQ(withoutIDs(fromFile.rows), withoutIDs(fromText.rows));
    ASSERT_EQ(fromFile.rows.size(), 1u);
    EXPECT_EQ(fromFile.rows[0].transaction->note, "Caffè");
    EXPECT_EQ(rome().civilDate(fromFile.rows[0].transaction->date), (CivilDate{2024, 5, 3}));
}

TEST(StatementImport, StatementWithoutDataRowsNamesTheFile) {
    const testing::TemporaryFolder temporary;
    const auto file = temporary.path() / "vuoto.csv";
    std::ofstream(file) << "Data;Descrizione;Importo\n";
    const std::string expected = statementWithoutRowsMessage(file);
    try {
        (void)openStatement(file, {}, builtInCategories(), rome());
        FAIL() << "a statement without data rows was opened";
    } catch (const UserError& error) {
        EXPECT_EQ(error.message(), expected);
    }
    EXPECT_THROW((void)opened(""), UserError);
    EXPECT_THROW((void)openStatement(temporary.path() / "assente.csv", {}, builtInCategories(), rome()),
                 StatementFileError);
}

}  // namespace
}  // namespace vantello
