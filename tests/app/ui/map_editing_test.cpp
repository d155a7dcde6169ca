// The map picture driven by real mouse events: the brush, the status boxes,
// the movement counter and their undo.
#include "app/ui/main_window_harness.h"
#include "model/change_history.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

QPoint pixelOf(const Harness &h, int x, int y)
{
    return {(x - h.state.view.viewLeft - 1) * 16 + 8, (y - h.state.view.viewTop - 1) * 16 + 8};
}

void click(Harness &h, int x, int y, Qt::MouseButton button)
{
    QTest::mouseClick(h.window->mapPicture(), button, {}, pixelOf(h, x, y));
}

// The pointer moves over sector (x, y), with `held` buttons down.
void hover(Harness &h, int x, int y, Qt::MouseButtons held = Qt::NoButton)
{
    QWidget *picture = h.window->mapPicture();
    const QPoint at = pixelOf(h, x, y);
    QMouseEvent move(QEvent::MouseMove, at, picture->mapToGlobal(at), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(picture, &move);
}

void chooseTerrain(Harness &h, int terrain)
{
    h.window->findChild<QToolButton *>(QString("iconselect_%1").arg(terrain - 1))->click();
}

QString box(Harness &h, const char *name)
{
    return h.find<QLineEdit>(name)->text();
}

// A new settlement opens its editor, which holds the main window until it
// closes.
void closeSettlementEditor(Harness &h)
{
    QDialog *editor = h.window->findChild<QDialog *>("frmSettlement");
    QVERIFY(editor);
    editor->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(h.window->centralWidget()->isEnabled());
}

std::string savedBytes(Harness &h)
{
    FileError error;
    writeMapFile(h.dir.file("saved.om1"), *h.world, h.state.document.gameNumber, error);
    return readFile(h.dir.file("saved.om1"));
}

// Undo gives back the saved map of before the click, redo the one after.
void checkUndoRestores(Harness &h, const std::string &before)
{
    const std::string after = savedBytes(h);
    QVERIFY(after != before);
    h.find<QAction>("mnuEditUndo")->trigger();
    QVERIFY(savedBytes(h) == before);
    h.find<QAction>("mnuEditRedo")->trigger();
    QVERIFY(savedBytes(h) == after);
}

} // namespace

class MapEditingTest : public QObject {
    Q_OBJECT
private slots:
    void paintingRoadOnWaterDrawsTheRoadAndIsOneUndoStep()
    {
        Harness h;
        h.start();
        h.world->sector(5, 5).terrain = 2;
        h.world->sector(6, 5).terrain = 15;
        h.window->redrawMap();
        const std::string before = savedBytes(h);
        chooseTerrain(h, 15);
        click(h, 5, 5, Qt::RightButton);
        QCOMPARE(h.world->sector(5, 5).terrain, 15);
        QCOMPARE(h.state.document.mapChanged, 1);
        // The new road joins its neighbour; the neighbour's own lines wait for
        // the next full redraw.
        const QImage brushed = h.tileAt(5, 5);
        h.window->redrawMap();
        QCOMPARE(brushed, h.tileAt(5, 5));
        checkUndoRestores(h, before);
    }

    void foundingReplacingAndRemovingSettlements()
    {
        Harness h;
        h.start();
        const std::string empty = savedBytes(h);
        chooseTerrain(h, 16);
        click(h, 10, 10, Qt::RightButton);
        QCOMPARE(h.world->sector(10, 10).settlementNumber, 1);
        QCOMPARE(h.world->sector(10, 10).settlementName, std::string("Un-named"));
        QCOMPARE(int(h.state.selection.selShop), 20);
        QCOMPARE(int(h.state.selection.selSettlement), 1);
        closeSettlementEditor(h);
        checkUndoRestores(h, empty);

        // Painting over a settlement asks first; No leaves it standing.
        const std::string village = savedBytes(h);
        chooseTerrain(h, 6);
        h.platform.answers = {Answer::No};
        click(h, 10, 10, Qt::RightButton);
        QCOMPARE(h.platform.messages.back().text,
                 std::string("Are you sure you wish to overwrite this settlement ?"));
        QCOMPARE(h.world->sector(10, 10).terrain, 16);
        h.platform.answers = {Answer::Yes};
        click(h, 10, 10, Qt::RightButton);
        QCOMPARE(h.world->sector(10, 10).terrain, 6);
        QCOMPARE(h.world->settlement(1).inUse, 0);
        QCOMPARE(h.world->sector(10, 10).settlementNumber, 0);
        checkUndoRestores(h, village);

        // A Town over the village takes the lowest free number again.
        h.find<QAction>("mnuEditUndo")->trigger();
        chooseTerrain(h, 17);
        click(h, 10, 10, Qt::RightButton);
        QCOMPARE(h.world->sector(10, 10).terrain, 17);
        QCOMPARE(h.world->sector(10, 10).settlementNumber, 1);
        closeSettlementEditor(h);
        checkUndoRestores(h, village);
    }

    void theSettlementEditorHandsItsSettlementToTheTravelAgency()
    {
        Harness h;
        h.start();
        h.world->settlement(12) = {1, 6, 6, ""};
        h.world->sector(6, 6) = {17, 12, 0, "", "Oakvale"};
        click(h, 6, 6, Qt::LeftButton);
        auto *editor = h.window->findChild<QDialog *>("frmSettlement");
        QVERIFY(editor);
        editor->findChild<QAction *>("mnuTravelTo")->trigger();
        QTRY_VERIFY(!h.window->findChild<QDialog *>("frmSettlement"));
        auto *finder = h.window->findChild<QDialog *>("frmRouteFinder");
        QVERIFY(finder);
        QCOMPARE(finder->findChild<QComboBox *>("cmbTo")->currentText(), QString("Oakvale (12)"));
        // The main window waits while the travel agency is open.
        QVERIFY(!h.window->centralWidget()->isEnabled());
    }

