#pragma once
// Writes the ledger off the caller's thread, one write at a time and in order. The caller hands
// over a snapshot and carries on; a burst of snapshots costs at most one more write, because
// only the newest waiting snapshot is kept; and everything handed over is on disk once flush()
// returns or the writer is destroyed. After each successful write the attachments that nothing
// refers to any more are removed from the attachments folder.
//
// Other file work of the same data folder (backups, restores) goes through enqueue(), so that it
// follows every snapshot handed over before it.

#include "core/files/AttachmentStore.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Attachment.hpp"
#include "core/ledger/LedgerData.hpp"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace vantello {

class DiskWriter {
public:
    struct Save {
        LedgerData data;
        LedgerStore store;
        // The attachments folder of the same data; absent when attachments are not kept.
        std::optional<AttachmentStore> attachmentStore;
        // Attachments already copied into the folder that no saved movement holds yet (an open
        // editor has them); the clean-up keeps them.
        std::vector<Attachment> unsavedAttachments;
        // When the snapshot was taken: files copied in later survive the clean-up.
        std::chrono::system_clock::time_point date = std::chrono::system_clock::now();
    };

    struct Observers {
        // "Non riesco a salvare i movimenti: " and the reason, once per failed write. Called on
        // the writer's thread: a front end moves it to its own thread.
        std::function<void(const std::string& message)> failed;
        // After each successful write, with the snapshot written. Also on the writer's thread.
        std::function<void(const Save& written)> written;
    };

    explicit DiskWriter(Observers observers = {});
    DiskWriter(const DiskWriter&) = delete;
    DiskWriter& operator=(const DiskWriter&) = delete;
    // Finishes everything handed over, then stops the thread.
    ~DiskWriter();

    // Keeps `snapshot` as the one waiting to be written (replacing an older one that has not
    // been written yet) and queues a write. Only a short lock; no file work on this thread.
    void save(Save snapshot);

    // Queues other file work after everything handed over so far. The task reports its own
    // failures; an exception that escapes it is passed to `failed` as it stands.
    void enqueue(std::function<void()> task);

    // Returns when everything handed over before the call is done. Must not be called from a
    // task of this writer.
    void flush();

private:
    void writePending();
    void run();

    Observers observers_;

    std::mutex pendingMutex_;
    std::optional<Save> pending_;

    std::mutex queueMutex_;
    std::condition_variable queueChanged_;
    struct Task {
        std::function<void()> work;
        bool holdsTermination;  // what SuddenTermination::disable answered
    };
    std::deque<Task> queue_;
    bool stopping_ = false;

    std::thread worker_;
};

}  // namespace vantello
