// The ECB feed parser never throws, and a feed cut into two chunks anywhere reads as the whole.
#include "core/rates/ECBParser.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    // The first byte says where the rest is cut.
    const std::string_view feed(reinterpret_cast<const char*>(data) + 1, size - 1);
    const auto cut = feed.empty() ? 0 : data[0] % (feed.size() + 1);
    const auto whole = ECBParser::parse(feed);
    ECBParser parser;
    parser.feed(feed.substr(0, cut));
    parser.feed(feed.substr(cut));
    if (parser.finish() != whole) std::abort();
    return 0;
}
