#include "dungeons/ui/frmDungeon.h"
#include "dungeons/ui/frmDungeonList.h"
#include "settlements/ui/report_list_view.h"
#include "support/ui/window_fixture.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace wayscribe;
using namespace wayscribe::test;

class DungeonWindowsTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmDungeon> dungeon;
    QPointer<frmDungeonList> list;

    template <class T> T *in(QWidget *w, const char *name) { return w->findChild<T *>(name); }
    QLineEdit *box(const char *name) { return in<QLineEdit>(dungeon, name); }
    QPlainTextEdit *text(const char *name) { return in<QPlainTextEdit>(dungeon, name); }
    void click(QWidget *w, const char *name) { in<QPushButton>(w, name)->click(); }

    void openDungeon(int d)
    {
        state.selection.selDungeon = static_cast<std::int16_t>(d);
        dungeon = new frmDungeon(*world, state, *history, main.get());
        openWindow(dungeon);
    }
    void openList()
    {
        list = new frmDungeonList(*world, state, platform, *history, *host, main.get());
        openWindow(list);
    }
    ReportListView *rows() { return in<ReportListView>(list, "lstNotes"); }

private slots:
    void init()
    {
        resetWindows();
        Dungeon &mine = world->dungeon(3);
        mine.name = "Old Mine";
        mine.levels = 2;
        mine.level[1] = {" ###\r\n #.#", "entrance"};
        mine.level[2] = {" #D#", "deep"};
        world->dungeon(8).name = "Crypt";
        world->sector(40, 60).note = "DUNGEON: Old Mine. 2+ levels.";
    }
    void cleanup() { closeWindows(); }

    void showsTheDeepestMappedLevelInAFixedPitchFont()
    {
        openDungeon(3);
        QCOMPARE(dungeon->windowTitle(), QString("Dungeon Map"));
        QCOMPARE(state.selection.dungeonFormOpen, 1);
        QCOMPARE(box("txtDungeonName")->text(), QString("Old Mine"));
        QCOMPARE(box("txtLevels")->text(), QString(" 2"));
        QCOMPARE(box("txtCurLevel")->text(), QString(" 2"));
        QCOMPARE(box("txtXPos")->text(), QString(" 40"));
        QCOMPARE(box("txtYPos")->text(), QString(" 60"));
        QCOMPARE(text("txtDungeonMap")->toPlainText(), QString(" #D#"));
        QCOMPARE(text("txtRoomData")->toPlainText(), QString("deep"));
        // The desktop's fixed-pitch font (the offscreen test platform may
        // lack a real one, so the font is compared, not measured).
        const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        QCOMPARE(text("txtDungeonMap")->font().family(), fixed.family());
        QCOMPARE(text("txtRoomData")->font().family(), fixed.family());
    }

    void levelButtonsAndTypedLevelsStoreTheRoomData()
    {
        openDungeon(3);
        text("txtRoomData")->setPlainText("deep\nwater");
        click(dungeon, "cmdLevelDown"); // already at the known levels
        QCOMPARE(box("txtCurLevel")->text(), QString(" 2"));
        click(dungeon, "cmdLevelUp");
        QCOMPARE(world->dungeon(3).level[2].roomData, std::string("deep\r\nwater"));
        QCOMPARE(text("txtDungeonMap")->toPlainText(), QString(" ###\n #.#"));
        QCOMPARE(box("txtCurLevel")->text(), QString(" 1"));

        box("txtCurLevel")->selectAll();
        QTest::keyClicks(box("txtCurLevel"), "7");
        QCOMPARE(box("txtCurLevel")->text(), QString(" 7"));
        QCOMPARE(text("txtRoomData")->toPlainText(), QString(""));
        box("txtCurLevel")->selectAll();
        QTest::keyClicks(box("txtCurLevel"), "12"); // "1" shows level 1, "12" is ignored
        QCOMPARE(box("txtCurLevel")->text(), QString(" 12"));
        QCOMPARE(text("txtRoomData")->toPlainText(), QString("entrance"));

        box("txtLevels")->selectAll();
        QTest::keyClicks(box("txtLevels"), "5");
        QCOMPARE(world->dungeon(3).levels, 5);
        QCOMPARE(state.document.mapChanged, 0);
    }

    void closingStoresAndUndoTakesItBack()
    {
        openDungeon(3);
        text("txtRoomData")->setPlainText("changed");
        box("txtLevels")->setText("9"); // not typed: stored only by the close
        QCOMPARE(world->dungeon(3).levels, 2);
        text("txtDungeonMap")->setPlainText("never stored");
        click(dungeon, "cmdExit");
        QTRY_VERIFY(dungeon.isNull());
        QCOMPARE(state.selection.dungeonFormOpen, 0);
        QCOMPARE(world->dungeon(3).levels, 9);
        QCOMPARE(world->dungeon(3).level[2].roomData, std::string("changed"));
        QCOMPARE(world->dungeon(3).level[2].map, std::string(" #D#"));
        QCOMPARE(state.document.mapChanged, 0);
        QVERIFY(main->centralWidget()->isEnabled());
        history->undo();
        QCOMPARE(world->dungeon(3).levels, 2);
        QCOMPARE(world->dungeon(3).level[2].roomData, std::string("deep"));
    }

    void listViewOpensTheDungeonAndClosesItself()
    {
        openList();
        QCOMPARE(list->windowTitle(), QString("Dungeon List"));
        QCOMPARE(rows()->table().rowCount(), std::size_t(2));
        QCOMPARE(rows()->table().cellText(0, 3), std::string("2"));
        click(list, "cmdGoto"); // no row selected: nothing
        QVERIFY(list);
        rows()->selectRow(1);
        click(list, "cmdGoto");
        QTRY_VERIFY(list.isNull());
        dungeon = main->findChild<frmDungeon *>();
        QVERIFY(dungeon);
        QCOMPARE(state.selection.selDungeon, 8);
        QCOMPARE(box("txtDungeonName")->text(), QString("Crypt"));
        // The list's closing enabled the main window again.
        QVERIFY(main->centralWidget()->isEnabled());
    }

    void listRemoveAsksAndOnlyYesRemoves()
    {
        openList();
        rows()->selectRow(0);
        platform.answers = {Answer::No};
        click(list, "cmdRemove");
        QCOMPARE(platform.messages.at(0).text, std::string("Really remove dungeon 'Old Mine' ?"));
        QCOMPARE(platform.messages.at(0).title, std::string("Sure?"));
        QVERIFY(platform.messages.at(0).icon == MessageIcon::Question);
        QCOMPARE(world->dungeon(3).name, std::string("Old Mine"));

        platform.answers = {Answer::Yes};
        click(list, "cmdRemove");
        QCOMPARE(world->dungeon(3).name, std::string(""));
        QCOMPARE(world->dungeon(3).level[1].roomData, std::string(""));
        QCOMPARE(rows()->table().rowCount(), std::size_t(1));
        QCOMPARE(rows()->table().cellText(0, 4), std::string("8"));

        rows()->selectRow(0);
        click(list, "cmdRemove");
        QVERIFY(!in<QPushButton>(list, "cmdRemove")->isEnabled());
        QVERIFY(!in<QPushButton>(list, "cmdGoto")->isEnabled());
        history->undo();
        history->undo();
        click(list, "cmdRefresh");
        QCOMPARE(rows()->table().rowCount(), std::size_t(2));
        QVERIFY(in<QPushButton>(list, "cmdGoto")->isEnabled());
    }
};

QTEST_MAIN(DungeonWindowsTest)
#include "frmDungeon_test.moc"
