#include "core/ledger/LedgerLoans.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/RecordLookup.hpp"
#include "core/ledger/WealthError.hpp"

#include <algorithm>

namespace vantello {

void checkLoanTerms(const Loan& loan) {
    if (loan.principal.sign() <= 0 || loan.months <= 0 || loan.annualRate.sign() < 0) {
        throw WealthError(WealthError::Code::invalidLoan);
    }
}

void saveLoan(Ledger& ledger, Loan loan) {
    loan.name = Text::trimmed(loan.name);
    if (loan.name.empty()) throw WealthError(WealthError::Code::emptyName);
    checkLoanTerms(loan);
    ledger.change([&](LedgerData& data) {
        const auto found = std::ranges::find(data.loans, loan.id, &Loan::id);
        if (found == data.loans.end()) {
            loan.recurringRuleID.reset();
            data.loans.push_back(std::move(loan));
        } else {
            loan.recurringRuleID = found->recurringRuleID;
            *found = std::move(loan);
        }
    });
}

void deleteLoan(Ledger& ledger, const Uuid& loanID) {
    const Loan* loan = findByID(ledger.data().loans, loanID);
    if (!loan) return;
    // Copies: `loanID` may refer to the loan about to be erased.
    const Uuid removedID = loanID;
    const std::optional<Uuid> ruleID = loan->recurringRuleID;
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.loans, [&](const Loan& each) { return each.id == removedID; });
        if (ruleID) std::erase_if(data.recurringRules, [&](const RecurringRule& rule) { return rule.id == *ruleID; });
    });
}

}  // namespace vantello
