// wayscribe-cli: the desktop program's scripting companion.
#include "cli/command_registry.h"

#include <algorithm>
#include <cstring>
#include <iostream>

namespace wayscribe::cli {

std::vector<CommandEntry> &commandTable()
{
    static std::vector<CommandEntry> table;
    return table;
}

} // namespace wayscribe::cli

namespace {

int usage(std::ostream &err)
{
    auto table = wayscribe::cli::commandTable();
    std::sort(table.begin(), table.end(),
              [](const auto &a, const auto &b) { return std::strcmp(a.name, b.name) < 0; });
    err << "usage: wayscribe-cli COMMAND ...\n";
    for (const auto &c : table)
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
    for (const auto &c : wayscribe::cli::commandTable())
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
