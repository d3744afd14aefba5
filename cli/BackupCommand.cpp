#include "cli/BackupCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/BackupOptions.hpp"
#include "core/base/Calendar.hpp"
#include "core/files/DataFolder.hpp"

namespace vantello::cli {

int runBackup(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        rules.valueOptions = {"--folder"};
        parsed = Arguments::parse(arguments, rules);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << backupUsage;
        return 2;
    }
    if (parsed.has("--help")) {
        out << backupUsage;
        return 0;
    }

    try {
        const auto folder = parsed.dataFolder();
        const DataFolderLock lock(folder);
        const BackupInfo made = backupStore(parsed).makeBackup(folder, backupOwner(parsed), BackupStore::defaultKeep,
                                                                clockNow(), Calendar::current());
        if (parsed.has("--json")) {
            out << JsonCoding::pretty(backupJson(made));
        } else {
            out << "Backup fatto:\n";
            printBackup(made, out);
        }
        return 0;
    } catch (const std::exception& error) {
        err << "Backup non riuscito: " << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
