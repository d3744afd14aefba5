#include "core/files/InterruptedWrites.hpp"

#include "core/base/AtomicFile.hpp"

#include <string>
#include <system_error>

namespace vantello {

void removeStaleTemporaryFiles(const std::filesystem::path& folder) {
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(".ripristino-") || !isTemporaryFileName(name)) continue;
        // A link is never followed: only the temporary file itself goes.
        std::error_code ignored;
        if (entry->symlink_status(ignored).type() == std::filesystem::file_type::regular) {
            std::filesystem::remove(entry->path(), ignored);
        }
    }
}

}  // namespace vantello
