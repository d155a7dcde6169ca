// Every edit the main window offers is one undo step: undo gives back the
// map exactly as it was saved before the edit, redo the map after it.
#include "app/ui/main_window_harness.h"
#include "model/change_history.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>

#include <functional>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const std::string kExampleWorld = WAYSCRIBE_TEST_DATA "/../../examples/example.om1";

std::string savedBytes(Harness &h)
{
    const std::string path = h.dir.file("saved.om1");
    FileError error;
    if (!writeMapFile(path, *h.world, h.state.document.gameNumber, error))
        return "cannot save: " + error.describe();
    return readFile(path);
}

} // namespace

class UndoTest : public QObject {
    Q_OBJECT
private:
    // Runs `edit` on the example world and checks that it changed the saved
    // map, that Ctrl+Z restores every byte and Ctrl+Shift+Z brings the edit back.
    void checkUndoAndRedo(const std::string &stepName, std::uint8_t gameNumber,
                          const std::function<void(Harness &)> &edit)
    {
        Harness h;
        h.start({}, kExampleWorld);
        h.state.document.gameNumber = gameNumber;
        QVERIFY(!h.find<QAction>("mnuEditUndo")->isEnabled());
        const std::string before = savedBytes(h);
        edit(h);
        const std::string after = savedBytes(h);
        QVERIFY2(after != before, stepName.c_str());
        QCOMPARE(h.window->history().undoName(), stepName);
        QCOMPARE(h.find<QAction>("mnuEditUndo")->text(), QString::fromStdString("&Undo " + stepName));

        h.state.document.mapChanged = 0;
        QTest::keySequence(h.window.get(), QKeySequence(Qt::CTRL | Qt::Key_Z));
        QVERIFY2(savedBytes(h) == before, stepName.c_str());
        QCOMPARE(h.state.document.mapChanged, 1);
        QVERIFY(h.window->windowTitle().contains('*'));
        QVERIFY(!h.find<QAction>("mnuEditUndo")->isEnabled());

        QTest::keySequence(h.window.get(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
        QVERIFY2(savedBytes(h) == after, stepName.c_str());
        QVERIFY(!h.find<QAction>("mnuEditRedo")->isEnabled());
    }

private slots:
    void unknownsToWater()
    {
        checkUndoAndRedo("Unknowns to Water", 17, [](Harness &h) {
            h.platform.answers = {Answer::Yes};
            h.find<QAction>("mnuEditWater")->trigger();
        });
    }

    void gameNumber()
    {
        checkUndoAndRedo("Game Number", 17, [](Harness &h) {
            h.find<QAction>("mnuEditGame")->trigger();
            auto *box = h.window->findChild<QLineEdit *>("txtGameNum");
            box->setText("42");
            box->window()->close();
        });
    }

    void importHtml()
    {
        // The report is of game 7: the map takes that number on its first import.
        checkUndoAndRedo("Import HTML", 0, [](Harness &h) {
            h.platform.files = {WAYSCRIBE_TEST_DATA "/reports/plain_city.html"};
            h.find<QAction>("mnuFileImport")->trigger();
            QCOMPARE(h.state.document.gameNumber, 7);
        });
    }

    void batchImportIsOneStep()
    {
        checkUndoAndRedo("Batch Import HTML", 0, [](Harness &h) {
            // The dialog picks a report; its whole folder is imported.
            h.platform.files = {WAYSCRIBE_TEST_DATA "/reports/plain_city.html"};
            h.find<QAction>("mnuFileBatch")->trigger();
        });
    }

    void questorImport()
    {
        checkUndoAndRedo("Import QuestOR", 17, [](Harness &h) {
            h.platform.files = {WAYSCRIBE_TEST_DATA "/questor/sample.mp1"};
            h.find<QAction>("mnuFileQuestor")->trigger();
        });
    }

    void merge()
    {
        checkUndoAndRedo("Merge Map", 17, [](Harness &h) {
            // A map with land where the example world has none.
            World other;
            for (int x = 150; x <= 200; ++x)
                other.sector(x, 200).terrain = 6;
            other.sector(199, 199).note = "Merged note";
            FileError error;
            QVERIFY(writeMapFile(h.dir.file("other.om1"), other, 17, error));
            h.platform.files = {h.dir.file("other.om1")};
            h.find<QAction>("mnuFileMerge")->trigger();
        });
    }

    void openingAnotherMapEmptiesTheHistory()
    {
        Harness h;
        h.start({}, kExampleWorld);
        h.platform.answers = {Answer::Yes};
        h.find<QAction>("mnuEditWater")->trigger();
        QVERIFY(h.find<QAction>("mnuEditUndo")->isEnabled());
        h.platform.answers = {Answer::Yes}; // load without saving
        h.platform.files = {kExampleWorld};
        h.find<QAction>("mnuFileOpen")->trigger();
        QVERIFY(!h.find<QAction>("mnuEditUndo")->isEnabled());
        QVERIFY(!h.window->history().canUndo());
    }

    void aPartLoadIsOneStepAndNeverTheFileSaveWrites()
    {
        Harness h;
        h.start({}, kExampleWorld);
        const std::string before = savedBytes(h);
        const std::string broken = h.dir.file("broken.om1");
        const std::string cut = "\"v017\"\r\n7\r\n3\r\n\"\"\r\n0\r\n\"\"\r\n";
        writeFile(broken, cut);
        h.platform.files = {broken};
        h.find<QAction>("mnuFileOpen")->trigger();
        QVERIFY(h.window->windowTitle().startsWith("Untitled*"));
        QCOMPARE(h.find<QAction>("mnuEditUndo")->text(), QString("&Undo Open Map"));
        h.find<QAction>("mnuEditUndo")->trigger();
        QCOMPARE(savedBytes(h), before);

        // Save asks for a file rather than writing over the broken one.
        h.find<QAction>("mnuFileSave")->trigger();
        QCOMPARE(h.platform.dialogs.back().title, std::string("Save Map File As..."));
        QCOMPARE(readFile(broken), cut);
    }

    void theTitleFollowsACommandThatOnlyShowsAMessage()
    {
        Harness h;
        h.start({}, kExampleWorld);
        QVERIFY(!h.window->windowTitle().contains('*'));
        h.platform.files = {WAYSCRIBE_TEST_DATA "/reports/other_game.htm"};
        h.find<QAction>("mnuFileImport")->trigger();
        QCOMPARE(h.state.document.mapChanged, std::uint8_t{1});
        QVERIFY(h.window->windowTitle().contains('*'));
    }
};

QTEST_MAIN(UndoTest)
#include "undo_test.moc"
