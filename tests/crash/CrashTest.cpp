// Real writer processes killed at random moments: whatever the moment, the ledger on disk is
// whole, and it is the last state the writer acknowledged or a later one.

#include "crash/ChildProcess.hpp"
#include "crash/LedgerStates.hpp"

#include "core/base/Calendar.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/BackupStore.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "support/Dates.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <random>
#include <set>
#include <thread>

#include <sys/wait.h>

namespace vantello {
namespace {

using namespace std::chrono_literals;
using testing::ChildProcess;
using testing::TemporaryFolderTest;

namespace fs = std::filesystem;

const std::string crashWriter = VANTELLO_CRASH_WRITER_PATH;
constexpr int kills = 100;

long long lastNumberAfter(const std::vector<std::string>& lines, const std::string& word, long long otherwise) {
    long long last = otherwise;
    for (const auto& line : lines) {
        if (line.rfind(word + " ", 0) == 0) last = std::stoll(line.substr(word.size() + 1));
    }
    return last;
}

// Names in `folder` that an interrupted write leaves behind.
std::vector<std::string> leftovers(const fs::path& folder) {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.find(".tmp-") != std::string::npos || name.rfind(".ripristino-", 0) == 0) found.push_back(name);
    }
    return found;
}

std::set<std::string> filesIn(const fs::path& folder) {
    std::set<std::string> names;
    if (!fs::exists(folder)) return names;
    for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename().string());
    return names;
}

class CrashTest : public TemporaryFolderTest {
protected:
    fs::path data = folder / "dati";
    LedgerStore store{data / LedgerStore::fileName};
    std::mt19937 random{20261123};

    void killAfterRandomWait(ChildProcess& child, int longestMilliseconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(
            std::uniform_int_distribution<int>(0, longestMilliseconds)(random)));
        child.signal(SIGKILL);
        child.wait();
    }

    // A write's temporary file lives for a few milliseconds of each save: to land inside one
    // for sure, watch for it.
    void killWhileWriting(ChildProcess& child) {
        const auto giveUp = std::chrono::steady_clock::now() + 10s;
        while (std::chrono::steady_clock::now() < giveUp && (!fs::exists(data) || leftovers(data).empty())) {
        }
        child.signal(SIGKILL);
        child.wait();
    }
};

TEST_F(CrashTest, KilledDuringSavesTheLedgerIsWholeAndNoOlderThanAcknowledged) {
    long long acknowledged = 0;
    int killedMidWrite = 0;
    for (int kill = 0; kill < kills; ++kill) {
        ChildProcess writer(crashWriter, {"saves", data.string()});
        if (kill % 2 == 0) {
            killAfterRandomWait(writer, 400);
        } else {
            killWhileWriting(writer);
        }
        acknowledged = lastNumberAfter(writer.availableLines(), "scritto", acknowledged);
        if (fs::exists(data) && !leftovers(data).empty()) ++killedMidWrite;

        long long state = 0;
        ASSERT_NO_THROW(state = crash::stateOf(store.load())) << "after kill " << kill;
        ASSERT_GE(state, acknowledged) << "after kill " << kill;
        acknowledged = state;
    }
    EXPECT_GE(killedMidWrite, kills / 4) << "too few kills landed inside a write";

    // The next writer starts over what the killed ones left, clears it and writes again; asked
    // to end while it keeps saving, it ends, with its last acknowledged state on disk.
    ChildProcess writer(crashWriter, {"saves", data.string()});
    const auto line = writer.readLine(20s);
    ASSERT_TRUE(line.has_value());
    EXPECT_EQ(line->rfind("scritto ", 0), 0u) << *line;
    writer.signal(SIGTERM);
    const int status = writer.wait();
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_GE(crash::stateOf(store.load()), lastNumberAfter(writer.availableLines(), "scritto", 0));
    { const DataFolderLock lock(data); }
    EXPECT_EQ(leftovers(data), std::vector<std::string>{});
}

TEST_F(CrashTest, TerminatedRightAfterAnEditTheEditIsWritten) {
    ChildProcess writer(crashWriter, {"one-edit", data.string()});
    ASSERT_EQ(writer.readLine(20s), std::optional<std::string>("consegnato 1"));
    writer.signal(SIGTERM);
    const int status = writer.wait();

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << status;
    EXPECT_EQ(crash::stateOf(store.load()), 1);
}

TEST_F(CrashTest, KilledDuringRestoresTheDataIsOneWholeBackup) {
    // Two backups, each a ledger state with its own attachments.
    const BackupStore backups{folder / "Backup"};
    const std::map<long long, std::set<std::string>> attachmentsOf{{1, {"A1.PDF", "A2.PDF"}}, {2, {"B1.JPG"}}};
    for (const auto& [state, names] : attachmentsOf) {
        fs::remove_all(data);
        fs::create_directories(data / "Allegati");
        store.save(crash::ledgerState(state));
        for (const auto& name : names) std::ofstream(data / "Allegati" / name) << std::string(200'000, 'x');
        backups.makeBackup(data, std::nullopt, BackupStore::defaultKeep, testing::utc(2026, 1, static_cast<int>(state)), testing::rome());
    }

    int killedMidRestore = 0;
    for (int kill = 0; kill < kills; ++kill) {
        ChildProcess restorer(crashWriter, {"restores", data.string(), backups.folder.string()});
        if (kill % 2 == 0) {
            killAfterRandomWait(restorer, 150);
        } else {
            killWhileWriting(restorer);
        }
        if (!leftovers(data).empty()) ++killedMidRestore;
        { const DataFolderLock lock(data); }  // the next writer finishes or clears an interrupted restore

        long long state = 0;
        ASSERT_NO_THROW(state = crash::stateOf(store.load())) << "after kill " << kill;
        ASSERT_TRUE(attachmentsOf.contains(state)) << "after kill " << kill;
        ASSERT_EQ(filesIn(data / "Allegati"), attachmentsOf.at(state)) << "after kill " << kill;
        ASSERT_EQ(leftovers(data), std::vector<std::string>{}) << "after kill " << kill;
    }
    EXPECT_GE(killedMidRestore, kills / 4) << "too few kills landed inside a restore";
}

}  // namespace
}  // namespace vantello
