// The map view beyond its described behaviour: the zoom, the selected
// sector's outline and the hint over an empty map.
#include "app/ui/main_window_harness.h"
#include "view/draw/minimap_drawing.h"
#include "view/ui/minimap_widget.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

QAction *zoomItem(Harness &h, int zoom)
{
    return h.find<QAction>(QString("mnuViewZoom%1").arg(zoom).toLatin1().constData());
}

// The pointer over screen pixel `at` of the map: the status boxes tell the
// sector the hit test found.
QString sectorAt(Harness &h, QPoint at)
{
    QWidget *picture = h.window->mapPicture();
    QMouseEvent move(QEvent::MouseMove, at, picture->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(picture, &move);
    return h.find<QLineEdit>("Xbox")->text().trimmed() + "," + h.find<QLineEdit>("Ybox")->text().trimmed();
}

void turnWheel(Harness &h, QPoint at, int angle, Qt::KeyboardModifiers modifiers)
{
    QWidget *picture = h.window->mapPicture();
    QWheelEvent wheel(at, picture->mapToGlobal(at), {}, QPoint(0, angle), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(picture, &wheel);
}

bool isWhite(const QImage &image, int x, int y)
{
    return image.pixel(x, y) == qRgb(255, 255, 255);
}

} // namespace

class MapViewTest : public QObject {
    Q_OBJECT
private slots:
    void everyZoomCountsTheViewInSectors()
    {
        Harness h;
        h.start();
        QWidget *picture = h.window->mapPicture();
        auto *hscroll = h.find<QScrollBar>("hscroll");
        auto *vscroll = h.find<QScrollBar>("vscroll");
        const ViewState &view = h.state.view;
        for (int zoom = 1; zoom <= 4; ++zoom) {
            zoomItem(h, zoom)->trigger();
            QCOMPARE(h.state.options.desktop.zoom, zoom);
            const int side = 16 * zoom;
            QCOMPARE(int(view.viewCols), picture->width() / side);
            QCOMPARE(int(view.viewRows), picture->height() / side);
            QCOMPARE(hscroll->maximum(), 200 - view.viewCols);
            QCOMPARE(vscroll->maximum(), 200 - view.viewRows);
            QCOMPARE(hscroll->pageStep(), view.viewCols / 2);
            QCOMPARE(vscroll->pageStep(), view.viewRows / 2);

            hscroll->setValue(37);
            vscroll->setValue(50);
            QCOMPARE(view.viewLeft, 37);
            // The last pixel of a tile and the first of the next.
            QCOMPARE(sectorAt(h, QPoint(3 * side - 1, 2 * side)), QString("40,53"));
            QCOMPARE(sectorAt(h, QPoint(3 * side, 2 * side - 1)), QString("41,52"));

            // The minimap's rectangle on the empty (black) world: its corners
            // are the view's origin and size, halved.
            const QImage &minimap = h.window->minimap().image;
            const int right = 18 + view.viewCols / 2, bottom = 25 + view.viewRows / 2;
            QVERIFY(isWhite(minimap, right, 25) && !isWhite(minimap, right + 1, 25));
            QVERIFY(isWhite(minimap, 18, bottom) && !isWhite(minimap, 18, bottom + 1));
            QVERIFY(!isWhite(minimap, 17, 25) && !isWhite(minimap, 18, 24));

            // A minimap click puts its sector in the middle of the view.
            QTest::mouseClick(h.find<MinimapWidget>("MiniMap"), Qt::LeftButton, {}, QPoint(100, 100));
            QCOMPARE(int(view.viewLeft), 99 - view.viewCols / 2);
            QCOMPARE(hscroll->value(), int(view.viewLeft));
        }
        QVERIFY(zoomItem(h, 4)->isChecked() && !zoomItem(h, 1)->isChecked());
    }

    void ctrlWheelZoomsAroundThePointerAndTheZoomIsKept()
    {
        Harness h;
        h.start();
        h.find<QScrollBar>("hscroll")->setValue(60);
        h.find<QScrollBar>("vscroll")->setValue(70);
        const QPoint at(200, 150);
        QCOMPARE(sectorAt(h, at), QString("73,80"));
        turnWheel(h, at, 120, Qt::NoModifier);
        QCOMPARE(h.state.options.desktop.zoom, 1);
        turnWheel(h, at, 120, Qt::ControlModifier);
        QCOMPARE(h.state.options.desktop.zoom, 2);
        QCOMPARE(sectorAt(h, at), QString("73,80"));
        // A touchpad's small turns add up to notches.
        turnWheel(h, at, 60, Qt::ControlModifier);
        QCOMPARE(h.state.options.desktop.zoom, 2);
        turnWheel(h, at, 60 + 240, Qt::ControlModifier);
        QCOMPARE(h.state.options.desktop.zoom, 4);
        QCOMPARE(sectorAt(h, at), QString("73,80"));
        QVERIFY(!h.find<QAction>("mnuViewZoomIn")->isEnabled());
        QVERIFY(zoomItem(h, 4)->isChecked());

        // Near the world's edge the view stops at the edge.
        h.find<QScrollBar>("hscroll")->setValue(0);
        turnWheel(h, QPoint(2, 2), -120, Qt::ControlModifier);
        QCOMPARE(h.state.view.viewLeft, 0);
        QCOMPARE(h.state.options.desktop.zoom, 3);
        QVERIFY(readFile(h.dir.file("wayscribe.ini")).find("\r\nZoom = 3\r\n") != std::string::npos);

        Harness again;
        again.start(readFile(h.dir.file("wayscribe.ini")));
        QCOMPARE(again.state.options.desktop.zoom, 3);
        QCOMPARE(int(again.state.view.viewCols), again.window->mapPicture()->width() / 48);
        QVERIFY(zoomItem(again, 3)->isChecked());
        again.find<QAction>("mnuViewActualSize")->trigger();
        QCOMPARE(int(again.state.view.viewCols), again.window->mapPicture()->width() / 16);
        QVERIFY(!again.find<QAction>("mnuViewZoomOut")->isEnabled());
    }

    void theSelectedSectorIsOutlinedOverCrispTiles()
    {
        Harness h;
        h.start({}, h.saveMap("map.om1", 6));
        h.world->sector(6, 6).terrain = 16; // a village: many colours in one tile
        zoomItem(h, 2)->trigger();
        h.find<QScrollBar>("hscroll")->setValue(0);
        h.find<QScrollBar>("vscroll")->setValue(0);
        h.state.selection.selX = 3;
        h.state.selection.selY = 4;
        h.window->redrawMap();
        QWidget *picture = h.window->mapPicture();
        QImage screen = picture->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QImage &buffer = h.window->mapPicture()->backBuffer();
        // Every pixel of the drawn map is a 2 x 2 block on the screen.
        for (int y = 80; y < 96; ++y)
            for (int x = 80; x < 96; ++x)
                for (const QPoint &corner : {QPoint(0, 0), QPoint(1, 1)})
                    QCOMPARE(screen.pixel(2 * x + corner.x(), 2 * y + corner.y()), buffer.pixel(x, y));
        // Sector (3, 4) is 32 x 32 screen pixels at (64, 96): a black line,
        // a white one inside, then the tile.
        QCOMPARE(screen.pixel(64, 110), qRgb(0, 0, 0));
        QCOMPARE(screen.pixel(95, 127), qRgb(0, 0, 0));
        QCOMPARE(screen.pixel(65, 110), qRgb(255, 255, 255));
        QCOMPARE(screen.pixel(94, 126), qRgb(255, 255, 255));
        QCOMPARE(screen.pixel(66, 110), buffer.pixel(33, 55));

        h.state.selection.selX = 0;
        h.window->redrawMap();
        screen = picture->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(screen.pixel(64, 110), buffer.pixel(32, 55));
        QCOMPARE(screen.pixel(65, 110), buffer.pixel(32, 55));
    }

    void anEmptyMapShowsHowToBeginUntilSomethingIsKnown()
    {
        Harness h;
        h.start();
        auto *hint = h.find<QLabel>("lblEmptyMapHint");
        QVERIFY(hint->isVisible());
        for (const char *way : {"File > Import HTML", "File > Batch Import HTML", "File > Open"})
            QVERIFY(hint->text().contains(way));

        // A brush stroke right under the hint paints, and the hint goes.
        h.find<QToolButton>("iconselect_1")->click();
        const QPoint centre = hint->geometry().center();
        QTest::mouseClick(h.window->mapPicture(), Qt::RightButton, {}, centre);
        QCOMPARE(h.world->sector(centre.x() / 16 + 1, centre.y() / 16 + 1).terrain, 2);
        QVERIFY(!hint->isVisible());
        h.find<QAction>("mnuEditUndo")->trigger();
        QVERIFY(hint->isVisible());

        // A map that knows only a note is not empty.
        h.state.document.mapChanged = 0;
        World noted;
        noted.sector(150, 160).note = "cave";
        FileError error;
        writeMapFile(h.dir.file("noted.om1"), noted, 3, error);
        h.platform.files = {h.dir.file("noted.om1")};
        h.find<QAction>("mnuFileOpen")->trigger();
        QCOMPARE(h.world->sector(150, 160).note, std::string("cave"));
        QVERIFY(!hint->isVisible());
    }
};

QTEST_MAIN(MapViewTest)
#include "map_view_test.moc"
