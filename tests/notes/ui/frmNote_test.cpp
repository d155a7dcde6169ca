#include "dungeons/ui/frmDungeon.h"
#include "notes/ui/frmNote.h"
#include "support/ui/window_fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace wayscribe;
using namespace wayscribe::test;

class NoteEditorTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmNote> window;

    std::string &note() { return world->sector(12, 34).note; }
    QPlainTextEdit *box() { return window->findChild<QPlainTextEdit *>("txtNoteBox"); }
    QPushButton *button(const char *name) { return window->findChild<QPushButton *>(name); }
    QPointer<frmDungeon> dungeonWindow() { return main->findChild<frmDungeon *>(); }

    void open(const std::string &text)
    {
        note() = text;
        state.selection.selX = 12;
        state.selection.selY = 34;
        window = new frmNote(*world, state, platform, *history, *host, main.get());
        host->open(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        QVERIFY(!main->centralWidget()->isEnabled());
    }
    void type(const QString &text)
    {
        box()->selectAll();
        QTest::keyClicks(box(), text);
    }
    void checkClosed()
    {
        QTRY_VERIFY(window.isNull());
        QVERIFY(main->centralWidget()->isEnabled());
    }

private slots:
    void init() { resetWindows(); }
    void cleanup() { closeWindows(); }

    void opensOnTheTrimmedNote()
    {
        open("  Old bridge\r\nwashed away  ");
        QCOMPARE(window->windowTitle(), QString("Note..."));
        QCOMPARE(window->findChild<QLabel *>("lblNote")->text(), QString("Notes for 12, 34:"));
        QCOMPARE(box()->toPlainText(), QString("Old bridge\nwashed away"));
        QVERIFY(button("cmdSeeDungeon")->isHidden());
        QVERIFY(!box()->isReadOnly());
        QCOMPARE(button("cmdOK")->text(), QString("Okay"));
    }

    void okayStoresMarksTheMapAndRedrawsAsOneUndoStep()
    {
        open("old");
        type("new");
        QTest::keyClick(box(), Qt::Key_Return);
        QTest::keyClicks(box(), "line  ");
        button("cmdOK")->click();
        checkClosed();
        QCOMPARE(note(), std::string("new\r\nline"));
        QCOMPARE(state.document.mapChanged, 1);
        QCOMPARE(platform.redraws, 1);
        history->undo();
        QCOMPARE(note(), std::string("old"));
        QVERIFY(!history->canUndo());
    }

    void cancelAndEscapeKeepTheStoredNote()
    {
        open("kept");
        type("typed over");
        button("cmdCancel")->click();
        checkClosed();
        QCOMPARE(note(), std::string("kept"));
        QVERIFY(!history->canUndo());

        open("kept too");
        type("typed over");
        QTest::keyClick(box(), Qt::Key_Escape);
        checkClosed();
        QCOMPARE(note(), std::string("kept too"));
        QCOMPARE(state.document.mapChanged, 0);
    }

    void theCloseBoxStoresWithoutMarkingOrRedrawing()
    {
        open("first");
        type("second ");
        window->close();
        checkClosed();
        QCOMPARE(note(), std::string("second"));
        QCOMPARE(state.document.mapChanged, 0);
        QCOMPARE(platform.redraws, 0);
        QVERIFY(history->canUndo());
    }

    void clearThenCloseRemovesTheNote()
    {
        open("doomed");
        button("cmdClear")->click();
        QCOMPARE(note(), std::string("doomed")); // nothing stored until the close
        window->close();
        checkClosed();
        QCOMPARE(note(), std::string(""));
    }

    void aLockedMapCannotBeTypedIntoOrCleared()
    {
        state.document.mapLocked = 1;
        open("locked");
        QVERIFY(box()->isReadOnly());
        QVERIFY(!button("cmdClear")->isEnabled());
        QTest::keyClicks(box(), "x");
        window->close();
        checkClosed();
        QCOMPARE(note(), std::string("locked"));
    }

    void goToDungeonFindsTheDungeonInAnyCase()
    {
        world->dungeon(1).name = "OLD MINE";
        world->dungeon(1).levels = 4;
        open("DUNGEON: Old Mine. 3+ levels.");
        QVERIFY(!button("cmdSeeDungeon")->isHidden());
        QCOMPARE(button("cmdSeeDungeon")->text(), QString("Go to Dungeon"));
        button("cmdSeeDungeon")->click();
        checkClosed();
        QVERIFY(dungeonWindow());
        QCOMPARE(state.selection.selDungeon, 1);
        QCOMPARE(state.selection.dungeonFormOpen, 1);
        QCOMPARE(dungeonWindow()->findChild<QLineEdit *>("txtDungeonName")->text(), QString("OLD MINE"));
        QCOMPARE(world->dungeon(2).name, std::string(""));

        // A second dungeon window is refused while one is open.
        open("DUNGEON: Crypt");
        button("cmdSeeDungeon")->click();
        QVERIFY(window);
        QCOMPARE(world->dungeon(2).name, std::string(""));
    }

    void goToDungeonWithAFullTableShowsSlotZero()
    {
        for (int d = 1; d <= kMaxDungeons; ++d)
            world->dungeon(d).name = std::string("D").append(std::to_string(d));
        open("DUNGEON: Newcomer. 2 levels.");
        button("cmdSeeDungeon")->click();
        checkClosed();
        QCOMPARE(state.selection.selDungeon, 0);
        QVERIFY(dungeonWindow());
        QCOMPARE(dungeonWindow()->findChild<QLineEdit *>("txtDungeonName")->text(), QString(""));
    }
};

QTEST_MAIN(NoteEditorTest)
#include "frmNote_test.moc"
