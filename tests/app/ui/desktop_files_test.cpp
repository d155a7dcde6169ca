#include "app/autosave.h"
#include "app/ui/main_window_harness.h"
#include "storage/options_file.h"

#include <QAction>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include <filesystem>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

QAction *recentItem(Harness &h, int number)
{
    h.window->findChild<QMenu *>("mnuFileRecent")->aboutToShow();
    return h.find<QAction>(QString("mnuFileRecent%1").arg(number).toLatin1().constData());
}

bool drop(Harness &h, const std::vector<std::string> &paths)
{
    QList<QUrl> urls;
    for (const std::string &path : paths)
        urls.append(QUrl::fromLocalFile(QString::fromStdString(path)));
    QMimeData data;
    data.setUrls(urls);
    const QPoint at = h.window->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(h.window.get(), &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent dropped(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(h.window.get(), &dropped);
    return true;
}

int filesIn(const std::string &folder)
{
    std::error_code ec;
    int n = 0;
    for (auto it = std::filesystem::directory_iterator(folder, ec); !ec && it != decltype(it)(); ++it)
        ++n;
    return n;
}

// A run that changes its map (kept in `keep`, which outlives the run), is
// autosaved, and goes without a close: a crash.
void crashWithChanges(const TempDir &keep, const std::string &recoveryFolder, std::string &original)
{
    Harness h;
    h.recoveryFolder = recoveryFolder;
    original = keep.file("mine.om1");
    std::filesystem::copy_file(h.saveMap("mine.om1", 6), original);
    h.start({}, original);
    h.world->sector(9, 9).terrain = 4;
    h.state.document.mapChanged = 1;
    h.window->setWindowTitle("mine.om1* - Wayscribe");
    h.window->findChild<Autosave *>()->saveNow();
    QCOMPARE(h.state.document.mapFileName, original);
    QCOMPARE(h.state.document.mapChanged, 1);
    QCOMPARE(h.window->windowTitle(), QString("mine.om1* - Wayscribe"));
    QCOMPARE(filesIn(recoveryFolder), 2);
}

} // namespace

class DesktopFilesTest : public QObject {
    Q_OBJECT
private slots:
    void recentMapsFollowOpensAndSavesAndLeaveTheOlderOptionsAlone()
    {
        Harness h;
        const std::string first = h.saveMap("first.om1", 6);
        const std::string second = h.saveMap("second.om1", 7);
        // A map the desktop hands over at start-up is a recent map too.
        h.start("Set = kjc_set2\r\nLMOL = True\r\nWMOL = /nowhere.om1\r\n", first);
        QCoreApplication::processEvents();
        QVERIFY(h.find<QMenu>("mnuFileRecent")->isEnabled());

        h.platform.files = {second};
        h.find<QAction>("mnuFileOpen")->trigger();
        h.platform.files = {h.dir.file("third.om1")};
        h.find<QAction>("mnuFileSaveAs")->trigger();
        QCOMPARE(h.state.options.desktop.recentMaps,
                 (std::vector<std::string>{h.dir.file("third.om1"), second, first}));

        // Kept at once, after the older lines, which say what they said.
        ProgramState back;
        readOptionsFile(h.dir.file("wayscribe.ini"), back);
        QCOMPARE(back.options.desktop.recentMaps.size(), std::size_t(3));
        QCOMPARE(back.options.graphicsSetName, std::string("kjc_set2"));
        QVERIFY(back.options.lmol);

        std::filesystem::remove(second);
        QVERIFY(!recentItem(h, 2)->isEnabled());
        QVERIFY(recentItem(h, 3)->isEnabled());
        recentItem(h, 3)->trigger();
        QCOMPARE(h.state.document.mapFileName, first);
        QCOMPARE(h.world->sector(1, 1).terrain, 6);
        QCOMPARE(h.state.options.desktop.recentMaps.front(), first);
    }

    void droppedMapsAskLikeOpenAndDroppedReportsImportInTheirOrder()
    {
        Harness h;
        const std::string map = h.saveMap("dropped.om1", 6);
        h.start();
        QVERIFY(!drop(h, {h.dir.file("notes.txt")}));

        h.world->sector(5, 5).terrain = 3;
        h.state.document.mapChanged = 1;
        h.platform.answers = {Answer::No};
        QVERIFY(drop(h, {map}));
        QCOMPARE(h.world->sector(5, 5).terrain, 3);
        QCOMPARE(h.state.document.mapChanged, 1);
        QCOMPARE(h.platform.messages.back().title, std::string("Sure?"));

        h.platform.answers = {Answer::Yes};
        QVERIFY(drop(h, {map}));
        QCOMPARE(h.state.document.mapFileName, map);
        QCOMPARE(h.world->sector(1, 1).terrain, 6);

        const std::string reports = std::string(WAYSCRIBE_TEST_DATA) + "/reports/";
        h.platform.statuses.clear();
        QVERIFY(drop(h, {reports + "plain_city.html", reports + "banner_town.htm"}));
        std::vector<std::string> files;
        for (const std::string &status : h.platform.statuses)
            if (status.find(" of 2, ") != std::string::npos)
                files.push_back(status.substr(status.find(" of 2, ") + 7));
        QCOMPARE(files, (std::vector<std::string>{"plain_city.html", "banner_town.htm"}));
        QCOMPARE(h.state.document.mapChanged, 1);
        QVERIFY(h.window->windowTitle().contains("*"));
        h.find<QAction>("mnuEditUndo")->trigger();
        QCOMPARE(h.state.document.mapFileName, map);
        QCOMPARE(h.world->sector(1, 1).terrain, 6);
    }

    void autosaveLeavesTheDocumentAloneAndACrashOffersTheCopy()
    {
        TempDir recovery;
        const std::string folder = recovery.file("recovery");
        std::string original;
        crashWithChanges(recovery, folder, original);
        {
            Harness h;
            h.recoveryFolder = folder;
            h.platform.answers = {Answer::No};
            h.start();
            QCOMPARE(h.platform.messages.size(), std::size_t(1));
            QCOMPARE(h.world->sector(9, 9).terrain, 1); // unknown, as after any start
            QCOMPARE(filesIn(folder), 2);               // kept aside until a clean exit
        }
        {
            Harness h;
            h.recoveryFolder = folder;
            h.start();
            QVERIFY2(h.platform.messages.empty(), "a declined copy is not offered again");
            h.window->close();
            QCOMPARE(filesIn(folder), 0);
        }
    }

    void aRestoredCopyIsAChangedMapNamedLikeTheOriginal()
    {
        TempDir recovery;
        const std::string folder = recovery.file("recovery");
        std::string original;
        crashWithChanges(recovery, folder, original);
        Harness h;
        h.recoveryFolder = folder;
        h.platform.answers = {Answer::Yes};
        h.start();
        QCOMPARE(h.world->sector(9, 9).terrain, 4);
        QCOMPARE(h.state.document.mapFileName, original);
        QCOMPARE(h.state.document.mapChanged, 1);
        QVERIFY(h.window->windowTitle().startsWith("mine.om1*"));
        QVERIFY(h.state.options.wmol.find("recovery") == std::string::npos);

        // Saving makes the copy needless.
        h.find<QAction>("mnuFileSave")->trigger();
        QCOMPARE(h.state.document.mapChanged, 0);
        QCOMPARE(filesIn(folder), 0);
    }
};

QTEST_MAIN(DesktopFilesTest)
#include "desktop_files_test.moc"
