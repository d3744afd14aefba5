#pragma once
// The icons the category and account sheets offer: symbol names that SymbolIcons maps, each
// with a short name of what it shows (the picker's text and what a screen reader says).

#include <QString>

#include <string_view>
#include <vector>

namespace vantello::app {

struct SymbolChoice {
    std::string_view symbol;
    std::string_view italianLabel;  // a key for uiText
};

[[nodiscard]] const std::vector<SymbolChoice>& categorySymbolChoices();
[[nodiscard]] const std::vector<SymbolChoice>& accountSymbolChoices();

}  // namespace vantello::app
