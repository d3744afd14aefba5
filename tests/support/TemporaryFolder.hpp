#pragma once
// A fresh folder under the system's temporary directory for one test, removed with everything
// in it (read-only parts included) when the test ends.

#include <gtest/gtest.h>

#include <filesystem>

namespace vantello::testing {

class TemporaryFolder {
public:
    // Throws std::filesystem::filesystem_error when no folder can be made.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// A fixture owning a temporary folder.
class TemporaryFolderTest : public ::testing::Test {
protected:
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path();
};

}  // namespace vantello::testing
