#pragma once

#include "model/world.h"
#include "support/test_support.h"

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

// Saves `world` as `name` in `dir` and gives its path.
std::string saveMap(const TempDir &dir, const std::string &name, const World &world, int gameNumber = 1);

} // namespace wayscribe::test
