#include "cli/RestoreCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/BackupOptions.hpp"
#include "core/base/Calendar.hpp"
#include "core/files/DataFolder.hpp"

namespace vantello::cli {

int runRestore(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        rules.valueOptions = {"--folder"};
        rules.maximumPositional = 1;
        parsed = Arguments::parse(arguments, rules);
        if (!parsed.has("--help") && parsed.positional().empty()) throw ArgumentError("Manca il nome del backup.");
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << restoreUsage;
        return 2;
    }
    if (parsed.has("--help")) {
        out << restoreUsage;
        return 0;
    }

    try {
        const Calendar calendar = Calendar::current();
        const auto folder = parsed.dataFolder();
        const DataFolderLock lock(folder);
        const BackupStore store = backupStore(parsed);
        const BackupInfo chosen = store.find(parsed.positional().front(), calendar);
        const BackupInfo before = restoreWithSafetyBackup(store, chosen, folder, backupOwner(parsed),
                                                          BackupStore::defaultKeep, clockNow(), calendar);
        if (parsed.has("--json")) {
            out << JsonCoding::pretty({{"restored", backupJson(chosen)}, {"backupBefore", backupJson(before)}});
        } else {
            out << "Ripristinato il backup " << chosen.name() << ".\n"
                << "La situazione di prima è nel backup " << before.name() << ".\n";
        }
        return 0;
    } catch (const std::exception& error) {
        err << "Ripristino non riuscito: " << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
