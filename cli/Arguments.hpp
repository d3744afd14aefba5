#pragma once
// The options every subcommand reads the same way: "--data-dir DIR" (or "--data-dir=DIR") and
// "--profile ID|NAME", flags such as "--json", options with a value, and positional arguments;
// "--" ends the options.

#include "core/base/UserError.hpp"
#include "core/files/ManagedProfile.hpp"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

// A command line the subcommand cannot accept; the message says what is wrong.
class ArgumentError : public UserError {
public:
    using UserError::UserError;
};

// The options every subcommand knows, which may also come before the subcommand's name.
inline constexpr std::string_view dataDirOption = "--data-dir";
inline constexpr std::string_view profileOption = "--profile";

// What a subcommand accepts besides the global options.
struct ArgumentRules {
    std::set<std::string> flags;          // "--json"
    std::set<std::string> valueOptions;   // "--from", followed by a value
    std::set<std::string> repeatedOptions;  // "--category", followed by a value, as often as wanted
    std::size_t minimumPositional = 0;
    std::size_t maximumPositional = 0;
};

class Arguments {
public:
    // Throws ArgumentError for an unknown option, a missing value, a repeated option (other than
    // the repeatedOptions) or the wrong number of positional arguments.
    [[nodiscard]] static Arguments parse(const std::vector<std::string>& arguments, const ArgumentRules& rules);

    [[nodiscard]] bool has(std::string_view flag) const { return flags_.contains(std::string(flag)); }
    [[nodiscard]] std::optional<std::string> value(std::string_view option) const;
    // Every value of a repeated option, in command-line order.
    [[nodiscard]] std::vector<std::string> values(std::string_view option) const;
    [[nodiscard]] const std::vector<std::string>& positional() const { return positional_; }

    // The folder given with --data-dir, else the application's data folder: where the user's
    // own data, the profile list and the backups live.
    [[nodiscard]] std::filesystem::path rootFolder() const;
    // The managed profile chosen with --profile (ProfileError notFound for an unknown one).
    [[nodiscard]] std::optional<ManagedProfile> profile() const;
    // The data folder to work on: the chosen profile's, else the root folder.
    [[nodiscard]] std::filesystem::path dataFolder() const;

private:
    std::set<std::string> flags_;
    std::map<std::string, std::string, std::less<>> values_;
    std::map<std::string, std::vector<std::string>, std::less<>> repeatedValues_;
    std::vector<std::string> positional_;
};

}  // namespace vantello::cli
