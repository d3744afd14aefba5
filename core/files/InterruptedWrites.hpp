#pragma once
// What a write cut short leaves behind: a process killed while saving leaves its temporary file
// (as large as the file being saved) beside the target for ever.

#include <filesystem>

namespace vantello {

// Removes every regular file of `folder` whose name has the shape of an atomic write's temporary
// file, whatever its target. Only the holder of the folder's lock may call it, since then no
// other writer can be filling one. Best effort: a file that cannot be removed stays. Names
// starting with ".ripristino-" belong to an interrupted restore, which deals with its own.
void removeStaleTemporaryFiles(const std::filesystem::path& folder);

}  // namespace vantello
