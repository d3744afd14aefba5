#include "core/files/DiskWriter.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <future>
#include <mutex>

namespace vantello {
namespace {

using namespace std::chrono_literals;
using testing::TemporaryFolderTest;

namespace fs = std::filesystem;

// A ledger whose movement count tells the snapshots apart.
LedgerData ledgerWith(int movements) {
    LedgerData data;
    for (int i = 0; i < movements; ++i) data.transactions.push_back(testing::expense("1", testing::utc(2025, 1, 1)));
    return data;
}

Attachment attachmentStoredAs(std::string storedName) {
    Attachment attachment;
    attachment.id = Uuid::random();
    attachment.storedName = std::move(storedName);
    return attachment;
}

void touch(const fs::path& file, std::chrono::system_clock::time_point modified) {
    std::ofstream(file) << "x";
    fs::last_write_time(file, fs::file_time_type::clock::from_sys(modified));
}

class DiskWriterTest : public TemporaryFolderTest {
protected:
    LedgerStore store{folder / "movimenti.json"};

    DiskWriter::Save saveOf(LedgerData data) { return {std::move(data), store, std::nullopt, {}}; }
};

TEST_F(DiskWriterTest, SavesDuringASlowWriteCoalesceIntoOneWriteOfTheNewest) {
    std::promise<void> firstWritten;
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    std::mutex mutex;
    std::vector<std::size_t> written;
    DiskWriter::Observers observers;
    observers.written = [&](const DiskWriter::Save& save) {
        {
            const std::lock_guard lock(mutex);
            written.push_back(save.data.transactions.size());
        }
        if (written.size() == 1) firstWritten.set_value();
        released.wait();  // the first write is still going on while the ten saves arrive
    };
    DiskWriter writer(observers);

    writer.save(saveOf(ledgerWith(1)));
    firstWritten.get_future().wait();
    for (int i = 2; i <= 11; ++i) writer.save(saveOf(ledgerWith(i)));
    release.set_value();
    writer.flush();

    EXPECT_EQ(written, (std::vector<std::size_t>{1, 11}));
    EXPECT_EQ(store.load().transactions.size(), 11u);
}

TEST_F(DiskWriterTest, CleanUpAfterAWriteKeepsReferencedUnsavedAndNewerFiles) {
    const fs::path attachments = folder / "Allegati";
    fs::create_directories(attachments);
    const auto snapshotTaken = std::chrono::system_clock::now();
    for (const char* name : {"referenced.pdf", "in-the-editor.jpg", "unreferenced.png"}) {
        touch(attachments / name, snapshotTaken - 1h);
    }
    touch(attachments / "copied-in-after.png", snapshotTaken + 1min);

    LedgerData data = ledgerWith(0);
    Transaction movement = testing::expense("9.50", testing::utc(2025, 3, 1));
    movement.attachments.push_back(attachmentStoredAs("referenced.pdf"));
    data.transactions.push_back(movement);

    DiskWriter writer;
    writer.save({data, store, AttachmentStore{attachments}, {attachmentStoredAs("in-the-editor.jpg")}, snapshotTaken});
    writer.flush();

    EXPECT_TRUE(fs::exists(attachments / "referenced.pdf"));
    EXPECT_TRUE(fs::exists(attachments / "in-the-editor.jpg"));
    EXPECT_TRUE(fs::exists(attachments / "copied-in-after.png"));
    EXPECT_FALSE(fs::exists(attachments / "unreferenced.png"));
}

TEST_F(DiskWriterTest, AFailedWriteGivesOneMessageAndLeavesNoFile) {
    std::ofstream(folder / "not-a-folder") << "x";
    std::vector<std::string> messages;
    DiskWriter::Observers observers;
    observers.failed = [&](const std::string& message) { messages.push_back(message); };
    {
        DiskWriter writer(observers);
        writer.save({ledgerWith(2), LedgerStore(folder / "not-a-folder" / "movimenti.json"), std::nullopt, {}});
        writer.flush();
        writer.save(saveOf(ledgerWith(3)));
    }  // destroying the writer finishes the second save

    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages.front().rfind("Non riesco a salvare i movimenti: ", 0), 0u) << messages.front();
    EXPECT_EQ(store.load().transactions.size(), 3u);
}

TEST_F(DiskWriterTest, QueuedWorkFollowsEverySaveHandedOverBeforeIt) {
    DiskWriter writer;
    std::size_t seenByTheTask = 0;
    writer.save(saveOf(ledgerWith(4)));
    writer.enqueue([&] { seenByTheTask = store.load().transactions.size(); });
    writer.flush();
    EXPECT_EQ(seenByTheTask, 4u);
}

}  // namespace
}  // namespace vantello
