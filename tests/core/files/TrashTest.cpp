// The Trash keeps what it receives under a free name with the record a file manager needs to
// put it back.

#include "core/files/Trash.hpp"

#include "core/base/AtomicFile.hpp"
#include "support/Dates.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace vantello;
using vantello::testing::at;
using vantello::testing::rome;
namespace fs = std::filesystem;

TEST(Trash, EncodesThePathOfTheRecord) {
    EXPECT_EQ(trashInfoPath("/home/anna/Dati 100%/è"), "/home/anna/Dati%20100%25/%C3%A8");
}

class TrashTest : public vantello::testing::TemporaryFolderTest {};

TEST_F(TrashTest, MovesItemsUnderFreeNamesWithTheirRecords) {
    const fs::path trash = folder / "Trash";
    for (const char* place : {"uno", "due"}) {
        fs::create_directories(folder / place / "Cartella" / "dentro");
        writeFileAtomically(folder / place / "Cartella" / "dentro" / "file.txt", place);
    }
    EXPECT_EQ(moveToTrash(folder / "uno" / "Cartella", trash, at(2025, 3, 1, 9, 5, 7), rome()),
              trash / "files" / "Cartella");
    EXPECT_EQ(moveToTrash(folder / "due" / "Cartella", trash, at(2025, 3, 1), rome()), trash / "files" / "Cartella 2");

    EXPECT_FALSE(fs::exists(folder / "uno" / "Cartella"));
    EXPECT_EQ(readWholeFile(trash / "files" / "Cartella 2" / "dentro" / "file.txt"), "due");
    EXPECT_EQ(readWholeFile(trash / "info" / "Cartella.trashinfo"),
              "[Trash Info]\nPath=" + trashInfoPath(folder / "uno" / "Cartella") +
                  "\nDeletionDate=2025-03-01T09:05:07\n");
    EXPECT_THROW((void)moveToTrash(folder / "nessuno", trash, at(2025, 3, 1), rome()), FileError);
}

}  // namespace
