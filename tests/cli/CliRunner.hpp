#pragma once
// Runs the command line in-process and keeps what it printed; a temporary data folder per test.

#include "cli/Commands.hpp"

#include <gtest/gtest.h>

#include <filesystem>
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

// A fixture owning a fresh folder under the system's temporary directory.
class TemporaryFolderTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (std::filesystem::temp_directory_path() / "vantello-test-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::filesystem::path folder;
};

}  // namespace vantello::testing
