// The data folder follows the XDG rules, and only one writer at a time may hold it.

#include "core/files/DataFolder.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/files/InterruptedWrites.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

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

// A process killed while saving: a file size limit stops it part-way through its write.
void saveAndDieHalfway(const fs::path& file) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        struct rlimit limit {};
        ::setrlimit(RLIMIT_CORE, &limit);
        limit.rlim_cur = limit.rlim_max = 4096;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_DFL);
        try {
            writeFileAtomically(file, std::string(100'000, 'x'));
        } catch (...) {
        }
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
}

TEST(DataFolderLock, TakingItRemovesWhatInterruptedWritesLeft) {
    const vantello::testing::TemporaryFolder temporary;
    const fs::path& folder = temporary.path();
    saveAndDieHalfway(folder / "movimenti.json");
    std::vector<fs::path> leftOver;
    for (const auto& entry : fs::directory_iterator(folder)) leftOver.push_back(entry.path());
    ASSERT_EQ(leftOver.size(), 1u);
    ASSERT_TRUE(isTemporaryFileName(leftOver[0].filename().string())) << leftOver[0];

    const fs::path otherTarget = folder / ".profili.json.tmp-4242-7-0badf00d";
    std::ofstream(otherTarget) << "{";
    { const DataFolderLock lock(folder); }
    EXPECT_FALSE(fs::exists(leftOver[0]));
    EXPECT_FALSE(fs::exists(otherTarget));

    const std::vector<std::string> kept{
        "movimenti.json",
        ".ripristino-movimenti.json.tmp-4242-7-0badf00d",  // the restore's own
        "movimenti.json.tmp-4242-7-0badf00d",              // no leading dot
        ".movimenti.json.tmp-4242-7-0BADF00D",             // upper-case hex
        ".tmp-4242-7-0badf00d",                            // no target
    };
    for (const auto& name : kept) std::ofstream(folder / name) << "resta";
    fs::create_directory(folder / ".cartella.tmp-1-2-0badf00d");
    removeStaleTemporaryFiles(folder);
    for (const auto& name : kept) EXPECT_TRUE(fs::exists(folder / name)) << name;
    EXPECT_TRUE(fs::is_directory(folder / ".cartella.tmp-1-2-0badf00d"));
}

}  // namespace
