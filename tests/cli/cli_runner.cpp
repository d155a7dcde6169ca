#include "cli/cli_runner.h"

#include "support/test_support.h"

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

} // namespace wayscribe::test
