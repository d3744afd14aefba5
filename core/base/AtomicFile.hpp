#pragma once
// Whole-file reads and crash-safe whole-file writes: a write either replaces the file with the
// new bytes completely or leaves the old file exactly as it was.

#include "core/base/UserError.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace vantello {

// A file that could not be read, written, moved or created. The message names the file and the
// system's reason; `systemError` keeps the errno value for callers that branch on it, and is 0
// for a file refused because it is not a regular file.
class FileError : public UserError {
public:
    FileError(std::string message, int systemError)
        : UserError(std::move(message)), systemError_(systemError) {}
    [[nodiscard]] int systemError() const { return systemError_; }

    // "Non riesco a leggere «{file}»: {reason}." and its siblings, localised.
    [[nodiscard]] static FileError reading(const std::filesystem::path& file, int systemError);
    [[nodiscard]] static FileError writing(const std::filesystem::path& file, int systemError);
    [[nodiscard]] static FileError moving(const std::filesystem::path& file, int systemError);
    // "«{file}» non è un file normale.": a FIFO, a device or a socket stands where a file should.
    [[nodiscard]] static FileError notRegular(const std::filesystem::path& file);
    [[nodiscard]] bool isNotRegular() const { return systemError_ == 0; }

private:
    int systemError_;
};

// Writes `bytes` to a new temporary file beside `file`, flushes it to the disk and renames it
// over `file` in one step. New files get mode 0644 (less the umask); a replaced file keeps its
// mode. On failure the temporary file is gone, the old file is untouched and FileError is thrown;
// a folder or any other file that is not a regular one is never replaced.
void writeFileAtomically(const std::filesystem::path& file, std::string_view bytes);

// Whether `name` has the shape of the temporary files of writeFileAtomically, whatever their
// target: ".movimenti.json.tmp-<process>-<counter>-<8 hex digits>". A process killed while
// writing leaves such a file behind.
[[nodiscard]] bool isTemporaryFileName(std::string_view name);

// The whole content of a regular file; FileError when it cannot be read (ENOENT for a missing
// file, EISDIR for a folder, notRegular for a FIFO, a device or a socket, which are never
// waited on).
[[nodiscard]] std::string readWholeFile(const std::filesystem::path& file);

}  // namespace vantello
