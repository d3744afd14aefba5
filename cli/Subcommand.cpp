#include "cli/Subcommand.hpp"

#include <exception>

namespace vantello::cli {

int runSubcommand(const std::vector<std::string>& arguments, ArgumentRules rules, const char* usage,
                  std::ostream& out, std::ostream& err, const Preparation& prepare) {
    rules.flags.insert("--help");
    // Kept here so that the prepared work may refer to the parsed options.
    Arguments parsed;
    PreparedWork work;
    try {
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << usage;
            return 0;
        }
        work = prepare(parsed);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << usage;
        return 2;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
    try {
        return work();
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
