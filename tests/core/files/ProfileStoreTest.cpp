// Managed profiles are validated in a fixed order, kept sorted in "profili.json" and found by id
// or name; removing one sends its data folder to the Trash.

#include "core/files/ProfileStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Text.hpp"
#include "support/Dates.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace vantello;
using vantello::testing::at;
using Kind = ManagedProfile::Kind;
namespace fs = std::filesystem;

class ProfileStoreTest : public vantello::testing::TemporaryFolderTest {
protected:
    ProfileErrorCode refusal(Kind kind, const std::string& first, const std::string& last) const {
        try {
            (void)store.add(kind, first, last, at(2025, 3, 1));
        } catch (const ProfileError& error) {
            return error.code();
        }
        ADD_FAILURE() << "accepted " << first << " " << last;
        return ProfileErrorCode::notFound;
    }

    const ProfileStore store{folder};
};

TEST_F(ProfileStoreTest, ValidatesNamesInOrder) {
    EXPECT_EQ(refusal(Kind::person, "  ", ""), ProfileErrorCode::missingFirstName);
    EXPECT_EQ(refusal(Kind::household, "", " \n"), ProfileErrorCode::missingLastName);
    EXPECT_EQ(refusal(Kind::person, "Anna", std::string(61, 'x')), ProfileErrorCode::nameTooLong);
    EXPECT_EQ(store.add(Kind::household, "", std::string(60, 'x'), at(2025, 3, 1)).lastName, std::string(60, 'x'));

    const ManagedProfile mario = store.add(Kind::person, " Mario ", "Rossi\n", at(2025, 3, 1));
    EXPECT_EQ(mario.displayName(), "Mario Rossi");
    EXPECT_EQ(refusal(Kind::person, "mario", "ROSSÌ"), ProfileErrorCode::duplicate);
    EXPECT_STREQ(ProfileError(ProfileErrorCode::duplicate).what(), "Esiste già una gestione con questo nome.");
    EXPECT_EQ(store.load().profiles.size(), 2u);
}

TEST_F(ProfileStoreTest, KeepsASortedListAndAFolderPerProfile) {
    const ManagedProfile zeno = store.add(Kind::person, "Zeno", "Bianchi", at(2025, 3, 1));
    const ManagedProfile rossi = store.add(Kind::household, "", "Rossi", at(2025, 3, 2));
    const ManagedProfile anna = store.add(Kind::person, "Anna", "Verdi", at(2025, 3, 3));
    EXPECT_EQ(store.load().profiles, (std::vector{anna, rossi, zeno}));
    EXPECT_EQ(store.dataFolder(rossi.id), folder / "Profili" / rossi.id.text());
    EXPECT_TRUE(fs::is_directory(store.dataFolder(rossi.id)));
    EXPECT_EQ(JsonCoding::parse(readWholeFile(folder / "profili.json"))["version"], 1);

    EXPECT_EQ(store.find(Text::lowercased(rossi.id.text())), rossi);
    EXPECT_EQ(store.find("famiglia ROSSI"), rossi);
    EXPECT_THROW((void)store.find("Famiglia Neri"), ProfileError);

    ManagedProfile renamed = zeno;
    renamed.firstName = "Anna";
    renamed.lastName = "Verdi";
    EXPECT_THROW(store.update(renamed), ProfileError);
    renamed.lastName = "Neri";
    store.update(renamed);
    EXPECT_EQ(store.find(zeno.id.text()).displayName(), "Anna Neri");
    renamed.id = Uuid::random();
    EXPECT_THROW(store.update(renamed), ProfileError);
}

TEST_F(ProfileStoreTest, RemovingMovesTheFolderToTheTrashFirst) {
    const ManagedProfile anna = store.add(Kind::person, "Anna", "Verdi", at(2025, 3, 1));
    const ManagedProfile gone = store.add(Kind::person, "Gino", "Neri", at(2025, 3, 1));
    const auto refuse = [](const fs::path& item) { throw FileError::moving(item, EACCES); };
    EXPECT_THROW(store.remove(anna.id, refuse), FileError);
    EXPECT_EQ(store.load().profiles.size(), 2u);

    std::vector<fs::path> trashed;
    store.remove(anna.id, [&](const fs::path& item) { trashed.push_back(item); });
    EXPECT_EQ(trashed, std::vector{store.dataFolder(anna.id)});

    fs::remove_all(store.dataFolder(gone.id));  // deleted by hand
    store.remove(gone.id, [&](const fs::path& item) { trashed.push_back(item); });
    EXPECT_EQ(trashed.size(), 1u);
    EXPECT_TRUE(store.load().profiles.empty());
    EXPECT_THROW(store.remove(gone.id, refuse), ProfileError);
}

}  // namespace
