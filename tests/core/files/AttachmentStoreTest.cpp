// Attaching copies a regular file of at most 25 MB under a fresh name, and the clean-up removes
// only old copies that no movement refers to.

#include "core/files/AttachmentStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace {

using namespace vantello;
using vantello::testing::at;
namespace fs = std::filesystem;

class AttachmentStoreTest : public vantello::testing::TemporaryFolderTest {
protected:
    fs::path picked(const std::string& name, std::uintmax_t size) const {
        fs::create_directories(folder / "scelti");
        const fs::path file = folder / "scelti" / name;
        writeFileAtomically(file, "");
        fs::resize_file(file, size);  // sparse: no 25 MB written
        return file;
    }
    const AttachmentStore store = AttachmentStore::inDataFolder(folder / "dati");
};

TEST_F(AttachmentStoreTest, AcceptsExactlyTheLimitAndRefusesOneByteMore) {
    const Attachment attached = store.importFile(picked("grande.bin", 26214400), at(2025, 3, 1));
    EXPECT_EQ(attached.byteCount, 26214400);
    EXPECT_EQ(fs::file_size(store.path(attached)), 26214400u);

    try {
        (void)store.importFile(picked("troppo.bin", 26214401), at(2025, 3, 1));
        FAIL() << "a file over the limit was accepted";
    } catch (const AttachmentStore::AttachmentError& error) {
        EXPECT_EQ(error.code(), AttachmentErrorCode::tooLarge);
        EXPECT_STREQ(error.what(), "«troppo.bin» supera i 25 MB.");
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(store.folder), fs::directory_iterator()), 1);
}

TEST_F(AttachmentStoreTest, RefusesAFolderWithItsName) {
    fs::create_directories(folder / "Ricevute");
    try {
        (void)store.importFile(folder / "Ricevute", at(2025, 3, 1));
        FAIL() << "a folder was accepted";
    } catch (const AttachmentStore::AttachmentError& error) {
        EXPECT_EQ(error.code(), AttachmentErrorCode::notAFile);
        EXPECT_STREQ(error.what(), "«Ricevute» non è un file: le cartelle e i pacchetti non si possono allegare.");
    }
    EXPECT_FALSE(fs::exists(store.folder));
}

TEST_F(AttachmentStoreTest, CopiesUnderUniqueNamesWithLowerCaseExtension) {
    const fs::path file = picked("Scontrino.PDF", 3);
    const Attachment first = store.importFile(file, at(2025, 3, 1));
    const Attachment second = store.importFile(file, at(2025, 3, 2));
    EXPECT_NE(first.storedName, second.storedName);
    EXPECT_EQ(first.storedName, first.id.text() + ".pdf");
    EXPECT_EQ(first.originalName, "Scontrino.PDF");
    EXPECT_EQ(first.addedAt, at(2025, 3, 1));
    EXPECT_TRUE(fs::exists(file));  // copied, not moved
    EXPECT_EQ(readWholeFile(store.path(second)), readWholeFile(file));

    const Attachment bare = store.importFile(picked("LEGGIMI", 1), at(2025, 3, 1));
    EXPECT_EQ(bare.storedName, bare.id.text());

    store.remove(first);
    store.remove(first);  // already gone: fine
    EXPECT_FALSE(fs::exists(store.path(first)));
}

TEST_F(AttachmentStoreTest, CleanUpKeepsReferencedAndRecentFiles) {
    EXPECT_EQ(AttachmentStore{folder / "mai-creata"}.removeUnreferencedFiles({}, std::chrono::system_clock::now()), 0u);

    const Attachment referenced = store.importFile(picked("a.pdf", 1), at(2025, 3, 1));
    const Attachment orphan = store.importFile(picked("b.pdf", 1), at(2025, 3, 1));
    const Attachment recent = store.importFile(picked("c.pdf", 1), at(2025, 3, 1));
    fs::create_directories(store.folder / "sottocartella");
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(2);
    for (const Attachment& attachment : {referenced, orphan}) fs::last_write_time(store.path(attachment), old);
    fs::last_write_time(store.folder / "sottocartella", old);

    LedgerData data;
    Transaction movement = vantello::testing::expense("10", at(2025, 3, 1));
    movement.attachments = {referenced};
    data.transactions = std::vector{vantello::testing::expense("5", at(2025, 3, 2)), movement};

    const auto cutoff = std::chrono::system_clock::now() - std::chrono::hours(1);
    EXPECT_EQ(store.removeUnreferencedFiles(storedAttachmentNames(data), cutoff), 1u);
    EXPECT_TRUE(fs::exists(store.path(referenced)));
    EXPECT_FALSE(fs::exists(store.path(orphan)));
    EXPECT_TRUE(fs::exists(store.path(recent)));
    EXPECT_TRUE(fs::exists(store.folder / "sottocartella"));
}

}  // namespace
