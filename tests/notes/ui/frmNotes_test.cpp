#include "notes/ui/frmNote.h"
#include "notes/ui/frmNotes.h"
#include "settlements/ui/report_list_view.h"
#include "support/ui/window_fixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace wayscribe;
using namespace wayscribe::test;

class NotesDatabaseTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmNotes> window;

    template <class T> T *find(const char *name) { return window->findChild<T *>(name); }
    ReportListView *list() { return find<ReportListView>("lstNotes"); }
    QStringList notes()
    {
        QStringList out;
        for (std::size_t r = 0; r < list()->table().rowCount(); ++r)
            out << QString::fromStdString(list()->table().cellText(r, 1));
        return out;
    }
    void open()
    {
        window = new frmNotes(*world, state, platform, *history, *host, main.get());
        openWindow(window);
    }
    void search(const QString &text, bool orMode)
    {
        find<QCheckBox>("chkSearch")->setChecked(true);
        find<QLineEdit>("txtSearch")->setText(text);
        find<QRadioButton>(orMode ? "Option1_1" : "Option1_0")->click();
        find<QPushButton>("cmdRefresh")->click();
    }

private slots:
    void init()
    {
        resetWindows();
        world->sector(5, 1).note = "DUNGEON: Old Mine. 3+ levels.";
        world->sector(9, 1).note = "Market day";
        world->sector(9, 1).settlementName = "Oakvale";
        world->sector(100, 150).note = "Level ground";
    }
    void cleanup() { closeWindows(); }

    void listsEveryNoteAndFiltersOnlyWhenRefilled()
    {
        open();
        QCOMPARE(window->windowTitle(), QString("Note Database"));
        QCOMPARE(list()->model()->headerData(2, Qt::Horizontal).toString(), QString("Y Pos"));
        QCOMPARE(notes(), QStringList({"DUNGEON: Old Mine. 3+ levels.", "Market day", "Level ground"}));
        find<QCheckBox>("chkSettlements")->setChecked(true);
        QCOMPARE(notes().size(), 3);
        find<QPushButton>("cmdRefresh")->click();
        QCOMPARE(notes(), QStringList({"DUNGEON: Old Mine. 3+ levels.", "Level ground"}));
    }

    void searchesWithAndOrOr()
    {
        open();
        search("level + mine", false);
        QCOMPARE(notes(), QStringList({"DUNGEON: Old Mine. 3+ levels."}));
        search("level + mine", true);
        QCOMPARE(notes(), QStringList({"DUNGEON: Old Mine. 3+ levels.", "DUNGEON: Old Mine. 3+ levels.",
                                       "Level ground"}));
    }

    void theSearchTextSurvivesReopening()
    {
        open();
        QTest::keyClicks(find<QLineEdit>("txtSearch"), "mine");
        QCOMPARE(state.selection.notesSearchText, std::string("mine"));
        window->close();
        QTRY_VERIFY(window.isNull());
        open();
        QCOMPARE(find<QLineEdit>("txtSearch")->text(), QString("mine"));
        QVERIFY(!find<QCheckBox>("chkSearch")->isChecked());
        QCOMPARE(notes().size(), 3);
    }

    void removeAsksAndOnlyYesRemovesAsOneUndoStep()
    {
        open();
        list()->selectRow(2);
        platform.answers = {Answer::No};
        find<QPushButton>("cmdRemove")->click();
        QCOMPARE(platform.messages.size(), std::size_t(1));
        QCOMPARE(platform.messages[0].text, std::string("Really remove note at  100,  150?"));
        QCOMPARE(platform.messages[0].title, std::string("Sure?"));
        QVERIFY(platform.messages[0].buttons == MessageButtons::YesNo);
        QCOMPARE(notes().size(), 3);

        platform.answers = {Answer::Yes};
        find<QPushButton>("cmdRemove")->click();
        QCOMPARE(world->sector(100, 150).note, std::string(""));
        QCOMPARE(notes().size(), 2);
        QCOMPARE(platform.redraws, 0);
        history->undo();
        QCOMPARE(world->sector(100, 150).note, std::string("Level ground"));

        list()->clearSelection();
        find<QPushButton>("cmdRemove")->click(); // no row: no question
        QCOMPARE(platform.messages.size(), std::size_t(2));
    }

    void editOpensTheEditorOfTheRowAndStaysOpen()
    {
        open();
        list()->selectRow(2);
        find<QPushButton>("cmdEdit")->click();
        QCOMPARE(state.selection.selX, 100);
        QCOMPARE(state.selection.selY, 150);
        frmNote *editor = main->findChild<frmNote *>();
        QVERIFY(editor);
        QCOMPARE(editor->findChild<QPlainTextEdit *>("txtNoteBox")->toPlainText(), QString("Level ground"));
        QVERIFY(window);
    }

    void goToCentresTheViewAndCloses()
    {
        open();
        list()->selectRow(2);
        find<QPushButton>("cmdGoto")->click();
        QCOMPARE(state.view.viewLeft, 80);
        QCOMPARE(state.view.viewTop, 135);
        QCOMPARE(platform.redraws, 1);
        QTRY_VERIFY(window.isNull());
        QVERIFY(main->centralWidget()->isEnabled());
    }

    void aLockedMapOffersNeitherEditNorRemove()
    {
        state.document.mapLocked = 1;
        open();
        QVERIFY(!find<QPushButton>("cmdEdit")->isEnabled());
        QVERIFY(!find<QPushButton>("cmdRemove")->isEnabled());
        QVERIFY(find<QPushButton>("cmdGoto")->isEnabled());
    }
};

QTEST_MAIN(NotesDatabaseTest)
#include "frmNotes_test.moc"
