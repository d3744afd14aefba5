// The CSV tokenizer and the separator guess never throw, whatever the bytes.
#include "core/statements/CSV.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto guess = CSV::guessSeparator(text);
    const auto table = CSV::parse(text, guess.separator);
    (void)CSV::parse(text);
    // The first byte as the user's separator, which may be one that cannot separate.
    if (!text.empty()) (void)CSV::parse(text.substr(1), text.front());
    for (const auto& row : table) (void)CSV::line(row, guess.separator);
    return 0;
}
