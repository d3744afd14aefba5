// Any bytes give valid UTF-8 text or nothing.
#include "core/statements/StatementFile.hpp"

#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace vantello;

namespace {

bool isValidUtf8(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t i = 0; i < length;) {
        UChar32 c = 0;
        U8_NEXT(bytes, i, length, c);
        if (c < 0) return false;
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto text = decodeStatementBytes({reinterpret_cast<const char*>(data), size});
    if (text && (!isValidUtf8(*text) || text->starts_with("\xEF\xBB\xBF"))) std::abort();
    return 0;
}
