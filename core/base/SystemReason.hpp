#pragma once
// Why the system refused a file operation, in the user's language.

#include <string>

namespace vantello {

// "permesso negato", "disco pieno", … for the errno values people meet; any other value keeps
// the system's own text.
[[nodiscard]] std::string systemReason(int systemError);

}  // namespace vantello
