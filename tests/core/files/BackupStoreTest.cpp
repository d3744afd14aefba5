// Backups are complete dated copies, pruned per owner; a restore either puts a backup back
// completely or leaves the data folder exactly as it was, even when it is interrupted.

#include "core/files/BackupStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/files/RestoreSwap.hpp"
#include "support/Dates.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace vantello;
using vantello::testing::at;
using vantello::testing::rome;
namespace fs = std::filesystem;

// Every file and folder under `root` with its content, to compare whole folders.
std::map<std::string, std::string> snapshot(const fs::path& root) {
    std::map<std::string, std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string name = fs::relative(entry.path(), root).string();
        found[name] = entry.is_directory() ? "<cartella>" : readWholeFile(entry.path());
    }
    return found;
}

bool hasRestoreLeftovers(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().string().starts_with(".ripristino-")) return true;
    }
    return false;
}

class BackupStoreTest : public vantello::testing::TemporaryFolderTest {
protected:
    void fill(const fs::path& data, const std::string& ledger, const std::map<std::string, std::string>& files) const {
        fs::create_directories(data / "Allegati");
        writeFileAtomically(data / "movimenti.json", ledger);
        for (const auto& [name, content] : files) writeFileAtomically(data / "Allegati" / name, content);
    }

    const fs::path data = folder / "dati";
    const BackupStore store{folder / "Backup"};
    const BackupOwner anna{Uuid::random(), "Anna: Bianchi/", ManagedProfile::Kind::person};
};

TEST_F(BackupStoreTest, KeepsTheNewestTenAndLeavesOtherFoldersAlone) {
    fill(data, "{}", {{"a.pdf", "A"}});
    fs::create_directories(store.folder / "Documenti");
    fs::create_directories(store.folder / "Vantello 2025-13-01 10.00.00");
    for (int day = 1; day <= 11; ++day) (void)store.makeBackup(data, std::nullopt, 10, at(2025, 3, day, 10), rome());

    const auto backups = store.list(rome());
    ASSERT_EQ(backups.size(), 10u);
    EXPECT_EQ(backups.front().name(), "Vantello 2025-03-11 10.00.00");
    EXPECT_EQ(backups.back().date, at(2025, 3, 2, 10));
    EXPECT_FALSE(fs::exists(store.folder / "Vantello 2025-03-01 10.00.00"));
    EXPECT_TRUE(fs::exists(store.folder / "Documenti"));
    EXPECT_TRUE(fs::exists(store.folder / "Vantello 2025-13-01 10.00.00"));
    EXPECT_EQ(snapshot(backups.front().folder), snapshot(data));

    // A backup cut short a day ago is cleared by the next one; one being made now is not.
    const fs::path abandoned = store.folder / ".Vantello ABANDONED";
    const fs::path underWay = store.folder / ".Vantello UNDER-WAY";
    fs::create_directories(abandoned);
    fs::create_directories(underWay);
    fs::last_write_time(abandoned, fs::file_time_type::clock::now() - std::chrono::hours(25));

    // A profile's backups neither count against nor prune the user's own.
    (void)store.makeBackup(data, anna, 1, at(2025, 3, 12, 10), rome());
    EXPECT_EQ(store.list(rome()).size(), 11u);
    EXPECT_FALSE(fs::exists(abandoned));
    EXPECT_TRUE(fs::exists(underWay));
}

TEST_F(BackupStoreTest, NamesTheOwnerAndNeverCollides) {
    fs::create_directories(data);
    writeFileAtomically(data / "movimenti.json", "{}");
    const BackupInfo first = store.makeBackup(data, anna, 10, at(2025, 3, 1, 9, 5, 7), rome());
    const BackupInfo second = store.makeBackup(data, anna, 10, at(2025, 3, 1, 9, 5, 7), rome());
    EXPECT_EQ(first.name(), "Vantello 2025-03-01 09.05.07 Anna Bianchi");
    EXPECT_EQ(second.name(), "Vantello 2025-03-01 09.05.07 Anna Bianchi (2)");
    EXPECT_FALSE(fs::exists(first.folder / "Allegati"));
    EXPECT_EQ(JsonCoding::parse(readWholeFile(first.folder / "profilo.json")).get<BackupOwner>(), anna);

    const auto backups = store.list(rome());
    ASSERT_EQ(backups.size(), 2u);
    EXPECT_EQ(backups[1].profileID, anna.profileID);
    EXPECT_EQ(backups[1].profileName, anna.name);
    EXPECT_TRUE(store.isThereABackupOfToday(anna.profileID, at(2025, 3, 1, 23, 59), rome()));
    EXPECT_FALSE(store.isThereABackupOfToday(anna.profileID, at(2025, 3, 2, 0, 0), rome()));
    EXPECT_FALSE(store.isThereABackupOfToday(std::nullopt, at(2025, 3, 1, 12), rome()));
}

