// The OFX statement reader never throws: text it cannot read gives problem rows or none.
#include "core/statements/OFXReader.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Calendar calendar("Europe/Rome");
    (void)readOFX({reinterpret_cast<const char*>(data), size}, calendar);
    return 0;
}
