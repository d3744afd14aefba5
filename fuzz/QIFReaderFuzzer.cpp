// The QIF statement reader never throws: text it cannot read gives problem rows or none.
#include "core/statements/QIFReader.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Calendar calendar("Europe/Rome");
    (void)readQIF({reinterpret_cast<const char*>(data), size}, calendar);
    return 0;
}
