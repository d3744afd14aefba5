#include "cli/AttachCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/BackupOptions.hpp"
#include "core/base/Json.hpp"
#include "core/files/AttachmentStore.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/LedgerAttachments.hpp"

namespace vantello::cli {

int runAttach(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    Uuid movementID;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        rules.maximumPositional = 2;
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << attachUsage;
            return 0;
        }
        if (parsed.positional().size() < 2) throw ArgumentError("Servono l'id del movimento e il file da allegare.");
        const auto id = Uuid::parse(parsed.positional()[0]);
        if (!id) throw ArgumentError("Id del movimento non valido: " + parsed.positional()[0]);
        movementID = *id;
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << attachUsage;
        return 2;
    }

    try {
        const auto folder = parsed.dataFolder();
        const DataFolderLock lock(folder);
        const LedgerStore ledgerStore(folder / LedgerStore::fileName);
        Ledger ledger(ledgerStore.load());
        const AttachmentStore attachments = AttachmentStore::inDataFolder(folder);
        const Attachment attachment = attachments.importFile(parsed.positional()[1], clockNow());
        try {
            addAttachment(ledger, movementID, attachment);
            ledgerStore.save(ledger.data());
        } catch (...) {
            attachments.remove(attachment);  // no movement refers to the copy
            throw;
        }
        if (parsed.has("--json")) {
            out << JsonCoding::pretty(Json(attachment));
        } else {
            out << "Allegato «" << attachment.originalName << "» (" << attachment.byteCount << " byte)\n"
                << "  id: " << attachment.id.text() << "\n  file: " << attachments.path(attachment).string() << '\n';
        }
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
