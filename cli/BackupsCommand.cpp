#include "cli/BackupsCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/BackupOptions.hpp"
#include "core/base/Calendar.hpp"

namespace vantello::cli {

int runBackups(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        rules.valueOptions = {"--folder"};
        parsed = Arguments::parse(arguments, rules);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << backupsUsage;
        return 2;
    }
    if (parsed.has("--help")) {
        out << backupsUsage;
        return 0;
    }

    try {
        const std::vector<BackupInfo> backups = backupStore(parsed).list(Calendar::current());
        if (parsed.has("--json")) {
            Json list = Json::array();
            for (const BackupInfo& backup : backups) list.push_back(backupJson(backup));
            out << JsonCoding::pretty(list);
            return 0;
        }
        for (const BackupInfo& backup : backups) printBackup(backup, out);
        out << "Backup: " << backups.size() << '\n';
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
