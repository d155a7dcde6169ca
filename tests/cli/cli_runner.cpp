#include "cli/cli_runner.h"

#include "storage/map_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/wait.h>

namespace wayscribe::test {

namespace {
std::string quote(const std::string &arg)
{
    std::string q = "'";
    for (char c : arg) {
        if (c == '\'')
            q += "'\\''";
        else
            q += c;
    }
    return q + "'";
}
} // namespace

CliResult runCli(const std::vector<std::string> &args)
{
    TempDir dir;
    std::string command = quote(WAYSCRIBE_CLI);
    for (const std::string &a : args)
        command.append(" ").append(quote(a));
    command.append(" >").append(quote(dir.file("out"))).append(" 2>").append(quote(dir.file("err")));
    const int raw = std::system(command.c_str());
    CliResult r;
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    r.out = readFile(dir.file("out"));
    r.err = readFile(dir.file("err"));
    return r;
}

std::string saveMap(const TempDir &dir, const std::string &name, const World &world, int gameNumber)
{
    FileError error;
    EXPECT_TRUE(writeMapFile(dir.file(name), world, static_cast<std::uint8_t>(gameNumber), error))
        << error.describe();
    return dir.file(name);
}

} // namespace wayscribe::test
