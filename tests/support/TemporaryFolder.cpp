#include "support/TemporaryFolder.hpp"

#include <cerrno>
#include <string>
#include <system_error>

#include <stdlib.h>

namespace vantello::testing {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "vantello-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw fs::filesystem_error("cannot make a temporary folder", pattern, std::error_code(errno, std::generic_category()));
    }
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    // A test may have taken away the owner's rights on a folder; give them back so it can go.
    std::error_code ignored;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
    std::error_code walking;
    for (fs::recursive_directory_iterator entry(path_, walking), end; !walking && entry != end;
         entry.increment(walking)) {
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored)) {
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
    fs::remove_all(path_, ignored);
}

}  // namespace vantello::testing
