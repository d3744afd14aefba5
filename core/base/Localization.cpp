#include "core/base/Localization.hpp"

#include <memory>
#include <mutex>

namespace vantello::L10n {

namespace {

// The catalogue is swapped rarely (at start-up, on a language change) but read from any thread,
// so readers take a reference-counted copy and call it outside the lock.
std::mutex catalogueMutex;
std::shared_ptr<const Catalogue> installedCatalogue;

std::shared_ptr<const Catalogue> currentCatalogue() {
    std::lock_guard lock(catalogueMutex);
    return installedCatalogue;
}

}  // namespace

void install(Catalogue catalogue) {
    auto replacement = catalogue ? std::make_shared<const Catalogue>(std::move(catalogue)) : nullptr;
    std::lock_guard lock(catalogueMutex);
    installedCatalogue = std::move(replacement);
}

std::string tr(std::string_view italianKey) {
    if (auto catalogue = currentCatalogue()) return (*catalogue)(italianKey);
    return std::string(italianKey);
}

std::string tr(std::string_view italianKey,
               std::initializer_list<std::pair<std::string_view, std::string_view>> values) {
    return fill(tr(italianKey), values);
}

std::string fill(std::string_view text,
                 std::initializer_list<std::pair<std::string_view, std::string_view>> values) {
    std::string result;
    result.reserve(text.size());
    std::size_t position = 0;
    while (position < text.size()) {
        const auto open = text.find('{', position);
        if (open == std::string_view::npos) break;
        const auto close = text.find('}', open + 1);
        if (close == std::string_view::npos) break;
        // A brace inside the name means the first "{" was a literal one; restart from the inner.
        const auto innerOpen = text.find('{', open + 1);
        if (innerOpen != std::string_view::npos && innerOpen < close) {
            result.append(text.substr(position, innerOpen - position));
            position = innerOpen;
            continue;
        }
        result.append(text.substr(position, open - position));
        const auto name = text.substr(open + 1, close - open - 1);
        const std::pair<std::string_view, std::string_view>* match = nullptr;
        for (const auto& value : values) {
            if (value.first == name) {
                match = &value;
                break;
            }
        }
        // Values go in as they are, never scanned again, so a value holding "{x}" stays literal.
        if (match) {
            result.append(match->second);
        } else {
            result.append(text.substr(open, close - open + 1));
        }
        position = close + 1;
    }
    result.append(text.substr(position));
    return result;
}

}  // namespace vantello::L10n
