#include "cli/Arguments.hpp"

#include "core/files/DataFolder.hpp"
#include "core/files/ProfileStore.hpp"

namespace vantello::cli {

Arguments Arguments::parse(const std::vector<std::string>& arguments, const ArgumentRules& rules) {
    Arguments parsed;
    bool optionsEnded = false;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (optionsEnded || argument.size() < 2 || !argument.starts_with("-")) {
            parsed.positional_.push_back(argument);
            continue;
        }
        if (argument == "--") {
            optionsEnded = true;
            continue;
        }

        const auto equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const bool repeated = rules.repeatedOptions.contains(name);
        const bool takesValue = name == dataDirOption || name == profileOption || rules.valueOptions.contains(name) || repeated;
        if (!takesValue && !rules.flags.contains(name)) throw ArgumentError("Opzione sconosciuta: " + name);

        if (!takesValue) {
            if (equals != std::string::npos) throw ArgumentError("L'opzione " + name + " non vuole un valore.");
            parsed.flags_.insert(name);
            continue;
        }
        std::string value;
        if (equals != std::string::npos) {
            value = argument.substr(equals + 1);
        } else if (index + 1 < arguments.size()) {
            value = arguments[++index];
        } else {
            throw ArgumentError("Manca il valore dell'opzione " + name + ".");
        }
        if (value.empty()) throw ArgumentError("Manca il valore dell'opzione " + name + ".");
        if (repeated) {
            parsed.repeatedValues_[name].push_back(std::move(value));
            continue;
        }
        if (!parsed.values_.emplace(name, std::move(value)).second) {
            throw ArgumentError("L'opzione " + name + " compare più di una volta.");
        }
    }

    const std::size_t count = parsed.positional_.size();
    if (count > rules.maximumPositional) {
        throw ArgumentError("Argomento inatteso: " + parsed.positional_[rules.maximumPositional]);
    }
    if (count < rules.minimumPositional) throw ArgumentError("Mancano degli argomenti.");
    return parsed;
}

std::optional<std::string> Arguments::value(std::string_view option) const {
    const auto found = values_.find(option);
    if (found == values_.end()) return std::nullopt;
    return found->second;
}

std::vector<std::string> Arguments::values(std::string_view option) const {
    const auto found = repeatedValues_.find(option);
    if (found == repeatedValues_.end()) return {};
    return found->second;
}

std::filesystem::path Arguments::rootFolder() const {
    if (auto chosen = value(dataDirOption)) return *chosen;
    return vantello::dataFolder();
}

std::optional<ManagedProfile> Arguments::profile() const {
    const auto chosen = value(profileOption);
    if (!chosen) return std::nullopt;
    return ProfileStore(rootFolder()).find(*chosen);
}

std::filesystem::path Arguments::dataFolder() const {
    if (const auto chosen = profile()) return ProfileStore(rootFolder()).dataFolder(chosen->id);
    return rootFolder();
}

}  // namespace vantello::cli
