#pragma once
// A ledger file names each record of a collection by its id, and everything that refers to a
// record (a movement's account, a rule's movements) relies on that name being unique.

#include "core/ledger/LedgerData.hpp"

namespace vantello {

// DecodingError naming the id and the collection's key when one id is given to two records of
// the same collection.
void refuseRepeatedIDs(const LedgerData& data);

}  // namespace vantello
