// The data folder follows the XDG rules, and only one writer at a time may hold it.

#include "core/files/DataFolder.hpp"

#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

// Sets an environment variable for one scope.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        if (value) ::setenv(name, value, 1); else ::unsetenv(name);
    }
    ~ScopedVariable() {
        if (old_) ::setenv(name_, old_->c_str(), 1); else ::unsetenv(name_);
    }

private:
    const char* name_;
    std::optional<std::string> old_;
};

TEST(DataFolder, FollowsXdgDataHomeThenHome) {
    ScopedVariable home("HOME", "/home/anna");
    {
        ScopedVariable dataHome("XDG_DATA_HOME", "/dati");
        EXPECT_EQ(dataFolder(), fs::path("/dati/Vantello"));
    }
    for (const char* ignored : {"", "relativa", static_cast<const char*>(nullptr)}) {
        ScopedVariable dataHome("XDG_DATA_HOME", ignored);
        EXPECT_EQ(dataFolder(), fs::path("/home/anna/.local/share/Vantello"));
    }
    ScopedVariable noHome("HOME", nullptr);
    ScopedVariable noDataHome("XDG_DATA_HOME", nullptr);
    EXPECT_THROW(static_cast<void>(dataFolder()), DataFolderError);
}

TEST(DataFolderLock, RefusesASecondHolderUntilTheFirstLetsGo) {
    const vantello::testing::TemporaryFolder temporary;
    const fs::path folder = temporary.path() / "Vantello";
    {
        DataFolderLock first(folder);  // creates the missing folder
        EXPECT_TRUE(fs::exists(folder / "vantello.lock"));
        try {
            DataFolderLock second(folder);
            FAIL() << "two holders at once";
        } catch (const DataFolderError& error) {
            EXPECT_EQ(error.code(), DataFolderError::Code::locked);
            EXPECT_STREQ(error.what(), "Un altro programma sta modificando questi dati. Chiudilo e riprova.");
        }
        DataFolderLock moved(std::move(first));
        EXPECT_THROW(DataFolderLock{folder}, DataFolderError);
    }
    EXPECT_NO_THROW(DataFolderLock{folder});
}

}  // namespace
