// "profiles" adds, renames, lists and removes managed profiles; "--profile" then points every
// other command at the profile's own data folder.

#include "CliRunner.hpp"
#include "core/base/Json.hpp"
#include "core/files/ProfileStore.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class ProfilesCommand : public vantello::testing::TemporaryFolderTest {
protected:
    void SetUp() override {
        if (const char* old = std::getenv("XDG_DATA_HOME")) oldDataHome_ = old;
        ::setenv("XDG_DATA_HOME", (folder / "casa").c_str(), 1);
    }
    void TearDown() override {
        if (oldDataHome_) ::setenv("XDG_DATA_HOME", oldDataHome_->c_str(), 1); else ::unsetenv("XDG_DATA_HOME");
    }
    vantello::testing::CliOutcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--data-dir", root.string()});
        return vantello::testing::runCli(arguments);
    }

    const fs::path root = folder / "dati";

private:
    std::optional<std::string> oldDataHome_;
};

TEST_F(ProfilesCommand, AddsRenamesAndListsProfiles) {
    const auto mario = run({"profiles", "add", "--first-name", "Mario", "--last-name", "Rossi", "--json"});
    ASSERT_EQ(mario.status, 0) << mario.err;
    const std::string id = Json::parse(mario.out)["id"];
    ASSERT_EQ(run({"profiles", "add", "--household", "--last-name", "Bianchi"}).status, 0);

    const auto twice = run({"profiles", "add", "--first-name", "mario", "--last-name", "rossi"});
    EXPECT_EQ(twice.status, 1);
    EXPECT_EQ(twice.err, "Esiste già una gestione con questo nome.\n");
    EXPECT_EQ(run({"profiles", "add", "--household", "--first-name", "Ugo", "--last-name", "Neri"}).status, 2);

    const auto renamed = run({"profiles", "rename", "mario rossi", "--first-name", "Maria"});
    ASSERT_EQ(renamed.status, 0) << renamed.err;
    const Json list = Json::parse(run({"profiles", "--json"}).out);
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0]["displayName"], "Famiglia Bianchi");
    EXPECT_EQ(list[1]["displayName"], "Maria Rossi");
    EXPECT_EQ(list[1]["dataFolder"], (root / "Profili" / id).string());
}

TEST_F(ProfilesCommand, ProfileOptionSelectsTheProfilesFolder) {
    const auto added = run({"profiles", "add", "--first-name", "Anna", "--last-name", "Verdi", "--json"});
    const std::string id = Json::parse(added.out)["id"];
    const auto check = vantello::testing::runCli({"--profile", "Anna Verdi", "--data-dir", root.string(), "check"});
    ASSERT_EQ(check.status, 0) << check.err;
    EXPECT_NE(check.out.find((root / "Profili" / id / "movimenti.json").string()), std::string::npos);

    const auto unknown = run({"check", "--profile", "Nessuno"});
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "Questa gestione non esiste più.\n");
}

TEST_F(ProfilesCommand, RemoveSendsTheDataToTheTrash) {
    const auto added = run({"profiles", "add", "--first-name", "Anna", "--last-name", "Verdi", "--json"});
    const std::string id = Json::parse(added.out)["id"];
    ASSERT_EQ(run({"backup", "--profile", id}).status, 0);

    const auto removed = run({"profiles", "remove", id});
    ASSERT_EQ(removed.status, 0) << removed.err;
    EXPECT_FALSE(fs::exists(root / "Profili" / id));
    EXPECT_TRUE(fs::exists(folder / "casa" / "Trash" / "files" / id / "vantello.lock"));
    EXPECT_TRUE(fs::exists(folder / "casa" / "Trash" / "info" / (id + ".trashinfo")));
    EXPECT_EQ(Json::parse(run({"profiles", "--json"}).out).size(), 0u);
    EXPECT_EQ(Json::parse(run({"backups", "--json"}).out).size(), 1u);  // backups stay
}

}  // namespace
