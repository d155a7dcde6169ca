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

    Answer message(const std::string &text, const std::string &title, MessageButtons buttons, MessageIcon icon,
                   const std::string &detail = {}) override;

    int messageCount() const { return messages_; }

private:
    std::ostream &err_;
    int messages_ = 0;
}; }
    std::string chooseOpenFile(const FileDialogRequest &) override { return {}; }
    std::string chooseSaveFile(const FileDialogRequest &) override { return {}; }
    std::string chooseFolder(const std::string &, const std::string &) override { return {}; }
    void setClipboardText(const std::string &) override {}
    void setStatus(const std::string &) override {}
    void setWaitCursor(bool) override {}
    void processEvents() override {}
    void redrawMap() override {}
    void mapLockChanged() override {}

    int messageCount() const { return messages_; }

private:
    std::ostream &err_;
    Answer answer_;
    int messages_ = 0;
};

} // namespace wayscribe
