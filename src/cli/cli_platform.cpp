#include "cli/cli_platform.h"

#include <ostream>

namespace wayscribe {

Answer CliPlatform::message(const std::string &text, const std::string &, MessageButtons buttons, MessageIcon,
                            const std::string &detail)
{
    ++messages_;
    // Texts are written as stored; line breaks inside a message become LF.
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        err_ << text[i];
    }
    err_ << '\n';
    if (!detail.empty())
        err_ << detail << '\n';
    if (buttons == MessageButtons::Ok)
        return Answer::Ok;
    return answer();
}

} // namespace wayscribe
