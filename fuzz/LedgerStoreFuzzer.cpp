// The ledger file decoder: a damaged or newer file is a UserError (DecodingError, StoreError);
// whatever it does read is written back and read again unchanged.
#include "core/base/UserError.hpp"
#include "core/files/LedgerStore.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::optional<LedgerData> read;
    try {
        read = LedgerStore::decode({reinterpret_cast<const char*>(data), size}).data;
    } catch (const UserError&) {
        return 0;
    }
    if (LedgerStore::decode(LedgerStore::encode(*read)).data != *read) std::abort();
    return 0;
}
