#pragma once

#include "app/window_host.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"
#include "shared/ui/secondary_window.h"
#include "support/test_support.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>
#include <QTest>

#include <memory>

namespace wayscribe::test {

// What the secondary windows are opened with: a world, the program state
// with a view of 40 x 30 sectors, a scripted platform, the change history and
// a shown main window with its host. A window test derives from it after
// QObject, starts each test with resetWindows() and ends it with
// closeWindows().
class WindowFixture {
protected:
    std::unique_ptr<World> world;
    ProgramState state;
    ScriptedPlatform platform;
    std::unique_ptr<ChangeHistory> history;
    std::unique_ptr<QMainWindow> main;
    WindowHost *host = nullptr;

    void resetWindows()
    {
        history.reset();
        world = std::make_unique<World>();
        state = ProgramState{};
        state.view.viewCols = 40;
        state.view.viewRows = 30;
        platform = ScriptedPlatform{};
        history = std::make_unique<ChangeHistory>(*world, state.document);
        main = std::make_unique<QMainWindow>();
        main->setCentralWidget(new QWidget);
        main->menuBar()->addMenu("&File");
        host = new WindowHost(main.get(), [] {});
        main->show();
    }

    // The windows hold on to the host, the history and the world, so they go first.
    void closeWindows()
    {
        QList<QPointer<SecondaryWindow>> windows;
        for (SecondaryWindow *w : main->findChildren<SecondaryWindow *>())
            windows << w;
        for (const QPointer<SecondaryWindow> &w : windows)
            delete w.data();
        main.reset();
        history.reset();
    }

    // Opens `window` over the main window as the program does.
    void openWindow(SecondaryWindow *window)
    {
        host->open(window);
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
};

} // namespace wayscribe::test
