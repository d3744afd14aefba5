#pragma once
// The attachments of a movement: adding a record when a file has been copied in, and taking
// one away. The files themselves belong to the attachment store.

#include "core/base/UserError.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/Attachment.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

enum class AttachmentLookupErrorCode { attachmentNotFound };

// "L'allegato non esiste più."
class AttachmentLookupError : public CodedError<AttachmentLookupErrorCode> {
public:
    using Code = AttachmentLookupErrorCode;
    explicit AttachmentLookupError(Code code);
};

// Appends the attachment to the movement's list; LedgerError notFound when there is no such
// movement.
void addAttachment(Ledger& ledger, const Uuid& transactionID, Attachment attachment);

// Takes the attachment off the movement and returns it, so that its file can be removed after
// the save. LedgerError notFound for the movement, AttachmentLookupError for the attachment.
Attachment removeAttachment(Ledger& ledger, const Uuid& transactionID, const Uuid& attachmentID);

}  // namespace vantello
