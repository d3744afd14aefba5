// Atomic writes replace a file completely or not at all, and never leave temporary files behind.

#include "core/base/AtomicFile.hpp"

#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace vantello;
namespace fs = std::filesystem;

class AtomicFile : public vantello::testing::TemporaryFolderTest {
protected:
    std::size_t entries() const { return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {})); }
};

TEST_F(AtomicFile, ReplacesContentKeepingPermissions) {
    const auto file = folder / "dati.json";
    writeFileAtomically(file, "prima");
    ::chmod(file.c_str(), 0600);
    writeFileAtomically(file, "dopo, più lungo");

    EXPECT_EQ(readWholeFile(file), "dopo, più lungo");
    struct stat status {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);
    EXPECT_EQ(entries(), 1u);
}

TEST_F(AtomicFile, FailedWriteLeavesTheOldFileAndNoTemporary) {
    const auto file = folder / "dati.json";
    writeFileAtomically(file, "vecchio");

    // A file size limit makes the write itself fail part-way, even for the superuser.
    struct rlimit original {};
    ::getrlimit(RLIMIT_FSIZE, &original);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limited = original;
    limited.rlim_cur = 4096;
    ::setrlimit(RLIMIT_FSIZE, &limited);
    EXPECT_THROW(writeFileAtomically(file, std::string(100'000, 'x')), FileError);
    ::setrlimit(RLIMIT_FSIZE, &original);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_EQ(readWholeFile(file), "vecchio");
    EXPECT_EQ(entries(), 1u);
}

TEST_F(AtomicFile, TargetThatIsAFolderOrInAReadOnlyFolderFails) {
    const auto target = folder / "cartella";
    fs::create_directory(target);
    std::ofstream(target / "dentro") << "resta";
    try {
        writeFileAtomically(target, "x");
        FAIL() << "a folder was replaced";
    } catch (const FileError& error) {
        EXPECT_EQ(error.message().rfind("Non riesco a scrivere «" + target.string() + "»: ", 0), 0u) << error.message();
    }
    EXPECT_EQ(readWholeFile(target / "dentro"), "resta");
    EXPECT_EQ(entries(), 1u);

    if (::geteuid() != 0) {  // the superuser writes into read-only folders anyway
        const auto file = folder / "dati.json";
        writeFileAtomically(file, "vecchio");
        fs::permissions(folder, fs::perms::owner_write, fs::perm_options::remove);
        EXPECT_THROW(writeFileAtomically(file, "nuovo"), FileError);
        EXPECT_EQ(readWholeFile(file), "vecchio");
    }
}

TEST_F(AtomicFile, ReadingAMissingFileNamesItAndKeepsTheReason) {
    const auto file = folder / "manca.json";
    try {
        static_cast<void>(readWholeFile(file));
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.systemError(), ENOENT);
        EXPECT_EQ(error.message(), "Non riesco a leggere «" + file.string() + "»: file o cartella inesistente.");
    }
    try {
        static_cast<void>(readWholeFile(folder));
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.message(), "Non riesco a leggere «" + folder.string() + "»: è una cartella.");
    }
}

// Opening a FIFO for reading would wait for a writer that never comes, and renaming over it
// would throw away what the user put there.
TEST_F(AtomicFile, FifoIsNeitherReadNorReplaced) {
    const auto fifo = folder / "movimenti.json";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    try {
        static_cast<void>(readWholeFile(fifo));
        FAIL() << "a FIFO was read";
    } catch (const FileError& error) {
        EXPECT_TRUE(error.isNotRegular());
        EXPECT_EQ(error.message(), "«" + fifo.string() + "» non è un file normale.");
    }
    EXPECT_THROW(writeFileAtomically(fifo, "{}"), FileError);
    EXPECT_TRUE(fs::is_fifo(fifo));
    EXPECT_EQ(entries(), 1u);
}

}  // namespace
