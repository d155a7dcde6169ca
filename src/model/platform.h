#pragma once

#include <string>

namespace wayscribe {

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

// What a file dialog needs: the texts are the program's own, the filter is
// one entry in the form "Description (*.ext)|*.ext".
struct FileDialogRequest {
    std::string title;
    std::string filter;
    std::string startFolder;
    std::string initialName;
};

// Everything that talks to the person or the desktop. The desktop program
// implements it with Qt, the command-line tool and the tests without a window.
// Texts are single-byte (Windows-1252), as the model holds them.
class Platform {
public:
    virtual ~Platform() = default;

    // Message boxes without a title of their own pass "Wayscribe".
    // `detail` is shown apart from the text, for the person who wants to
    // know more (which file, which line).
    virtual Answer message(const std::string &text, const std::string &title, MessageButtons buttons,
                           MessageIcon icon, const std::string &detail = {}) = 0;
    // Empty when cancelled.
    virtual std::string inputBox(const std::string &prompt, const std::string &title,
                                 const std::string &initial) = 0;
    // Both return an empty path when the person cancels.
    virtual std::string chooseOpenFile(const FileDialogRequest &request) = 0;
    virtual std::string chooseSaveFile(const FileDialogRequest &request) = 0;
    virtual std::string chooseFolder(const std::string &title, const std::string &startFolder) = 0;
    virtual void setClipboardText(const std::string &text) = 0;
    // The status line; shown at once, also in the middle of long work.
    virtual void setStatus(const std::string &text) = 0;
    virtual void setWaitCursor(bool waiting) = 0;
    // Lets the interface handle pending events; implementations throttle it.
    virtual void processEvents() = 0;
    // The redraw protocol: the scroll bars follow ViewLeft / ViewTop (with
    // ScrollBusy set meanwhile), then FullRedraw := 1, Refresh_Map (which
    // also redraws the minimap), FullRedraw := 0.
    virtual void redrawMap() = 0;
    // The map lock changed behind the window's back (a load with LoadLock).
    virtual void mapLockChanged() = 0;
};

inline constexpr const char *kProgramTitle = "Wayscribe";

} // namespace wayscribe
