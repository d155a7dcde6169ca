#pragma once

#include "cli/cli.h"

#include <vector>

namespace wayscribe::cli {

using CommandFunction = int (*)(const Args &, std::ostream &out, std::ostream &err);

struct CommandEntry {
    const char *name;
    const char *usage;
    CommandFunction run;
};

// Every command file registers its commands with a static CommandRegistration,
// so that adding a command touches no other file.
std::vector<CommandEntry> &commandTable();

struct CommandRegistration {
    CommandRegistration(const char *name, const char *usage, CommandFunction run)
    {
        commandTable().push_back({name, usage, run});
    }
};

} // namespace wayscribe::cli
