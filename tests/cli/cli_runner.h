#pragma once

#include <string>
#include <vector>

namespace wayscribe::test {

struct CliResult {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs the built wayscribe-cli with the given arguments.
CliResult runCli(const std::vector<std::string> &args);

} // namespace wayscribe::test
