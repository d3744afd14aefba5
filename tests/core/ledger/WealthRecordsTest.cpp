#include "core/ledger/LedgerAssets.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/LedgerLoans.hpp"
#include "core/ledger/WealthError.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <functional>

namespace vantello {
namespace {

using testing::amount;
using testing::at;

WealthError::Code codeOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const WealthError& error) {
        return error.code();
    }
    ADD_FAILURE() << "no error";
    return {};
}

TEST(LedgerAssets, NamesTrimmedValuationsKeptInDateOrder) {
    Ledger ledger;
    const Uuid id = Uuid::random();
    saveAsset(ledger, Asset{id, "  Auto\n", "car", {{at(2026, 3, 1), amount("9000")}, {at(2026, 1, 1), amount("0")}}});
    const Asset& saved = ledger.data().assets.front();
    EXPECT_EQ(saved.name, "Auto");
    EXPECT_EQ(saved.valuations.front().date, at(2026, 1, 1));

    addValuation(ledger, id, {at(2026, 2, 1), amount("9500")});
    addValuation(ledger, id, {at(2026, 3, 1), amount("8800")});  // same day: after the earlier one
    std::vector<Decimal> values;
    for (const auto& valuation : ledger.data().assets.front().valuations) values.push_back(valuation.value);
    EXPECT_EQ(values, (std::vector<Decimal>{Decimal(), amount("9500"), amount("9000"), amount("8800")}));

    saveAsset(ledger, Asset{id, "Auto nuova", "car", {}});
    ASSERT_EQ(ledger.data().assets.size(), 1U);
    EXPECT_EQ(ledger.data().assets.front().name, "Auto nuova");
    deleteAsset(ledger, ledger.data().assets.front().id);
    EXPECT_TRUE(ledger.data().assets.empty());
}

TEST(LedgerAssets, RefusalsChangeNothing) {
    Ledger ledger;
    const Uuid id = Uuid::random();
    saveAsset(ledger, Asset{id, "Casa", "house", {}});
    const Ledger before = ledger;
    EXPECT_EQ(codeOf([&] { saveAsset(ledger, Asset{id, " \n", "house", {}}); }), WealthError::Code::emptyName);
    EXPECT_EQ(codeOf([&] { saveAsset(ledger, Asset{id, "Casa", "house", {{at(2026, 1, 1), amount("-1")}}}); }),
              WealthError::Code::negativeValue);
    try {
        addValuation(ledger, id, {at(2026, 1, 1), amount("-1")});
        ADD_FAILURE() << "no error";
    } catch (const WealthError& error) {
        EXPECT_STREQ(error.what(), "Il valore non può essere negativo.");
    }
    EXPECT_THROW(addValuation(ledger, Uuid::random(), {at(2026, 1, 1), amount("1")}), LedgerError);
    EXPECT_EQ(ledger, before);
}

TEST(LedgerLoans, TermsCheckedAndTheBookedRuleKeptByTheLedger) {
    Loan loan;
    loan.id = Uuid::random();
    loan.name = " Mutuo ";
    loan.principal = amount("100000");
    loan.months = 240;
    loan.recurringRuleID = Uuid::random();  // not made by booking: not kept
    Ledger ledger;
    saveLoan(ledger, loan);
    EXPECT_EQ(ledger.data().loans.front().name, "Mutuo");
    EXPECT_EQ(ledger.data().loans.front().recurringRuleID, std::nullopt);

    const Ledger before = ledger;
    for (auto change : std::vector<std::function<void(Loan&)>>{[](Loan& bad) { bad.principal = Decimal(); },
                                                               [](Loan& bad) { bad.months = 0; },
                                                               [](Loan& bad) { bad.annualRate = amount("-0.1"); }}) {
        Loan bad = loan;
        change(bad);
        EXPECT_EQ(codeOf([&] { saveLoan(ledger, bad); }), WealthError::Code::invalidLoan);
    }
    loan.name = "\t";
    EXPECT_EQ(codeOf([&] { saveLoan(ledger, loan); }), WealthError::Code::emptyName);
    EXPECT_EQ(ledger, before);
}

}  // namespace
}  // namespace vantello
