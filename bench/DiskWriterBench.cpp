// The save pipeline on the 100,000-movement ledger: what handing a snapshot over costs the
// caller's thread, one complete write with the attachment clean-up over 1,000 attachments, and
// a backup of that ledger with 1,000 attachments of 100 KB.

#include "bench/GeneratedLedger.hpp"
#include "core/files/BackupStore.hpp"
#include "core/files/DiskWriter.hpp"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace vantello::bench {
namespace {

namespace fs = std::filesystem;

constexpr int attachmentCount = 1'000;

// A data folder of its own under the system's temporary folder, removed at the end.
class BenchFolder {
public:
    BenchFolder() : path_(fs::temp_directory_path() / ("vantello-bench-" + Uuid::random().text())) {
        fs::create_directories(path_ / "Allegati");
    }
    ~BenchFolder() { fs::remove_all(path_); }
    [[nodiscard]] const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

// The generated ledger with one attachment on each of its first 1,000 movements, each file of
// `bytes` bytes in the folder's attachments.
LedgerData ledgerWithAttachments(const fs::path& folder, std::size_t bytes) {
    LedgerData data = generatedLedger().data();
    const std::string content(bytes, 'x');
    for (int i = 0; i < attachmentCount; ++i) {
        Attachment attachment;
        attachment.id = Uuid::random();
        attachment.storedName = attachment.id.text() + ".pdf";
        attachment.originalName = "ricevuta.pdf";
        attachment.byteCount = static_cast<std::int64_t>(bytes);
        std::ofstream(folder / "Allegati" / attachment.storedName) << content;
        data.transactions.update(static_cast<std::size_t>(i),
                                 [&](Transaction& movement) { movement.attachments.push_back(attachment); });
    }
    return data;
}

void handOverSnapshot(benchmark::State& state) {
    const BenchFolder folder;
    const Ledger& ledger = generatedLedger();
    DiskWriter writer;
    const LedgerStore store(folder.path() / LedgerStore::fileName);
    for (auto _ : state) {
        writer.save({ledger.data(), store, AttachmentStore{folder.path() / "Allegati"}, {}});
    }
    writer.flush();
}
BENCHMARK(handOverSnapshot)->Unit(benchmark::kMicrosecond);

void writeWithAttachmentCleanUp(benchmark::State& state) {
    const BenchFolder folder;
    const LedgerData data = ledgerWithAttachments(folder.path(), 1'000);
    DiskWriter writer;
    const LedgerStore store(folder.path() / LedgerStore::fileName);
    for (auto _ : state) {
        writer.save({data, store, AttachmentStore{folder.path() / "Allegati"}, {}});
        writer.flush();
    }
}
BENCHMARK(writeWithAttachmentCleanUp)->Unit(benchmark::kMillisecond)->UseRealTime();

void backupWithAttachments(benchmark::State& state) {
    const BenchFolder folder;
    LedgerStore(folder.path() / LedgerStore::fileName).save(ledgerWithAttachments(folder.path(), 100 * 1024));
    const BackupStore backups{folder.path() / "Backup"};
    Instant now = benchNow();
    for (auto _ : state) {
        backups.makeBackup(folder.path(), std::nullopt, 2, now, romeCalendar());
        now += std::chrono::seconds(1);
    }
}
BENCHMARK(backupWithAttachments)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);

}  // namespace
}  // namespace vantello::bench
