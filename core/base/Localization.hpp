#pragma once
// Every user-visible text of the core is built here. The Italian text is the key; an installed
// catalogue may translate it (identity when none is installed). Placeholders such as {name}
// are filled after the lookup, so translations can move them.

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <initializer_list>

namespace vantello::L10n {

using Catalogue = std::function<std::string(std::string_view italianKey)>;

// Installs the catalogue used from now on; an empty function restores the identity.
void install(Catalogue catalogue);

// The text for an Italian key, translated by the installed catalogue.
[[nodiscard]] std::string tr(std::string_view italianKey);

// The translated text with every "{name}" replaced by its value.
[[nodiscard]] std::string tr(std::string_view italianKey,
                             std::initializer_list<std::pair<std::string_view, std::string_view>> values);

// Marks an Italian key that is translated later, where it is used (tables of labels), so that
// the string-table check finds it.
[[nodiscard]] constexpr std::string_view key(std::string_view italianKey) { return italianKey; }

// Fills "{name}" placeholders of an already translated text.
[[nodiscard]] std::string fill(std::string_view text,
                               std::initializer_list<std::pair<std::string_view, std::string_view>> values);

}  // namespace vantello::L10n
