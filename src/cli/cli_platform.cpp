#include "cli/cli_platform.h"

#include "cli/cli.h"

#include <ostream>

namespace wayscribe {

Answer CliPlatform::message(const std::string &text, const std::string &, MessageButtons buttons, MessageIcon,
                            const std::string &detail)
{
    ++messages_;
    // Texts are written as stored; line breaks inside a message become LF.
    cli::writeWithUnixLineEnds(err_, text);
    err_ << '\n';
    if (!detail.empty())
        err_ << detail << '\n';
    if (buttons == MessageButtons::Ok)
        return Answer::Ok;
    return answer();
}

} // namespace wayscribe
