#include "cli/NumberOptions.hpp"

#include "core/base/Localization.hpp"
#include "core/ledger/AmountParser.hpp"

#include <charconv>
#include <string>

namespace vantello::cli {

namespace {

[[noreturn]] void badValue(std::string_view option, std::string_view value, std::string_view expects) {
    throw ArgumentError(L10n::tr("Valore non valido per {opzione}: «{valore}» ({atteso}).",
                                 {{"opzione", option}, {"valore", value}, {"atteso", expects}}));
}

}  // namespace

std::optional<Decimal> amountOption(const Arguments& arguments, std::string_view option, std::string_view expects) {
    const std::optional<std::string> text = arguments.value(option);
    if (!text) return std::nullopt;
    std::optional<Decimal> amount = AmountParser::parse(*text);
    if (!amount) badValue(option, *text, expects);
    return amount;
}

std::optional<int> integerOption(const Arguments& arguments, std::string_view option, int minimum, int maximum) {
    const std::optional<std::string> text = arguments.value(option);
    if (!text) return std::nullopt;
    int value = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), value);
    if (error != std::errc() || end != text->data() + text->size() || value < minimum || value > maximum) {
        badValue(option, *text,
                 L10n::tr("serve un numero intero da {minimo} a {massimo}",
                          {{"minimo", std::to_string(minimum)}, {"massimo", std::to_string(maximum)}}));
    }
    return value;
}

}  // namespace vantello::cli
