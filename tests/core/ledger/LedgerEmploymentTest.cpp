#include "core/ledger/EmploymentError.hpp"
#include "core/ledger/LedgerEmployment.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

UnemploymentDraft draft(Instant start, std::optional<Instant> end, std::string note = "") {
    return UnemploymentDraft{Uuid::random(), true, false, start, end.has_value(), end.value_or(Instant{}),
                             std::move(note)};
}

std::string messageOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const EmploymentError& error) {
        return error.what();
    }
    return "no error";
}

TEST(LedgerEmployment, SavedPeriodCoversBothEndDays) {
    Ledger ledger;
    saveUnemploymentPeriod(ledger, draft(at(2026, 3, 1, 0), at(2026, 3, 10, 0), "  contratto scaduto\n"));
    EXPECT_EQ(ledger.unemploymentPeriods().front().note, "contratto scaduto");
    EXPECT_TRUE(isUnemployed(ledger.unemploymentPeriods(), at(2026, 3, 10, 18), rome()));
    EXPECT_FALSE(isUnemployed(ledger.unemploymentPeriods(), at(2026, 3, 11, 0), rome()));

    // Touching the end of the first one is no overlap; a one-day period is fine.
    saveUnemploymentPeriod(ledger, draft(at(2026, 3, 10, 0), at(2026, 3, 10, 0)));
    EXPECT_EQ(ledger.unemploymentPeriods().size(), 2U);
}

TEST(LedgerEmployment, RefusesBackwardsOverlappingAndSecondOngoingPeriods) {
    Ledger ledger;
    const UnemploymentDraft ongoing = draft(at(2026, 5, 1, 0), std::nullopt);
    saveUnemploymentPeriod(ledger, ongoing);
    saveUnemploymentPeriod(ledger, draft(at(2026, 1, 1, 0), at(2026, 2, 1, 0)));
    const Ledger before = ledger;

    EXPECT_EQ(messageOf([&] { saveUnemploymentPeriod(ledger, draft(at(2026, 3, 2, 0), at(2026, 3, 1, 0))); }),
              "La fine del periodo deve venire dopo l'inizio.");
    EXPECT_EQ(messageOf([&] { saveUnemploymentPeriod(ledger, draft(at(2026, 6, 1, 0), std::nullopt)); }),
              "C'è già un periodo di disoccupazione in corso.");
    EXPECT_EQ(messageOf([&] { saveUnemploymentPeriod(ledger, draft(at(2026, 1, 20, 0), at(2026, 3, 1, 0))); }),
              "Il periodo si sovrappone a un altro periodo di disoccupazione.");
    EXPECT_EQ(messageOf([&] { saveUnemploymentPeriod(ledger, draft(at(2026, 4, 1, 0), at(2026, 9, 1, 0))); }),
              "Il periodo si sovrappone a un altro periodo di disoccupazione.");
    EXPECT_EQ(ledger, before);

    // Closing the ongoing period replaces it.
    UnemploymentDraft ending = ongoing;
    ending.isNew = false;
    ending.isEnding = true;
    ending.hasEnd = true;
    ending.end = at(2026, 6, 30, 0);
    saveUnemploymentPeriod(ledger, ending);
    EXPECT_EQ(ongoingUnemploymentPeriod(ledger), std::nullopt);
    EXPECT_EQ(ledger.unemploymentPeriods().size(), 2U);
    deleteUnemploymentPeriod(ledger, ongoing.id);
    EXPECT_EQ(ledger.unemploymentPeriods().size(), 1U);
}

}  // namespace
}  // namespace vantello
