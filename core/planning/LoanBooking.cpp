#include "core/planning/LoanBooking.hpp"

#include "core/ledger/LedgerError.hpp"
#include "core/ledger/LedgerRecurring.hpp"
#include "core/ledger/RecordLookup.hpp"
#include "core/planning/LoanSchedule.hpp"

namespace vantello {

namespace {

RecurringRule instalmentRule(const Loan& loan, const Uuid& ruleID, const Calendar& calendar) {
    const std::vector<LoanPayment> schedule = loanSchedule(loan, calendar);
    RecurringRule rule;
    rule.id = ruleID;
    rule.kind = TransactionKind::expense;
    rule.amount = loanPayment(loan);
    rule.categoryID = loan.categoryID;
    rule.accountID = loan.accountID;
    rule.note = loan.name;
    rule.frequency = RecurringRule::Frequency::monthly;
    rule.startDate = loan.firstPayment;
    // The last payment's date is the last occurrence: the rule books exactly `months` of them.
    rule.endDate = schedule.empty() ? loan.firstPayment : schedule.back().date;
    return rule;
}

}  // namespace

RecurringRule bookLoanInstalments(Ledger& ledger, const Uuid& loanID, const Calendar& calendar) {
    const Loan* loan = findByID(ledger.data().loans, loanID);
    if (!loan) throw LedgerError(LedgerError::Code::notFound);
    const RecurringRule* booked =
        loan->recurringRuleID ? findByID(ledger.recurringRules(), *loan->recurringRuleID) : nullptr;
    RecurringRule rule = instalmentRule(*loan, booked ? booked->id : Uuid::random(), calendar);
    validateRecurringRule(ledger, rule);
    if (booked) rule.lastGenerated = booked->lastGenerated;
    const Uuid bookedLoanID = loan->id;
    ledger.change([&](LedgerData& data) {
        if (booked) {
            existingRecord(data.recurringRules, rule.id, LedgerError(LedgerError::Code::notFound)) = rule;
        } else {
            data.recurringRules.push_back(rule);
        }
        existingRecord(data.loans, bookedLoanID, LedgerError(LedgerError::Code::notFound)).recurringRuleID = rule.id;
    });
    return rule;
}

}  // namespace vantello