    void theHundredAndSixtyFirstSettlementIsRefused()
    {
        Harness h;
        h.start();
        for (int n = 1; n <= 160; ++n) {
            h.world->settlement(n) = {1, static_cast<std::uint8_t>(n), 199, ""};
            h.world->sector(n, 199) = {16, static_cast<std::uint8_t>(n), 0, "", "Town " + std::to_string(n)};
        }
        h.world->sector(20, 20).terrain = 3;
        chooseTerrain(h, 16);
        click(h, 20, 20, Qt::RightButton);
        QCOMPARE(h.platform.messages.back().text,
                 std::string("Already 160 Settlements in map, unable to add more."));
        QCOMPARE(h.world->sector(20, 20).terrain, 1);
    }

    void theLockStopsTheBrushButNotTheLeftButton()
    {
        Harness h;
        h.start();
        h.find<QToolButton>("chkLocked")->click();
        QCOMPARE(h.state.document.mapLocked, 1);
        QVERIFY(h.find<QAction>("mnuEditLock")->isChecked());
        chooseTerrain(h, 6);
        click(h, 3, 3, Qt::RightButton);
        QCOMPARE(h.world->sector(3, 3).terrain, 1);
        QVERIFY(!h.find<QAction>("mnuEditUndo")->isEnabled());
        click(h, 3, 4, Qt::LeftButton);
        QCOMPARE(int(h.state.selection.selX), 3);
        QCOMPARE(int(h.state.selection.selY), 4);
        // Over land that is no settlement, the left button opens the note editor.
        QVERIFY(h.window->findChild<QDialog *>("frmNote"));
    }

    void statusBoxesFollowThePointerWithNoButtonHeld()
    {
        Harness h;
        h.start();
        h.world->sector(4, 7) = {11, 9, 0, "  A cave  ", " Dunmore "};
        hover(h, 4, 7);
        QCOMPARE(box(h, "Xbox"), QString(" 4"));
        QCOMPARE(box(h, "Ybox"), QString(" 7"));
        QCOMPARE(box(h, "terbox"), QString("Mountain"));
        QCOMPARE(box(h, "mpbox"), QString(" 7"));
        QCOMPARE(h.find<QPlainTextEdit>("txtNoteBox")->toPlainText(), QString("A cave"));
        // Number 9 is a free slot: the settlement boxes stay empty.
        QCOMPARE(box(h, "citybox"), QString());
        QCOMPARE(box(h, "citynumbox"), QString());
        h.world->settlement(9) = {1, 4, 7, " Northern League "};
        hover(h, 4, 8);
        hover(h, 4, 7);
        QCOMPARE(box(h, "citybox"), QString("Dunmore"));
        QCOMPARE(box(h, "citynumbox"), QString(" 9"));
        QCOMPARE(box(h, "txtCityState"), QString("Northern League"));

        // With a button held the boxes keep what they show.
        QMouseEvent held(QEvent::MouseMove, pixelOf(h, 5, 5),
                         h.window->mapPicture()->mapToGlobal(pixelOf(h, 5, 5)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(h.window->mapPicture(), &held);
        QCOMPARE(box(h, "Xbox"), QString(" 4"));
    }

    void aPathCrossingItselfShowsFootprintsAndCopiesItsOrders()
    {
        Harness h;
        h.start();
        for (int x = 1; x <= 20; ++x)
            h.world->sector(x, 10).terrain = 3;
        h.find<QToolButton>("chkMovement")->click();
        QVERIFY(h.find<QAction>("mnuEditMovement")->isChecked());
        // Start, eight moves east: one order of eight digits.
        for (int x = 1; x <= 9; ++x)
            click(h, x, 10, Qt::LeftButton);
        QCOMPARE(box(h, "mpcbox"), QString(" 32"));
        QCOMPARE(box(h, "txtTotalMPs"), QString(" 8"));
        h.find<QPushButton>("cmdMPCommandClipboard")->click();
        QCOMPARE(h.platform.clipboard, std::string("M 33333333"));
        // A ninth move opens a second order; going back crosses the path.
        click(h, 8, 10, Qt::LeftButton);
        QCOMPARE(h.world->sector(8, 10).moveMark, 2);
        h.find<QPushButton>("cmdMPCommandClipboard")->click();
        QCOMPARE(h.platform.clipboard, std::string("M 33333333\r\nM 7"));
        QVERIFY(h.platform.messages.back().text.find("You moved 9 sectors, using 2 orders.") == 0);
        const QImage twice = h.tileAt(8, 10);
        click(h, 8, 10, Qt::RightButton); // takes the last square back
        QCOMPARE(h.world->sector(8, 10).moveMark, 1);
        QVERIFY(h.tileAt(8, 10) != twice);

        // Arabians with the horse box: the path is counted again.
        h.find<QCheckBox>("chkHorses")->click();
        QCOMPARE(box(h, "mpcbox"), QString(" 16"));
        h.find<QAction>("mnuMules")->trigger();
        QVERIFY(h.find<QAction>("mnuMules")->isChecked());
        QVERIFY(!h.find<QAction>("mnuArabians")->isChecked());
        QCOMPARE(box(h, "mpcbox"), QString(" 32"));

        // Off: the footprints go, and clicks paint again.
        h.find<QAction>("mnuEditMovement")->trigger();
        QVERIFY(!h.find<QToolButton>("chkMovement")->isChecked());
        QCOMPARE(h.world->sector(8, 10).moveMark, 0);
        QCOMPARE(box(h, "mpcbox"), QString("0"));
    }
};

QTEST_MAIN(MapEditingTest)
#include "map_editing_test.moc"
