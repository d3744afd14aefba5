#include "core/files/DiskWriter.hpp"

#include "core/base/Localization.hpp"
#include "core/base/SuddenTermination.hpp"

#include <future>
#include <utility>

namespace vantello {

namespace {

// Every file name the snapshot still needs in the attachments folder.
std::unordered_set<std::string> namesToKeep(const DiskWriter::Save& save) {
    std::unordered_set<std::string> keep = storedAttachmentNames(save.data);
    for (const Attachment& attachment : save.unsavedAttachments) keep.insert(attachment.storedName);
    return keep;
}

}  // namespace

DiskWriter::DiskWriter(Observers observers) : observers_(std::move(observers)), worker_([this] { run(); }) {}

DiskWriter::~DiskWriter() {
    {
        const std::lock_guard lock(queueMutex_);
        stopping_ = true;
    }
    queueChanged_.notify_one();
    worker_.join();
}

void DiskWriter::save(Save snapshot) {
    {
        const std::lock_guard lock(pendingMutex_);
        pending_ = std::move(snapshot);
    }
    enqueue([this] { writePending(); });
}

void DiskWriter::enqueue(std::function<void()> task) {
    const bool holdsTermination = SuddenTermination::disable();
    {
        const std::lock_guard lock(queueMutex_);
        queue_.push_back({std::move(task), holdsTermination});
    }
    queueChanged_.notify_one();
}

void DiskWriter::flush() {
    std::promise<void> reached;
    std::future<void> done = reached.get_future();
    enqueue([&reached] { reached.set_value(); });
    done.wait();
}

// Several queued writes in a row find one snapshot between them: the first writes the newest
// and the others find nothing.
void DiskWriter::writePending() {
    std::optional<Save> save;
    {
        const std::lock_guard lock(pendingMutex_);
        save.swap(pending_);
    }
    if (!save) return;

    try {
        save->store.save(save->data);
    } catch (const std::exception& error) {
        // Not retried: the next change hands over a complete snapshot again.
        if (observers_.failed) {
            observers_.failed(L10n::tr("Non riesco a salvare i movimenti: {reason}", {{"reason", error.what()}}));
        }
        return;
    }
    if (save->attachmentStore) {
        try {
            const auto date = save->date;
            save->attachmentStore->removeUnreferencedFiles(namesToKeep(*save), date);
        } catch (const std::exception&) {
            // A file left over is harmless; the next write tries again.
        }
    }
    if (observers_.written) observers_.written(*save);
}

void DiskWriter::run() {
    for (;;) {
        Task task;
        {
            std::unique_lock lock(queueMutex_);
            queueChanged_.wait(lock, [this] { return stopping_ || !queue_.empty(); });
            if (queue_.empty()) return;  // stopping, and everything handed over is done
            task = std::move(queue_.front());
            queue_.pop_front();
        }
        try {
            task.work();
        } catch (const std::exception& error) {
            if (observers_.failed) observers_.failed(error.what());
        }
        SuddenTermination::enable(task.holdsTermination);
    }
}

}  // namespace vantello
