#pragma once
// Reads a statement file chosen by the user as UTF-8 text, whatever encoding the bank wrote it
// in: UTF-8 (with or without a byte-order mark), UTF-16 or UTF-32 with a byte-order mark, and
// otherwise the Western 8-bit encodings of Windows and ISO 8859.

#include "core/base/UserError.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantello {

class FileError;

// A statement file that cannot be read; the message names the file, never its folder.
class StatementFileError : public UserError {
public:
    explicit StatementFileError(const std::filesystem::path& path);
    // Says so when the path is a FIFO, a device or a socket rather than a file.
    StatementFileError(const std::filesystem::path& path, const FileError& cause);

private:
    StatementFileError(std::string_view italianPattern, const std::filesystem::path& path);
};

// The file's text in UTF-8 without a byte-order mark. Padding after the last line (NUL bytes,
// the old end-of-file mark 0x1A, blanks) is dropped. Throws StatementFileError.
[[nodiscard]] std::string readStatementText(const std::filesystem::path& path);

// The same for bytes already read: their text, or nothing when no encoding above reads them.
[[nodiscard]] std::optional<std::string> decodeStatementBytes(std::string_view bytes);

// What the import says when the file yields no data row: "«estratto.csv» non contiene righe
// da importare."
[[nodiscard]] std::string statementWithoutRowsMessage(const std::filesystem::path& path);

}  // namespace vantello
