#pragma once
// A movement's note reduced to what stays the same between two charges of the same merchant:
// "POS BAR CENTRALE 12/03" and "Pos bar centrale 7" both give "pos bar centrale".

#include <string>
#include <string_view>

namespace vantello {

// ASCII letters lower-cased; any other character (digit, space, punctuation, accented letter)
// ends a word; words under 2 letters are dropped; the rest joined by single spaces.
[[nodiscard]] std::string descriptionKey(std::string_view note);
// The same into `key`, whose storage is reused: for walks over every movement.
void writeDescriptionKey(std::string_view note, std::string& key);

}  // namespace vantello
