#pragma once

#include "model/platform.h"

#include <QElapsedTimer>

class QWidget;

namespace wayscribe {

// What the window shows for the platform: the status line, the redraw, the
// map lock's controls.
class PlatformHost {
public:
    virtual ~PlatformHost() = default;
    virtual QWidget *dialogParent() = 0;
    virtual void showStatus(const std::string &text) = 0;
    virtual void redrawMap() = 0;
    virtual void syncLockControls() = 0;
};

// The desktop's platform: Qt dialogs, clipboard and cursor.
class QtPlatform : public Platform {
public:
    void attach(PlatformHost *host) { host_ = host; }

    Answer message(const std::string &text, const std::string &title, MessageButtons buttons,
                   MessageIcon icon, const std::string &detail = {}) override;
    std::string inputBox(const std::string &prompt, const std::string &title,
                         const std::string &initial) override;
    std::string chooseOpenFile(const FileDialogRequest &request) override;
    std::string chooseSaveFile(const FileDialogRequest &request) override;
    std::string chooseFolder(const std::string &title, const std::string &startFolder) override;
    void setClipboardText(const std::string &text) override;
    void setStatus(const std::string &text) override;
    void setWaitCursor(bool waiting) override;
    void processEvents() override;
    void redrawMap() override;
    void mapLockChanged() override;

private:
    QWidget *parent() const;

    PlatformHost *host_ = nullptr;
    int waitDepth_ = 0;
    QElapsedTimer sinceEvents_;
};

// "Description (*.ext)|*.ext" as a Qt file dialog filter.
QString qtFileFilter(const std::string &filter);

} // namespace wayscribe
