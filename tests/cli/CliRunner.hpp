#pragma once
// Runs the command line in-process and keeps what it printed; TemporaryFolderTest gives each
// test its own data folder.

#include "cli/Commands.hpp"
#include "support/TemporaryFolder.hpp"

#include <sstream>
#include <string>
#include <vector>

namespace vantello::testing {

struct CliOutcome {
    int status;
    std::string out;
    std::string err;
};

inline CliOutcome runCli(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = cli::run(arguments, out, err);
    return {status, out.str(), err.str()};
}

}  // namespace vantello::testing
