#pragma once
// Ledgers numbered by state, each of a few megabytes and each of its own length, so that a test
// can tell from a file both which state it holds and that it holds all of it.

#include "core/ledger/LedgerData.hpp"

namespace vantello::crash {

// The ledger of state `state` (1, 2, ...): 6,000 to 6,996 movements, the last one noting the state.
[[nodiscard]] LedgerData ledgerState(long long state);

// The state a ledger of ledgerState holds; 0 for an empty ledger. Throws std::runtime_error when
// the ledger is not exactly such a state (a movement missing or too many).
[[nodiscard]] long long stateOf(const LedgerData& data);

}  // namespace vantello::crash
