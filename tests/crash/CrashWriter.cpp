// A writer to be killed: takes the lock of a data folder and keeps handing ever-changing ledgers
// of a few megabytes to a DiskWriter, printing each state the writer reports written, so that a
// test can kill it at any moment and look at what is left on disk.
//
//   crash-writer saves FOLDER     state after state, for ever
//   crash-writer one-edit FOLDER  hands over one state, says so, and waits to be stopped
//   crash-writer restores FOLDER BACKUPS  restores the backups of BACKUPS in turn, for ever

#include "crash/LedgerStates.hpp"

#include "core/base/Calendar.hpp"
#include "core/base/SuddenTermination.hpp"
#include "core/files/BackupStore.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/DiskWriter.hpp"

#include <cstdio>
#include <string>
#include <unistd.h>

using namespace vantello;

namespace {

void say(const char* what, long long number) {
    std::printf("%s %lld\n", what, number);
    std::fflush(stdout);
}

DiskWriter::Save saveOf(const std::filesystem::path& folder, long long state) {
    return {crash::ledgerState(state), LedgerStore(folder / LedgerStore::fileName), std::nullopt, {}};
}

DiskWriter::Observers sayingWritten() {
    return {.failed = [](const std::string& message) { std::fprintf(stderr, "%s\n", message.c_str()); },
            .written = [](const DiskWriter::Save& save) { say("scritto", crash::stateOf(save.data)); }};
}

int keepSaving(const std::filesystem::path& folder) {
    DiskWriter writer(sayingWritten());
    for (long long state = crash::stateOf(LedgerStore(folder / LedgerStore::fileName).load()) + 1;; ++state) {
        writer.save(saveOf(folder, state));
        ::usleep(2'000);
    }
}

int handOverOneEdit(const std::filesystem::path& folder) {
    DiskWriter writer(sayingWritten());
    writer.save(saveOf(folder, 1));
    say("consegnato", 1);
    for (;;) ::pause();
}

int keepRestoring(const std::filesystem::path& folder, const std::filesystem::path& backups) {
    const BackupStore store{backups};
    const auto available = store.list(Calendar::current());
    DiskWriter writer;
    for (std::size_t turn = 0;; ++turn) {
        const BackupInfo backup = available[turn % available.size()];
        writer.enqueue([&store, &folder, backup] { store.restore(backup, folder); });
        writer.flush();
        say("ripristinato", static_cast<long long>(turn));
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc < 3) return 2;
    SuddenTermination::installHandlers();
    const std::string mode = argv[1];
    const std::filesystem::path folder = argv[2];
    try {
        const DataFolderLock lock(folder);
        if (mode == "saves") return keepSaving(folder);
        if (mode == "one-edit") return handOverOneEdit(folder);
        if (mode == "restores" && argc == 4) return keepRestoring(folder, argv[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 2;
}
