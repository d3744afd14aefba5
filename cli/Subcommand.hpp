#pragma once
// The frame every subcommand shares: parse the options, answer --help, check what was typed,
// then do the work. A command line that cannot be accepted prints its message and the usage and
// exits with 2; a failure while working (an unreadable ledger, a refused change) prints its
// message and exits with 1; nothing is written in either case unless the work got that far.

#include "cli/Arguments.hpp"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

// Checks the parsed options (throwing ArgumentError) and returns the work to do, which gives
// the exit status. The parsed options live until the work is done, so the work may keep a
// reference to them.
using PreparedWork = std::function<int()>;
using Preparation = std::function<PreparedWork(const Arguments&)>;

// "--help" is accepted by every subcommand and need not be among the rules' flags.
int runSubcommand(const std::vector<std::string>& arguments, ArgumentRules rules, const char* usage,
                  std::ostream& out, std::ostream& err, const Preparation& prepare);

}  // namespace vantello::cli
