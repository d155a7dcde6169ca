#pragma once

#include <QObject>

#include <functional>

class QMainWindow;
class QWidget;

namespace wayscribe {

class SecondaryWindow;

// Opens the secondary windows over the main window. While one is open the
// main window's contents (map, panels, menu bar, toolbar) are disabled, not
// the main window itself: a disabled window would disable its child windows
// too. Each closing enables them again, whatever else is still open, as the
// program always did.
class WindowHost : public QObject {
    Q_OBJECT
public:
    WindowHost(QMainWindow *mainWindow, std::function<void()> redrawMap);

    // `redrawAfter`: the map is redrawn when the window closes.
    void open(SecondaryWindow *window, bool redrawAfter = false);
    void centre(QWidget *window) const;

private:
    void setContentsEnabled(bool enabled);

    QMainWindow *main_;
    std::function<void()> redrawMap_;
};

} // namespace wayscribe
