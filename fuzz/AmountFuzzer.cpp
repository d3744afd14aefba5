// The amount readers never throw; a statement cell that AmountParser reads unsigned reads the
// same through StatementAmount.
#include "core/ledger/AmountParser.hpp"
#include "core/statements/StatementAmount.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto plain = AmountParser::parse(text);
    const auto cell = StatementAmount::read(text);
    if (plain && cell.status == StatementAmount::Status::amount && cell.value != *plain) std::abort();
    return 0;
}
