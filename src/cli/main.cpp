// wayscribe-cli: the desktop program's scripting companion.
#include "cli/cli.h"

#include <iostream>

namespace {

struct Command {
    const char *name;
    const char *usage;
    int (*run)(const wayscribe::cli::Args &, std::ostream &, std::ostream &);
};

const Command kCommands[] = {
    {"convert", "convert MAP OUT", wayscribe::cli::runConvert},
    {"merge", "merge MAP OTHER --out OUT", wayscribe::cli::runMerge},
    {"stats", "stats MAP", wayscribe::cli::runStats},
    {"info", "info MAP", wayscribe::cli::runInfo},
};

int usage(std::ostream &err)
{
    err << "usage: wayscribe-cli COMMAND ...\n";
    for (const Command &c : kCommands)
        err << "  wayscribe-cli " << c.usage << '\n';
    return wayscribe::cli::kUsageError;
}

} // namespace

int main(int argc, char **argv)
{
    std::ios::sync_with_stdio(false);
    if (argc < 2)
        return usage(std::cerr);
    const std::string name = argv[1];
    if (name == "--help" || name == "-h" || name == "help") {
        usage(std::cout);
        return wayscribe::cli::kOk;
    }
    for (const Command &c : kCommands)
        if (name == c.name) {
            const wayscribe::cli::Args args(argv + 2, argv + argc);
            const int status = c.run(args, std::cout, std::cerr);
            std::cout.flush();
            if (status == wayscribe::cli::kUsageError)
                std::cerr << "usage: wayscribe-cli " << c.usage << '\n';
            return status;
        }
    std::cerr << "wayscribe-cli: unknown command \"" << name << "\"\n";
    return usage(std::cerr);
}
