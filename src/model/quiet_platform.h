#pragma once

#include "model/platform.h"

namespace wayscribe {

// A platform without a person: shows nothing, chooses no file, and answers
// every question the same way. The command-line tool and the benchmarks
// build on it.
class QuietPlatform : public Platform {
public:
    explicit QuietPlatform(Answer answer = Answer::Yes) : answer_(answer) {}

    Answer message(const std::string &, const std::string &, MessageButtons buttons, MessageIcon,
                   const std::string & = {}) override
    {
        return buttons == MessageButtons::Ok ? Answer::Ok : answer_;
    }
    std::string inputBox(const std::string &, const std::string &, const std::string &) override
    {
        return {};
    }
    std::string chooseOpenFile(const FileDialogRequest &) override { return {}; }
    std::string chooseSaveFile(const FileDialogRequest &) override { return {}; }
    std::string chooseFolder(const std::string &, const std::string &) override { return {}; }
    void setClipboardText(const std::string &) override {}
    void setStatus(const std::string &) override {}
    void setWaitCursor(bool) override {}
    void processEvents() override {}
    void redrawMap() override {}
    void mapLockChanged() override {}

protected:
    Answer answer() const { return answer_; }

private:
    Answer answer_;
};

} // namespace wayscribe
