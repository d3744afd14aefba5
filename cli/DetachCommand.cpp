#include "cli/DetachCommand.hpp"

#include "cli/Arguments.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/LedgerAttachments.hpp"

namespace vantello::cli {

int runDetach(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    Uuid movementID;
    Uuid attachmentID;
    try {
        ArgumentRules rules;
        rules.flags = {"--help"};
        rules.maximumPositional = 2;
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << detachUsage;
            return 0;
        }
        if (parsed.positional().size() < 2) throw ArgumentError("Servono l'id del movimento e quello dell'allegato.");
        const auto movement = Uuid::parse(parsed.positional()[0]);
        const auto attachment = Uuid::parse(parsed.positional()[1]);
        if (!movement) throw ArgumentError("Id del movimento non valido: " + parsed.positional()[0]);
        if (!attachment) throw ArgumentError("Id dell'allegato non valido: " + parsed.positional()[1]);
        movementID = *movement;
        attachmentID = *attachment;
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << detachUsage;
        return 2;
    }

    try {
        const auto folder = parsed.dataFolder();
        const DataFolderLock lock(folder);
        const LedgerStore ledgerStore(folder / LedgerStore::fileName);
        Ledger ledger(ledgerStore.load());
        const Attachment removed = removeAttachment(ledger, movementID, attachmentID);
        ledgerStore.save(ledger.data());
        // Only once no saved movement refers to it.
        AttachmentStore::inDataFolder(folder).remove(removed);
        out << "Allegato tolto: «" << removed.originalName << "»\n";
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
