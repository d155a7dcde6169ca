#include "app/Orvens_Mapper.h"
#include "app/ui/main_window_harness.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "view/draw/tile_sheet.h"
#include "view/ui/map_picture.h"
#include "view/ui/minimap_widget.h"

#include <QAction>
#include <QDialog>
#include <QMenuBar>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include <filesystem>
#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

bool hasDarkPixel(const QImage &image, QRect area)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (qGray(image.pixel(x, y)) < 20)
                return true;
    return false;
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private slots:
    void startUpWithoutReopeningStartsAtTheTopLeft()
    {
        Harness h;
        h.start("LMOL = False\r\nXLEFT = 50\r\nYTOP = 60\r\n");
        QCOMPARE(h.state.view.viewLeft, 0);
        QCOMPARE(h.state.view.viewTop, 0);
        QVERIFY(h.state.view.viewCols > 10 && h.state.view.viewRows > 10);
        QCOMPARE(h.find<QScrollBar>("hscroll")->maximum(), 200 - h.state.view.viewCols);
        QCOMPARE(h.state.document.mapFileName, std::string());
    }

    void startUpReopensTheLastMapWithItsViewClamped()
    {
        Harness h;
        const std::string map = h.saveMap("last.om1", 6);
        h.start("LMOL = True\r\nWMOL = " + map + "\r\nXLEFT = 190\r\nYTOP = 3\r\n");
        QCOMPARE(h.state.document.mapFileName, map);
        QCOMPARE(h.world->sector(1, 1).terrain, 6);
        QCOMPARE(int(h.state.view.viewLeft), 200 - h.state.view.viewCols);
        QCOMPARE(h.state.view.viewTop, 3);
        QCOMPARE(h.find<QScrollBar>("hscroll")->value(), int(h.state.view.viewLeft));
        QCOMPARE(h.state.document.mapChanged, 0);
    }

    void aMapNamedOnTheCommandLineOpensInsteadOfTheLastMap()
    {
        Harness h;
        const std::string last = h.saveMap("last.om1", 6);
        const std::string named = h.saveMap("named.om1", 9);
        h.start("LMOL = True\r\nWMOL = " + last + "\r\nXLEFT = 40\r\n", named);
        QCOMPARE(h.state.document.mapFileName, named);
        QCOMPARE(h.world->sector(1, 1).terrain, 9);
        QCOMPARE(h.state.view.viewLeft, 0);
    }

    void newAsksOnlyAboutAChangedMap()
    {
        Harness h;
        h.start();
        h.world->sector(2, 2).terrain = 9;
        h.state.document.mapChanged = 1;
        h.platform.answers = {Answer::No};
        h.find<QToolButton>("cmdNew")->click();
        QCOMPARE(h.world->sector(2, 2).terrain, 9);
        QCOMPARE(h.platform.messages.back().text,
                 std::string("Are you sure you wish to New the map without saving?"));
        h.platform.answers = {Answer::Yes};
        h.find<QToolButton>("cmdNew")->click();
        QCOMPARE(h.world->sector(2, 2).terrain, 1);
        QCOMPARE(h.state.document.mapChanged, 0);
        const std::size_t asked = h.platform.messages.size();
        h.find<QAction>("mnuFileNew")->trigger();
        QCOMPARE(h.platform.messages.size(), asked);
    }

    void exitAsksToSaveAChangedMap()
    {
        Harness h;
        h.start();
        h.state.document.mapChanged = 1;
        h.platform.answers = {Answer::Cancel};
        h.window->close();
        QVERIFY(h.window->isVisible());
        QCOMPARE(h.state.document.mapChanged, 1);
        QCOMPARE(h.platform.messages.back().title, std::string("Save before exit?"));
        QCOMPARE(h.platform.messages.back().buttons, MessageButtons::YesNoCancel);

        // Yes opens the save dialog; cancelling it still ends the program.
        h.platform.answers = {Answer::Yes};
        h.window->close();
        QVERIFY(!h.window->isVisible());
        QCOMPARE(h.platform.dialogs.back().title, std::string("Save Map File As..."));
        QVERIFY(std::filesystem::exists(h.dir.file("wayscribe.ini")));

        Harness n;
        n.start();
        n.state.document.mapChanged = 1;
        n.platform.answers = {Answer::No};
        n.window->close();
        QVERIFY(!n.window->isVisible());
        QCOMPARE(n.state.document.mapChanged, 0);
    }

    void loadSaveAndSaveAsThroughTheDialogs()
    {
        Harness h;
        h.start();
        const std::string map = h.saveMap("w.om1", 11);
        h.platform.files = {map};
        h.find<QToolButton>("cmdLoad")->click();
        QCOMPARE(h.world->sector(1, 1).terrain, 11);
        QCOMPARE(h.state.document.mapFileName, map);

        h.world->sector(1, 1).terrain = 12;
        h.state.document.mapChanged = 1;
        h.find<QToolButton>("cmdSave")->click(); // the map has a file: no dialog
        QCOMPARE(h.state.document.mapChanged, 0);
        World back;
        std::uint8_t game;
        QVERIFY(readMapFile(map, back, game).ok);
        QCOMPARE(back.sector(1, 1).terrain, 12);

        const std::size_t dialogs = h.platform.dialogs.size();
        h.find<QAction>("mnuFileSaveAs")->trigger(); // cancelled
        QCOMPARE(h.platform.dialogs.size(), dialogs + 1);
        h.platform.files = {map};
        h.platform.answers = {Answer::No};
        h.find<QAction>("mnuFileSaveAs")->trigger();
        QCOMPARE(h.platform.messages.back().text,
                 std::string("Are you sure you wish to over-write this file?"));
        h.platform.files = {h.dir.file("copy.om1")};
        h.find<QAction>("mnuFileSaveAs")->trigger();
        QCOMPARE(h.state.document.mapFileName, h.dir.file("copy.om1"));
        QVERIFY(std::filesystem::exists(h.dir.file("copy.om1")));

        h.state.document.mapChanged = 1;
        h.platform.answers = {Answer::No};
        h.platform.files = {map};
        h.find<QAction>("mnuFileOpen")->trigger();
        QCOMPARE(h.platform.messages.back().icon, MessageIcon::Critical);
        // Declined: nothing is loaded.
        QCOMPARE(h.state.document.mapFileName, h.dir.file("copy.om1"));
    }

    void tileSetsAreOfferedWhenPresentAndSwitchTheTiles()
    {
        TempDir graphics;
        std::filesystem::copy(WAYSCRIBE_GRAPHICS, graphics.path(), std::filesystem::copy_options::recursive);
        std::filesystem::remove(graphics.path() / "tolma_set" / "l_barren.bmp");
        Harness h(graphics.path().string());
        h.start();
        QVERIFY(!h.find<QAction>("mnuGraphicsTolma")->isEnabled());
        QVERIFY(h.find<QAction>("mnuGraphicsKJC2")->isEnabled());
        QVERIFY(!h.find<QAction>("mnuGraphicsCustom")->isEnabled());
        QVERIFY(h.find<QAction>("mnuGraphicsKJC1")->isChecked());
        h.find<QAction>("mnuGraphicsKJC2")->trigger();
        QCOMPARE(h.state.options.graphicsSetName, std::string("kjc_set2"));
        const QImage water((graphics.path() / "kjc_set2" / "l_water.bmp").c_str());
        QCOMPARE(h.sheetEntry(2), water.convertToFormat(h.sheetEntry(2).format()));
        QVERIFY(readFile(h.dir.file("wayscribe.ini")).find("Set = kjc_set2") != std::string::npos);
    }

    void minimapClicksCentreTheViewAndClamp()
    {
        Harness h;
        h.start();
        auto *minimap = h.find<MinimapWidget>("MiniMap");
        QTest::mouseClick(minimap, Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(h.state.view.viewLeft, 0);
        QCOMPARE(h.state.view.viewTop, 0);
        QTest::mouseClick(minimap, Qt::LeftButton, {}, QPoint(199, 199));
        QCOMPARE(int(h.state.view.viewLeft), 200 - h.state.view.viewCols);
        QCOMPARE(int(h.state.view.viewTop), 200 - h.state.view.viewRows);
        QCOMPARE(h.find<QScrollBar>("vscroll")->value(), int(h.state.view.viewTop));
        h.state.document.fileBusy = 1;
        QTest::mouseClick(minimap, Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(int(h.state.view.viewLeft), 200 - h.state.view.viewCols);
        h.state.document.fileBusy = 0;
    }

    void scrollBarsMoveTheViewUnlessTheProgramSetsThem()
    {
        Harness h;
        h.start();
        auto *hscroll = h.find<QScrollBar>("hscroll");
        hscroll->setValue(30);
        QCOMPARE(h.state.view.viewLeft, 30);
        h.state.view.scrollBusy = 1;
        hscroll->setValue(40);
        QCOMPARE(h.state.view.viewLeft, 30);
        h.state.view.scrollBusy = 0;
        // While a file is busy the origin moves but nothing is redrawn.
        h.world->sector(51, 1).terrain = 2;
        const QImage before = h.window->mapPicture()->backBuffer();
        h.state.document.fileBusy = 1;
        hscroll->setValue(50);
        QCOMPARE(h.state.view.viewLeft, 50);
        QCOMPARE(h.window->mapPicture()->backBuffer(), before);
        h.state.document.fileBusy = 0;
        hscroll->setValue(49);
        hscroll->setValue(50);
        // The keyboard moves the view through the scroll bars.
        QTest::keyClick(h.window->mapPicture(), Qt::Key_Right);
        QCOMPARE(h.state.view.viewLeft, 51);
        QTest::keyClick(h.window->mapPicture(), Qt::Key_PageDown);
        QCOMPARE(int(h.state.view.viewTop), h.state.view.viewRows / 2);
        QTest::keyClick(h.window->mapPicture(), Qt::Key_Left);
        h.state.view.viewTop = 0;
        h.window->redrawMap();
        // The border lines run along the first row and column of the picture.
        QCOMPARE(h.tileAt(1, 1).copy(1, 1, 15, 15), h.sheetEntry(2).copy(1, 1, 15, 15));
    }

    void roadsReachVillagesButNotWater()
    {
        Harness h;
        h.start();
        for (int y = 1; y <= 12; ++y)
            for (int x = 1; x <= 12; ++x)
                h.world->sector(x, y).terrain = 3;
        h.world->sector(5, 5).terrain = 15; // isolated road, for comparison
        h.world->sector(2, 2).terrain = 15;
        h.world->sector(3, 2).terrain = 16; // village to the east
        h.world->sector(1, 2).terrain = 2;  // water to the west
        h.window->redrawMap();
        const QImage isolated = h.tileAt(5, 5);
        const QImage road = h.tileAt(2, 2);
        const QRect east(10, 5, 5, 5), west(0, 5, 5, 5);
        QVERIFY(hasDarkPixel(road, east));
        QVERIFY(!hasDarkPixel(isolated, east));
        QCOMPARE(road.copy(west), isolated.copy(west));
        // Settlements draw no lines of their own.
        QCOMPARE(h.tileAt(3, 2), h.sheetEntry(16));
    }

    void everySecondaryWindowIsADialogThatDisablesTheMainWindowWhileOpen()
    {
        Harness h;
        h.start();
        auto contentsEnabled = [&h] {
            return h.window->centralWidget()->isEnabled() && h.window->menuBar()->isEnabled() &&
                   h.find<QToolButton>("cmdNew")->isEnabled();
        };
        // The travel agency does not open while a file job runs.
        h.state.document.fileBusy = 1;
        h.find<QAction>("mnuInformationTravel")->trigger();
        QVERIFY(!h.window->findChild<QDialog *>("frmRouteFinder"));
        h.state.document.fileBusy = 0;

        for (const auto &[item, form] :
             {std::pair{"mnuFileOptions", "frmOptions"}, std::pair{"mnuEditGame", "frmGameNum"},
              std::pair{"mnuInformationTravel", "frmRouteFinder"}}) {
            QVERIFY(contentsEnabled());
            h.find<QAction>(item)->trigger();
            QPointer<QDialog> window = h.window->findChild<QDialog *>(form);
            QVERIFY2(window, form);
            QVERIFY(window->isVisible());
            QVERIFY(!window->isModal());
            QVERIFY(window->isEnabled());
            QVERIFY2(!contentsEnabled(), form);
            QTest::keyClick(window, Qt::Key_Escape);
            QTRY_VERIFY2(window.isNull(), form); // deleted on close
            QVERIFY2(contentsEnabled(), form);
        }
        QVERIFY(qobject_cast<QDialog *>(h.window->findChild<QWidget *>("frmAbout")));
    }

    void notesShowDungeonIconsOnlyWithTheExtraOption()
    {
        Harness h;
        h.start();
        h.world->sector(4, 4).terrain = 3;
        h.world->sector(4, 4).note = "DUNGEON: The Pit";
        h.world->sector(6, 4).terrain = 17;
        h.world->sector(6, 4).note = "A town note";
        h.state.options.extra = true;
        h.window->redrawMap();
        QCOMPARE(h.tileAt(4, 4), h.sheetEntry(22));
        QCOMPARE(h.tileAt(6, 4), h.sheetEntry(17));
        h.state.options.extra = false;
        h.window->redrawMap();
        QVERIFY(h.tileAt(4, 4) != h.sheetEntry(22));
        // The ordinary note marker instead.
        QVERIFY(h.tileAt(4, 4) != h.sheetEntry(3));
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_test.moc"
