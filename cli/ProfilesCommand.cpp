#include "cli/ProfilesCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/BackupOptions.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/ProfileStore.hpp"
#include "core/files/Trash.hpp"

#include <filesystem>
#include <string_view>

namespace vantello::cli {

namespace {

namespace fs = std::filesystem;

enum class Action { list, add, rename, remove };

Json profileJson(const ProfileStore& store, const ManagedProfile& profile) {
    Json json = profile;
    json["displayName"] = profile.displayName();
    json["dataFolder"] = store.dataFolder(profile.id).string();
    return json;
}

void printProfile(const ManagedProfile& profile, std::ostream& out) {
    out << profile.displayName() << "  (" << (profile.kind == ManagedProfile::Kind::household ? "famiglia" : "persona")
        << ")\n  id: " << profile.id.text() << '\n';
}

Action checkedAction(const Arguments& arguments) {
    const auto& positional = arguments.positional();
    const std::string verb = positional.empty() ? "list" : positional.front();
    const auto given = [&](std::string_view option) { return arguments.value(option).has_value(); };
    if (verb == "list") {
        if (positional.size() > 1) throw ArgumentError("Argomento inatteso: " + positional[1]);
        return Action::list;
    }
    if (verb == "add") {
        if (positional.size() > 1) throw ArgumentError("Argomento inatteso: " + positional[1]);
        if (arguments.has("--household") && given("--first-name")) {
            throw ArgumentError("Una famiglia ha solo il cognome: --first-name non serve.");
        }
        return Action::add;
    }
    if (verb != "rename" && verb != "remove") {
        throw ArgumentError("Azione sconosciuta: " + verb + " (list, add, rename oppure remove).");
    }
    if (positional.size() < 2) throw ArgumentError("Manca l'id o il nome della gestione.");
    if (arguments.has("--household")) throw ArgumentError("--household vale solo con add.");
    if (verb == "remove") {
        if (given("--first-name") || given("--last-name")) {
            throw ArgumentError("--first-name e --last-name non valgono con remove.");
        }
        return Action::remove;
    }
    if (!given("--first-name") && !given("--last-name")) {
        throw ArgumentError("Scrivi il nuovo nome con --first-name o --last-name.");
    }
    return Action::rename;
}

}  // namespace

int runProfiles(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    Action action = Action::list;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--household", "--help"};
        rules.valueOptions = {"--first-name", "--last-name"};
        rules.maximumPositional = 2;
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << profilesUsage;
            return 0;
        }
        action = checkedAction(parsed);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << profilesUsage;
        return 2;
    }

    try {
        const ProfileStore store(parsed.rootFolder());
        const bool json = parsed.has("--json");
        if (action == Action::list) {
            const ProfileList list = store.load();
            Json profiles = Json::array();
            for (const ManagedProfile& profile : list.profiles) {
                if (json) {
                    profiles.push_back(profileJson(store, profile));
                } else {
                    printProfile(profile, out);
                }
            }
            if (json) {
                out << JsonCoding::pretty(profiles);
            } else {
                out << "Gestioni: " << list.profiles.size() << '\n';
            }
            return 0;
        }

        const DataFolderLock lock(store.root());
        ManagedProfile profile;
        if (action == Action::add) {
            const auto kind = parsed.has("--household") ? ManagedProfile::Kind::household : ManagedProfile::Kind::person;
            profile = store.add(kind, parsed.value("--first-name").value_or(""), parsed.value("--last-name").value_or(""),
                                clockNow());
            if (!json) out << "Gestione aggiunta:\n";
        } else {
            profile = store.find(parsed.positional()[1]);
        }
        if (action == Action::rename) {
            if (const auto first = parsed.value("--first-name")) profile.firstName = *first;
            if (const auto last = parsed.value("--last-name")) profile.lastName = *last;
            store.update(profile);
            profile = store.find(profile.id.text());
            if (!json) out << "Gestione rinominata:\n";
        }
        if (action == Action::remove) {
            const Calendar calendar = Calendar::current();
            const Instant now = clockNow();
            const fs::path trash = homeTrashFolder();
            store.remove(profile.id, [&](const fs::path& folder) { moveToTrash(folder, trash, now, calendar); });
            if (!json) out << "Gestione eliminata; movimenti e allegati sono nel Cestino (" << trash.string() << "):\n";
        }
        if (json) {
            out << JsonCoding::pretty(profileJson(store, profile));
        } else {
            printProfile(profile, out);
        }
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
