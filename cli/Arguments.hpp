#pragma once
// The options every subcommand reads the same way: "--data-dir DIR" (or "--data-dir=DIR"),
// flags such as "--json", options with a value, and positional arguments; "--" ends the options.

#include "core/base/UserError.hpp"

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

// What a subcommand accepts besides "--data-dir", which every subcommand knows.
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

    // The folder given with --data-dir, else the application's data folder.
    [[nodiscard]] std::filesystem::path dataFolder() const;

private:
    std::set<std::string> flags_;
    std::map<std::string, std::string, std::less<>> values_;
    std::map<std::string, std::vector<std::string>, std::less<>> repeatedValues_;
    std::vector<std::string> positional_;
};

}  // namespace vantello::cli
