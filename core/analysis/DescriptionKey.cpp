#include "core/analysis/DescriptionKey.hpp"

#include <cstddef>

namespace vantello {

namespace {

bool isAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

}  // namespace

void writeDescriptionKey(std::string_view note, std::string& key) {
    // The key is never longer than the note: written in place, then cut to its length.
    key.resize(note.size());
    char* const out = key.data();
    std::size_t length = 0;
    std::size_t index = 0;
    while (index < note.size()) {
        if (!isAsciiLetter(note[index])) {
            index += 1;
            continue;
        }
        const std::size_t start = index;
        while (index < note.size() && isAsciiLetter(note[index])) index += 1;
        if (index - start < 2) continue;
        if (length > 0) out[length++] = ' ';
        for (std::size_t letter = start; letter < index; ++letter) {
            const char c = note[letter];
            out[length++] = c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    key.resize(length);
}

std::string descriptionKey(std::string_view note) {
    std::string key;
    writeDescriptionKey(note, key);
    return key;
}

}  // namespace vantello
