#pragma once

#include "model/platform.h"
#include "model/world.h"

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

namespace wayscribe::test {

// A platform without a window: records what the program says and answers
// its questions from a script. An unscripted question is answered Yes / OK
// and an unscripted file choice is cancelled.
class ScriptedPlatform : public Platform {
public:
    struct Message {
        std::string text, title;
        MessageButtons buttons;
        MessageIcon icon;
        std::string detail;
    };

    std::deque<Answer> answers;
    std::deque<std::string> inputs;
    std::deque<std::string> files;
    std::vector<Message> messages;
    std::vector<FileDialogRequest> dialogs;
    std::vector<std::string> statuses;
    std::string clipboard;
    int redraws = 0;
    int eventCalls = 0;
    int lockChanges = 0;
    bool waitCursor = false;

    Answer message(const std::string &text, const std::string &title, MessageButtons buttons,
                   MessageIcon icon, const std::string &detail = {}) override;
    std::string inputBox(const std::string &prompt, const std::string &title,
                         const std::string &initial) override;
    std::string chooseOpenFile(const FileDialogRequest &request) override;
    std::string chooseSaveFile(const FileDialogRequest &request) override;
    std::string chooseFolder(const std::string &title, const std::string &startFolder) override;
    void setClipboardText(const std::string &text) override { clipboard = text; }
    void setStatus(const std::string &text) override { statuses.push_back(text); }
    void setWaitCursor(bool waiting) override { waitCursor = waiting; }
    void processEvents() override { ++eventCalls; }
    void redrawMap() override { ++redraws; }
    void mapLockChanged() override { ++lockChanges; }
};

// A fresh folder under the system's temporary folder, removed afterwards.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir &) = delete;
    TempDir &operator=(const TempDir &) = delete;
    const std::filesystem::path &path() const { return path_; }
    std::string file(const std::string &name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

std::string readFile(const std::string &path);
void writeFile(const std::string &path, const std::string &bytes);

// Settlement n in use at (x, y), its sector carrying the number and the name.
void placeSettlement(World &world, int n, int x, int y, const std::string &name,
                     const std::string &cityState = {});
// A settlement record as "inUse x,y cityState", to compare whole records.
std::string recordText(const Settlement &settlement);
// The three fields of item slot `item` of a shop.
void stockItem(World &world, int n, int shop, int item, const std::string &name, const std::string &number,
               const std::string &price);

} // namespace wayscribe::test
