// "import" reads an OFX statement the way it reads a CSV one: the preview names the format, and
// a second import of the same statement adds nothing.

#include "CliRunner.hpp"
#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace {

using namespace vantello;

class ImportFormatsCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        // The name says CSV: only the content counts.
        statement = (folder / "estratto.csv").string();
        std::ofstream(statement) << "OFXHEADER:100\nDATA:OFXSGML\n\n<OFX><BANKMSGSRSV1><STMTTRNRS><STMTRS>"
                                    "<CURDEF>EUR<BANKACCTFROM><ACCTID>123</BANKACCTFROM><BANKTRANLIST>\n"
                                    "<STMTTRN><TRNTYPE>POS<DTPOSTED>20240305<TRNAMT>-2.20<FITID>T1<NAME>Tram"
                                    "</STMTTRN>\n"
                                    "<STMTTRN><TRNTYPE>POS<DTPOSTED>20240305<TRNAMT>-2.20<FITID>T2<NAME>Tram"
                                    "</STMTTRN>\n"
                                    "</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n";
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", (folder / "dati").string()});
        return vantello::testing::runCli(arguments);
    }

    std::string statement;
};

TEST_F(ImportFormatsCommand, OFXPreviewAndImportWithRepeatedRows) {
    const auto preview = run({"import", statement, "--preview", "--json"});
    ASSERT_EQ(preview.status, 0) << preview.err;
    const Json shown = Json::parse(preview.out);
    EXPECT_EQ(shown["format"], "ofx");
    ASSERT_EQ(shown["rows"].size(), 2u);
    EXPECT_EQ(shown["rows"][0]["transaction"]["amount"], "2.2");
    EXPECT_NE(run({"import", statement, "--preview"}).out.find("Formato: ofx"), std::string::npos);
    EXPECT_EQ(run({"import", statement, "--preview", "--count-repeated"}).status, 2);

    const auto first = run({"import", statement, "--account", "principale", "--json"});
    ASSERT_EQ(first.status, 0) << first.err;
    const Json once = Json::parse(first.out);
    EXPECT_EQ(once["added"], 1);  // two equal tickets are one by default
    EXPECT_EQ(once["duplicates"], 1);
    EXPECT_EQ(once["repeatedInStatement"], 1);

    const Json counted = Json::parse(run({"import", statement, "--account", "principale", "--count-repeated",
                                          "--json"}).out);
    EXPECT_EQ(counted["added"], 1);  // the second ticket, by its own bank id
    EXPECT_EQ(counted["duplicates"], 1);
    const Json again = Json::parse(run({"import", statement, "--account", "principale", "--count-repeated",
                                        "--json"}).out);
    EXPECT_EQ(again["added"], 0);
    EXPECT_EQ(again["saved"], false);
}

}  // namespace
