#include "core/analysis/DescriptionKey.hpp"

namespace vantello {

std::string descriptionKey(std::string_view note) {
    std::string key;
    std::string word;
    const auto endWord = [&] {
        if (word.size() >= 2) {
            if (!key.empty()) key.push_back(' ');
            key += word;
        }
        word.clear();
    };
    for (const char c : note) {
        if (c >= 'a' && c <= 'z') {
            word.push_back(c);
        } else if (c >= 'A' && c <= 'Z') {
            word.push_back(static_cast<char>(c - 'A' + 'a'));
        } else {
            endWord();
        }
    }
    endWord();
    return key;
}

}  // namespace vantello
