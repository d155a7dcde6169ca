#pragma once

#include "model/quiet_platform.h"

#include <iosfwd>

namespace wayscribe {

// The platform of the command-line tool: what the desktop program would show
// in a message box goes to standard error, questions get a fixed answer, and
// nothing is ever chosen in a file dialog.
class CliPlatform : public QuietPlatform {
public:
    explicit CliPlatform(std::ostream &err, Answer answer = Answer::Yes) : QuietPlatform(answer), err_(err) {}

    Answer message(const std::string &text, const std::string &title, MessageButtons buttons,
                   MessageIcon icon, const std::string &detail = {}) override;

    int messageCount() const { return messages_; }

private:
    std::ostream &err_;
    int messages_ = 0;
};

} // namespace wayscribe
