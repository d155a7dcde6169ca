#include "app/window_host.h"

#include "shared/ui/secondary_window.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

namespace wayscribe {

WindowHost::WindowHost(QMainWindow *mainWindow, std::function<void()> redrawMap)
    : QObject(mainWindow), main_(mainWindow), redrawMap_(std::move(redrawMap))
{
}

void WindowHost::setContentsEnabled(bool enabled)
{
    main_->centralWidget()->setEnabled(enabled);
    main_->menuBar()->setEnabled(enabled);
    for (QToolBar *toolbar : main_->findChildren<QToolBar *>(Qt::FindDirectChildrenOnly))
        toolbar->setEnabled(enabled);
}

void WindowHost::centre(QWidget *window) const
{
    window->move(main_->geometry().center() - window->rect().center());
}

void WindowHost::open(SecondaryWindow *window, bool redrawAfter)
{
    setContentsEnabled(false);
    connect(window, &SecondaryWindow::closed, this, [this, redrawAfter] {
        setContentsEnabled(true);
        if (redrawAfter)
            redrawMap_();
    });
    centre(window);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace wayscribe
