// "attach" copies a file in and records it on the movement; "detach" takes it off and removes
// the copy; a movement that does not exist leaves no file behind.

#include "CliRunner.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class AttachCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        LedgerData ledger;
        ledger.transactions = std::vector{movement};
        LedgerStore(data / "movimenti.json").save(ledger);
        writeFileAtomically(folder / "Scontrino.JPG", "foto");
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", data.string()});
        return vantello::testing::runCli(arguments);
    }
    std::vector<Attachment> attachments() const {
        return Ledger(LedgerStore(data / "movimenti.json").load()).transaction(movement.id)->attachments;
    }

    const Transaction movement = vantello::testing::expense("10", vantello::testing::at(2025, 3, 1));
    const fs::path data = folder / "dati";
};

TEST_F(AttachCommand, AttachesAndDetachesAFile) {
    const auto attached = run({"attach", movement.id.text(), (folder / "Scontrino.JPG").string(), "--json"});
    ASSERT_EQ(attached.status, 0) << attached.err;
    const Attachment attachment = Json::parse(attached.out).get<Attachment>();
    EXPECT_EQ(attachments(), std::vector{attachment});
    EXPECT_EQ(readWholeFile(data / "Allegati" / attachment.storedName), "foto");

    const auto detached = run({"detach", movement.id.text(), attachment.id.text()});
    ASSERT_EQ(detached.status, 0) << detached.err;
    EXPECT_TRUE(attachments().empty());
    EXPECT_FALSE(fs::exists(data / "Allegati" / attachment.storedName));
    EXPECT_EQ(run({"detach", movement.id.text(), attachment.id.text()}).err, "L'allegato non esiste più.\n");
}

TEST_F(AttachCommand, UnknownMovementLeavesNoCopy) {
    const auto refused = run({"attach", Uuid::random().text(), (folder / "Scontrino.JPG").string()});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "Il movimento non esiste più.\n");
    EXPECT_TRUE(fs::is_empty(data / "Allegati"));
    EXPECT_EQ(run({"attach", "non-un-id", "x"}).status, 2);
}

TEST_F(AttachCommand, ProfileOptionAttachesInTheProfilesFolder) {
    const auto added = run({"profiles", "add", "--first-name", "Anna", "--last-name", "Verdi", "--json"});
    const fs::path profileData = data / "Profili" / std::string(Json::parse(added.out)["id"]);
    fs::copy_file(data / "movimenti.json", profileData / "movimenti.json");

    const auto attached = run({"--profile", "anna verdi", "attach", movement.id.text(),
                               (folder / "Scontrino.JPG").string(), "--json"});
    ASSERT_EQ(attached.status, 0) << attached.err;
    const std::string stored = Json::parse(attached.out)["storedName"];
    EXPECT_TRUE(fs::exists(profileData / "Allegati" / stored));
    EXPECT_TRUE(attachments().empty());
}

}  // namespace
