#pragma once

#include "app/qt_platform.h"
#include "support/test_support.h"

namespace wayscribe::test {

// The scripted platform, with the window's own status line, redraw and lock
// controls, so that the window under test behaves as on the desktop while
// every question and file choice comes from the script.
class WindowPlatform : public ScriptedPlatform {
public:
    PlatformHost *host = nullptr;
    void setStatus(const std::string &text) override
    {
        ScriptedPlatform::setStatus(text);
        if (host)
            host->showStatus(text);
    }
    void redrawMap() override
    {
        ScriptedPlatform::redrawMap();
        if (host)
            host->redrawMap();
    }
    void mapLockChanged() override
    {
        ScriptedPlatform::mapLockChanged();
        if (host)
            host->syncLockControls();
    }
};

} // namespace wayscribe::test
