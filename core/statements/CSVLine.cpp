// Quoting of exported cells, so that the tokenizer reads every line back into the same cells.

#include "core/statements/CSV.hpp"

namespace vantello::CSV {

namespace {

// The characters that would end a cell or a row, or open a quoted cell, if written bare. The
// line breaks are those the tokenizer knows: LF, VT, FF, CR, U+0085, U+2028 and U+2029.
bool needsQuotes(std::string_view cell, char separator) {
    for (std::size_t index = 0; index < cell.size(); ++index) {
        const char byte = cell[index];
        if (byte == separator || byte == '"' || byte == '\n' || byte == '\v' || byte == '\f' || byte == '\r') {
            return true;
        }
        const std::string_view rest = cell.substr(index);
        if (rest.starts_with("\xC2\x85") || rest.starts_with("\xE2\x80\xA8") || rest.starts_with("\xE2\x80\xA9")) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string line(const std::vector<std::string>& cells, char separator) {
    std::string text;
    for (std::size_t index = 0; index < cells.size(); ++index) {
        if (index > 0) text.push_back(separator);
        const std::string& cell = cells[index];
        if (!needsQuotes(cell, separator)) {
            text.append(cell);
            continue;
        }
        text.push_back('"');
        for (const char byte : cell) {
            if (byte == '"') text.push_back('"');
            text.push_back(byte);
        }
        text.push_back('"');
    }
    return text;
}

}  // namespace vantello::CSV
