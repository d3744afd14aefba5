// "import" previews and merges a statement without ever rewriting an unchanged ledger; "export"
// writes the chosen movements as CSV.

#include "CliRunner.hpp"
#include "cli/Commands.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class ImportExportCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        statement = folder / "estratto.csv";
        std::ofstream(statement) << "Data;Descrizione;Importo;Note\n"
                                    "05/03/2024;POS ESSELUNGA;-12,50;\n"
                                    "06/03/2024;Stipendio;1.500,00;\n"
                                    "31/02/2024;Boh;-3;\n";
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", (folder / "dati").string()});
        return vantello::testing::runCli(arguments);
    }

    fs::path statement;
};

TEST_F(ImportExportCommand, PreviewShowsOptionsAndRowsWithoutWriting) {
    const auto result = run({"import", statement.string(), "--preview", "--json", "--description-column", "3"});
    ASSERT_EQ(result.status, 0) << result.err;
    const Json preview = Json::parse(result.out);
    EXPECT_EQ(preview["separator"], ";");
    const Json& options = preview["options"];
    EXPECT_EQ(options["dateColumn"], 0);
    EXPECT_EQ(options["amountColumn"], 2);
    EXPECT_EQ(options["descriptionColumn"], 3);  // the override wins over the guess
    EXPECT_TRUE(options["incomeColumn"].is_null());
    EXPECT_EQ(options["dateOrder"], "dayMonthYear");
    EXPECT_EQ(options["amountMode"], "signed");
    ASSERT_EQ(preview["rows"].size(), 3u);
    EXPECT_EQ(preview["rows"][0]["line"], 2);
    EXPECT_TRUE(preview["rows"][0]["problem"].is_null());
    EXPECT_EQ(preview["rows"][0]["transaction"]["amount"], "12.5");
    EXPECT_EQ(preview["rows"][0]["transaction"]["kind"], "expense");
    EXPECT_EQ(preview["rows"][2]["problem"], "Data non leggibile: «31/02/2024»");
    EXPECT_TRUE(preview["rows"][2]["transaction"].is_null());
    EXPECT_FALSE(fs::exists(folder / "dati"));

    EXPECT_EQ(run({"import", statement.string(), "--preview", "--date-order", "giorno"}).status, 2);
    EXPECT_EQ(run({"import", statement.string(), "--preview", "--amount-column", "-1"}).status, 2);
}

TEST_F(ImportExportCommand, SecondImportAddsNothingAndLeavesTheFileAlone) {
    const auto first = run({"import", statement.string(), "--account", "principale", "--json"});
    ASSERT_EQ(first.status, 0) << first.err;
    const Json counts = Json::parse(first.out);
    EXPECT_EQ(counts["added"], 2);
    EXPECT_EQ(counts["problems"], Json::parse(R"([{"line":4,"problem":"Data non leggibile: «31/02/2024»"}])"));
    const fs::path ledgerFile = folder / "dati" / "movimenti.json";
    const std::string bytes = readWholeFile(ledgerFile);
    const auto written = fs::last_write_time(ledgerFile);

    const auto second = run({"import", statement.string(), "--account", "principale", "--transfers", "--json"});
    ASSERT_EQ(second.status, 0) << second.err;
    EXPECT_EQ(Json::parse(second.out)["duplicates"], 2);
    EXPECT_EQ(Json::parse(second.out)["added"], 0);
    EXPECT_EQ(readWholeFile(ledgerFile), bytes);
    EXPECT_EQ(fs::last_write_time(ledgerFile), written);
}

TEST_F(ImportExportCommand, BadInputFailsWithoutWriting) {
    const auto unknown = run({"import", statement.string(), "--account", "conto-inesistente"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_NE(unknown.err.find("conto-inesistente"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "dati" / "movimenti.json"));

    std::ofstream(folder / "vuoto.csv") << "Data;Importo\n\n";
    const auto empty = run({"import", (folder / "vuoto.csv").string(), "--account", "principale"});
    EXPECT_EQ(empty.status, 1);
    EXPECT_EQ(empty.err, "«vuoto.csv» non contiene righe da importare.\n");
    EXPECT_EQ(run({"import", statement.string()}).status, 2);  // neither --preview nor --account
    EXPECT_FALSE(fs::exists(folder / "dati" / "movimenti.json"));
}

TEST_F(ImportExportCommand, ExportWritesTheMonthToAFile) {
    ASSERT_EQ(run({"import", statement.string(), "--account", "principale"}).status, 0);
    const fs::path output = folder / "marzo.csv";
    const auto result = run({"export", "--month", "2024-03", "--locale", "en", "--output", output.string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(result.out.empty());
    EXPECT_EQ(readWholeFile(output),
              "Data,Tipo,Categoria,Importo,Nota\r\n"
              "2024-03-05,Uscita,Altre uscite,12.50,POS ESSELUNGA\r\n"
              "2024-03-06,Entrata,Altre entrate,1500.00,Stipendio");
    EXPECT_EQ(run({"export", "--month", "2024-04"}).out, "Data;Tipo;Categoria;Importo;Nota");
    EXPECT_EQ(run({"export", "--month", "2024-3"}).status, 2);
    EXPECT_EQ(run({"export", "--all", "--month", "2024-03"}).status, 2);
}

}  // namespace
