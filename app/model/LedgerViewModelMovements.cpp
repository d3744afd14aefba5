// The model's operations on single movements: the editor's drafts, deleting, duplicating and the
// salary banner.

#include "app/model/LedgerViewModel.hpp"

#include "app/settings/Language.hpp"
#include "core/base/Localization.hpp"
#include "core/base/SystemReason.hpp"
#include "core/ledger/AccountIDs.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/planning/SalaryBanner.hpp"
#include "core/planning/WorkStatus.hpp"

namespace vantello::app {

namespace {

QString text(const std::string& message) { return QString::fromStdString(message); }

// Why the typed amount cannot be a movement's, or nothing when it can.
std::optional<QString> amountProblem(const std::string& amountText) {
    const auto amount = AmountParser::parse(amountText);
    if (!amount) return text(L10n::tr("Scrivi un importo, per esempio 250 o 250,00."));
    if (amount->sign() <= 0) return text(L10n::tr("Scrivi un importo maggiore di zero, per esempio 12,50."));
    return std::nullopt;
}

}  // namespace

TransactionDraft LedgerViewModel::newDraft(TransactionKind kind) const {
    const auto categories = ledger_.categories(kind);
    const std::string category = categories.empty() ? std::string(fallbackCategoryID(kind)) : categories.front().id;
    std::string account = selectedAccountID_ && ledger_.account(*selectedAccountID_) ? *selectedAccountID_
                                                                                     : std::string(mainAccountID);
    return TransactionDraft(kind, now_(), category, std::move(account));
}

std::optional<TransactionDraft> LedgerViewModel::draftOf(const Uuid& transactionID) const {
    const Transaction* found = ledger_.transaction(transactionID);
    if (!found) return std::nullopt;
    return TransactionDraft(*found, interfaceLocaleName());
}

TransactionDraft LedgerViewModel::salaryDraft() const {
    TransactionDraft draft(TransactionKind::income, now_(), std::string(salaryCategoryID), std::string(mainAccountID));
    if (const auto last = lastSalary(ledger_.transactions())) {
        const TransactionDraft previous(*last, interfaceLocaleName());
        draft.amountText = previous.amountText;
        draft.note = previous.note;
        if (ledger_.account(last->accountID)) draft.accountID = last->accountID;
    }
    return draft;
}

std::optional<QString> LedgerViewModel::saveDraft(const TransactionDraft& draft) {
    if (auto problem = amountProblem(draft.amountText)) return problem;
    const auto transaction = draft.transaction();
    if (!transaction) return text(L10n::tr("Scrivi un importo, per esempio 250 o 250,00."));
    const bool isNew = draft.isNew || !ledger_.transaction(draft.id);
    return apply(text(isNew ? L10n::tr("Aggiungi movimento") : L10n::tr("Modifica movimento")),
                 [&](Ledger& ledger) {
                     if (isNew) {
                         ledger.add(*transaction);
                     } else {
                         ledger.update(*transaction);
                     }
                 },
                 ErrorRoute::caller);
}

void LedgerViewModel::deleteTransactions(const std::vector<Uuid>& transactionIDs) {
    if (transactionIDs.empty()) return;
    apply(text(transactionIDs.size() == 1 ? L10n::tr("Elimina movimento") : L10n::tr("Elimina movimenti")),
          [&](Ledger& ledger) {
              for (const Uuid& id : transactionIDs) ledger.deleteTransaction(id);
          });
}

std::optional<Uuid> LedgerViewModel::duplicateTransaction(const Uuid& transactionID) {
    const Transaction* original = ledger_.transaction(transactionID);
    if (!original) return std::nullopt;
    Transaction copy = *original;
    copy.id = Uuid::random();
    copy.date = now_();
    copy.attachments.clear();  // each attachment file belongs to one movement
    copy.recurringRuleID.reset();
    apply(text(L10n::tr("Duplica movimento")), [&](Ledger& ledger) { ledger.add(copy); });
    return ledger_.transaction(copy.id) ? std::optional<Uuid>(copy.id) : std::nullopt;
}

std::variant<Attachment, QString> LedgerViewModel::importAttachment(const std::filesystem::path& file) {
    if (!attachmentStore_) return text(L10n::tr("Gli allegati non sono disponibili."));
    try {
        Attachment attachment = attachmentStore_->importFile(file, now_());
        unsavedAttachments_.push_back(attachment);
        return attachment;
    } catch (const UserError& error) {
        return text(error.message());
    } catch (const std::filesystem::filesystem_error& error) {
        return text(L10n::tr("Non riesco ad allegare «{name}»: {reason}",
                             {{"name", file.filename().string()}, {"reason", systemReason(error.code().value())}}));
    }
}

void LedgerViewModel::finishEditingAttachments(bool saved) {
    if (!saved && attachmentStore_ && canRemoveAttachments_) {
        for (const Attachment& attachment : unsavedAttachments_) attachmentStore_->remove(attachment);
    }
    unsavedAttachments_.clear();
}

std::optional<QString> LedgerViewModel::salaryBannerText() const {
    const SalaryBannerSettings settings{salaryReminder_,
                                        preferences_ ? preferences_->salaryReminderDismissedDay() : std::nullopt,
                                        salaryPostponedDay_};
    const auto banner =
        salaryBanner(settings, ledger_.unemploymentPeriods(), ledger_.transactions(), now_(), calendar_);
    if (!banner) return std::nullopt;
    return text(*banner);
}

}  // namespace vantello::app
