// The command line answers --help and --version, and refuses what it does not know.

#include "CliRunner.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

namespace {

using vantello::testing::runCli;

}  // namespace

TEST(Cli, HelpAndVersionSucceed) {
    const auto help = runCli({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("vantello-cli"), std::string::npos);

    const auto version = runCli({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, std::string("vantello-cli ") + VANTELLO_VERSION + "\n");
}

TEST(Cli, UnknownCommandOrNoneFails) {
    const auto unknown = runCli({"frobnicate"});
    EXPECT_NE(unknown.status, 0);
    EXPECT_NE(unknown.err.find("frobnicate"), std::string::npos);
    EXPECT_NE(runCli({}).status, 0);
}

TEST(Cli, ExecutableAnswersVersion) {
    FILE* pipe = popen(VANTELLO_CLI_PATH " --version", "r");
    ASSERT_NE(pipe, nullptr);
    char buffer[128] = {};
    const size_t read = fread(buffer, 1, sizeof buffer - 1, pipe);
    EXPECT_EQ(pclose(pipe), 0);
    EXPECT_EQ(std::string(buffer, read), std::string("vantello-cli ") + VANTELLO_VERSION + "\n");
}
