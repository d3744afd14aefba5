#include "core/ledger/LedgerAttachments.hpp"

#include "core/base/Localization.hpp"
#include "core/ledger/LedgerError.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vantello {

namespace {

std::size_t indexOfTransaction(const Ledger& ledger, const Uuid& transactionID) {
    const auto& transactions = ledger.transactions();
    const auto found = std::find_if(transactions.begin(), transactions.end(),
                                    [&](const Transaction& transaction) { return transaction.id == transactionID; });
    if (found == transactions.end()) throw LedgerError(LedgerError::Code::notFound);
    return static_cast<std::size_t>(found - transactions.begin());
}

}  // namespace

AttachmentLookupError::AttachmentLookupError(Code code)
    : CodedError(code, L10n::tr("L'allegato non esiste più.")) {}

void addAttachment(Ledger& ledger, const Uuid& transactionID, Attachment attachment) {
    const std::size_t index = indexOfTransaction(ledger, transactionID);
    ledger.change([&](LedgerData& data) {
        data.transactions.update(index, [&](Transaction& transaction) {
            transaction.attachments.push_back(std::move(attachment));
        });
    });
}

Attachment removeAttachment(Ledger& ledger, const Uuid& transactionID, const Uuid& attachmentID) {
    const std::size_t index = indexOfTransaction(ledger, transactionID);
    const auto& attachments = ledger.transactions()[index].attachments;
    const auto found = std::find_if(attachments.begin(), attachments.end(),
                                    [&](const Attachment& attachment) { return attachment.id == attachmentID; });
    if (found == attachments.end()) throw AttachmentLookupError(AttachmentLookupError::Code::attachmentNotFound);
    Attachment removed = *found;
    const auto position = found - attachments.begin();
    ledger.change([&](LedgerData& data) {
        data.transactions.update(index, [&](Transaction& transaction) {
            transaction.attachments.erase(transaction.attachments.begin() + position);
        });
    });
    return removed;
}

}  // namespace vantello
