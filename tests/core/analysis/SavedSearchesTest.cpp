#include "core/analysis/SavedSearches.hpp"
#include "core/analysis/SearchError.hpp"

#include <gtest/gtest.h>

#include <string>

namespace vantello {
namespace {

TEST(SavedSearches, SaveRenameAndRemoveChangeTheLedger) {
    Ledger ledger;
    TransactionFilter filter;
    filter.text = "caffè";
    const SavedSearch saved = saveSearch(ledger, "  Caffè al bar\n", filter);
    EXPECT_EQ(saved.name, "Caffè al bar");
    EXPECT_FALSE(saved.id.isNil());
    ASSERT_EQ(ledger.data().savedSearches, std::vector<SavedSearch>{saved});
    const SavedSearch other = saveSearch(ledger, "Spesa", TransactionFilter{});
    EXPECT_NE(other.id, saved.id);

    EXPECT_EQ(savedSearchNamed(ledger, " CAFFE AL BAR"), &ledger.data().savedSearches.front());
    EXPECT_EQ(savedSearchNamed(ledger, "caffè"), nullptr);

    renameSavedSearch(ledger, saved.id, " Bar ");
    EXPECT_EQ(ledger.data().savedSearches.front().name, "Bar");
    EXPECT_EQ(ledger.data().savedSearches.front().filter, filter);

    removeSavedSearch(ledger, saved.id);
    ASSERT_EQ(ledger.data().savedSearches.size(), 1u);
    EXPECT_EQ(ledger.data().savedSearches.front().id, other.id);
}

TEST(SavedSearches, EmptyNameFailsAndChangesNothing) {
    Ledger ledger;
    const SavedSearch kept = saveSearch(ledger, "Tenuta", TransactionFilter{});
    const Ledger before = ledger;
    for (const std::string name : {"", " \t\n"}) {
        try {
            (void)saveSearch(ledger, name, TransactionFilter{});
            ADD_FAILURE() << "saved with the name «" << name << "»";
        } catch (const SearchError& error) {
            EXPECT_EQ(error.code(), SearchError::Code::emptyName);
            EXPECT_STREQ(error.what(), "Scrivi un nome per la ricerca.");
        }
        EXPECT_THROW(renameSavedSearch(ledger, kept.id, name), SearchError);
    }
    EXPECT_EQ(ledger, before);
}

}  // namespace
}  // namespace vantello
