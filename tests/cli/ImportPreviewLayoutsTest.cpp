// "import --preview --json" on statements laid out as Italian and other European banks and
// payment services export them: the options guessed, the rule behind each, and what every row
// became, compared with the golden preview kept beside each statement.

#include "CliRunner.hpp"
#include "core/base/Json.hpp"
#include "support/GoldenFile.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class ImportPreviewLayouts : public vantello::testing::TemporaryFolderTest,
                             public ::testing::WithParamInterface<std::string> {
protected:
    // Identifiers are drawn at random on every reading, so they are left out.
    Json preview(const std::string& caseName) const {
        const fs::path statement = fs::path(VANTELLO_TEST_DATA_DIR) / "import" / "layouts" / (caseName + ".csv");
        const auto result = vantello::testing::runCli(
            {"import", statement.string(), "--preview", "--json", "--data-dir", (folder / "dati").string()});
        EXPECT_EQ(result.status, 0) << result.err;
        Json json = Json::parse(result.out);
        for (Json& row : json["rows"]) {
            if (row["transaction"].is_object()) row["transaction"].erase("id");
        }
        return json;
    }
};

TEST_P(ImportPreviewLayouts, PreviewMatchesGolden) {
    EXPECT_TRUE(vantello::testing::matchesGolden(preview(GetParam()), "import/layouts", GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ImportPreviewLayouts,
    ::testing::Values(
        // A title without any separator above the column names.
        "title-above-header",
        // A lone quote, the account number and balances above columns that name money in and
        // out but not the date.
        "lone-quote-balances",
        // Money out and money in named in English.
        "paid-out-paid-in",
        // Gross, fee and net, and a shipping cost named "Importo …"; a pending payment.
        "paypal-gross-fee-net",
        // Rows not booked, balance lines and a footer among the movements.
        "status-and-balances", "state-pending-declined",
        // Column names in German (with the S/H side), French, Spanish and Dutch (Af/Bij).
        "german-soll-haben", "french-debit-credit", "spanish-importe", "dutch-af-bij"),
    [](const ::testing::TestParamInfo<std::string>& info) {
        std::string name = info.param;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

}  // namespace
