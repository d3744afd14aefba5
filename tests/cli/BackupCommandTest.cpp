// "backup", "backups" and "restore": a backup can be listed and put back, and a restore keeps
// the state before it in a new backup.

#include "CliRunner.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class BackupCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        fs::create_directories(data / "Allegati");
        writeFileAtomically(data / "movimenti.json", "{\"prima\": 1}");
        writeFileAtomically(data / "Allegati" / "a.pdf", "A");
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", data.string(), "--folder", (folder / "copie").string()});
        return vantello::testing::runCli(arguments);
    }

    const fs::path data = folder / "dati";
};

TEST_F(BackupCommand, RestoreBringsBackABackupAndKeepsTheStateBefore) {
    const auto made = run({"backup", "--json"});
    ASSERT_EQ(made.status, 0) << made.err;
    const std::string name = Json::parse(made.out)["name"];
    EXPECT_TRUE(name.starts_with("Vantello "));
    EXPECT_EQ(readWholeFile(folder / "copie" / name / "Allegati" / "a.pdf"), "A");

    writeFileAtomically(data / "movimenti.json", "{\"dopo\": 2}");
    fs::remove(data / "Allegati" / "a.pdf");
    const auto restored = run({"restore", name, "--json"});
    ASSERT_EQ(restored.status, 0) << restored.err;
    EXPECT_EQ(readWholeFile(data / "movimenti.json"), "{\"prima\": 1}");
    EXPECT_EQ(readWholeFile(data / "Allegati" / "a.pdf"), "A");

    const std::string before = Json::parse(restored.out)["backupBefore"]["name"];
    EXPECT_EQ(readWholeFile(folder / "copie" / before / "movimenti.json"), "{\"dopo\": 2}");
    const Json listed = Json::parse(run({"backups", "--json"}).out);
    EXPECT_EQ(listed.size(), 2u);
}

TEST_F(BackupCommand, RefusesUnknownBackupsAndOtherOwners) {
    const auto unknown = run({"restore", "Vantello 2020-01-01 10.00.00"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_NE(unknown.err.find("Questo backup non esiste più."), std::string::npos);
    EXPECT_EQ(run({"restore"}).status, 2);

    ASSERT_EQ(vantello::testing::runCli({"profiles", "add", "--household", "--last-name", "Rossi", "--data-dir",
                                         data.string()})
                  .status,
              0);
    const std::string name = Json::parse(run({"backup", "--json", "--profile", "Famiglia Rossi"}).out)["name"];
    EXPECT_EQ(name.substr(29), "Famiglia Rossi");
    const auto other = run({"restore", name});
    EXPECT_EQ(other.status, 1);
    EXPECT_NE(other.err.find("Questo backup è di un'altra gestione."), std::string::npos);
    EXPECT_EQ(readWholeFile(data / "movimenti.json"), "{\"prima\": 1}");
}

}  // namespace
