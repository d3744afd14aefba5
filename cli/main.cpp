// vantello-cli: the command-line companion working on the same data folder as the application.

#include "cli/Commands.hpp"

#include <iostream>
#include <span>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
    std::vector<std::string> arguments(argv + 1, argv + argc);
    return vantello::cli::run(arguments, std::cout, std::cerr);
}
