#pragma once
// Dispatches the command line to the subcommands; every subcommand writes its result to `out`,
// its failure message to `err`, and returns the process exit status.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
