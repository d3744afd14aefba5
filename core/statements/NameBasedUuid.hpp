#pragma once
// Identifiers that a name always gives the same way (RFC 4122 version 5, SHA-1 in the
// statements' own name space): a bank record read twice becomes a movement with the same id.

#include "core/base/Uuid.hpp"

#include <string_view>

namespace vantello {

[[nodiscard]] Uuid nameBasedUuid(std::string_view name);

// Whether the identifier is a name-based one (version 5); random ones are version 4.
[[nodiscard]] bool isNameBased(const Uuid& id);

}  // namespace vantello
