// Opening a statement's text: the format detection, the CSV guess and the conversion of every
// row. A UserError (no row to import) is an answer; anything else escaping is a finding.
#include "core/base/UserError.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/StatementImport.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace vantello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Calendar calendar("Europe/Rome");
    try {
        (void)openStatementText({reinterpret_cast<const char*>(data), size}, "estratto.csv", {},
                                builtInCategories(), calendar);
    } catch (const UserError&) {
    }
    return 0;
}