TEST_F(BackupStoreTest, RestorePutsTheBackupBackAfterASafetyBackup) {
    fill(data, "{\"prima\": 1}", {{"a.pdf", "A"}});
    const BackupInfo backup = store.makeBackup(data, std::nullopt, 10, at(2025, 3, 1), rome());
    const auto backedUp = snapshot(data);
    fill(data, "{\"dopo\": 2}", {{"b.pdf", "B"}});
    const auto changed = snapshot(data);

    EXPECT_THROW((void)restoreWithSafetyBackup(store, backup, data, anna, 10, at(2025, 3, 2), rome()), BackupError);
    const BackupInfo before = restoreWithSafetyBackup(store, backup, data, std::nullopt, 10, at(2025, 3, 2), rome());
    EXPECT_EQ(snapshot(data), backedUp);
    EXPECT_EQ(snapshot(before.folder), changed);
    EXPECT_FALSE(hasRestoreLeftovers(data));
}

TEST_F(BackupStoreTest, FailedRestoreLeavesTheDataAsTheyWere) {
    fill(data, "{\"prima\": 1}", {{"a.pdf", "A"}, {"b.pdf", "B"}, {"c.pdf", "C"}});
    const BackupInfo backup = store.makeBackup(data, std::nullopt, 10, at(2025, 3, 1), rome());
    fill(data, "{\"dopo\": 2}", {{"d.pdf", "D"}});
    const auto live = snapshot(data);

    // One attachment of the backup cannot be read. Permissions do not stop root, a pipe does.
    const fs::path broken = backup.folder / "Allegati" / "b.pdf";
    if (::geteuid() == 0) {
        fs::remove(broken);
        ASSERT_EQ(::mkfifo(broken.c_str(), 0644), 0);
    } else {
        fs::permissions(broken, fs::perms::none);
    }
    EXPECT_THROW(store.restore(backup, data), FileError);
    EXPECT_EQ(snapshot(data), live);
    EXPECT_FALSE(hasRestoreLeftovers(data));
}

TEST_F(BackupStoreTest, InterruptedRestoreFinishesFromEveryStep) {
    fill(folder / "backup", "{\"prima\": 1}", {{"a.pdf", "A"}});
    const auto restored = snapshot(folder / "backup");
    for (std::size_t done = 0; done <= RestoreSwap::steps.size(); ++done) {
        SCOPED_TRACE(done);
        fs::remove_all(data);
        fill(data, "{\"dopo\": 2}", {{"d.pdf", "D"}});
        const RestoreSwap swap(data);
        swap.prepare(folder / "backup");
        swap.writeJournal();
        for (std::size_t step = 0; step < done; ++step) swap.perform(RestoreSwap::steps[step]);

        finishInterruptedRestore(data);
        EXPECT_EQ(snapshot(data), restored);
        EXPECT_FALSE(hasRestoreLeftovers(data));
    }
}

TEST_F(BackupStoreTest, RestoreInterruptedBeforeItsJournalIsDropped) {
    fill(data, "{\"dopo\": 2}", {{"d.pdf", "D"}});
    const auto live = snapshot(data);
    fill(folder / "backup", "{\"prima\": 1}", {{"a.pdf", "A"}});
    RestoreSwap(data).prepare(folder / "backup");
    ASSERT_TRUE(hasRestoreLeftovers(data));

    finishInterruptedRestore(data);
    EXPECT_EQ(snapshot(data), live);
    EXPECT_FALSE(hasRestoreLeftovers(data));
}

}  // namespace
