// File, Export Map Picture: the whole world or the view, as a PNG file.
#include "app/ui/main_window_harness.h"

#include <QAction>
#include <QDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include <filesystem>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

// Opens the export window and answers it: `part` is the radio button to
// choose, or empty to cancel.
void exportPicture(Harness &h, const char *part)
{
    h.find<QAction>("mnuFileExportPicture")->trigger();
    auto *window = h.window->findChild<QDialog *>("frmExportPicture");
    QVERIFY(window && window->isVisible());
    QVERIFY(!h.window->centralWidget()->isEnabled());
    if (part)
        h.find<QRadioButton>(part)->click();
    h.find<QPushButton>(part ? "cmdOK" : "cmdCancel")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(h.window->centralWidget()->isEnabled());
}

} // namespace

class ExportPictureTest : public QObject {
    Q_OBJECT
private slots:
    void writesTheWholeWorldOrTheViewAndNeverHalfAFile()
    {
        Harness h;
        h.start({}, h.saveMap("world.om1", 6));
        h.platform.files = {h.dir.file("whole")};
        exportPicture(h, "optWorld");
        QCOMPARE(h.platform.dialogs.back().initialName, std::string("world.png"));
        QCOMPARE(h.platform.dialogs.back().startFolder, h.dir.path().string() + "/");
        const QImage whole(QString::fromStdString(h.dir.file("whole.png")));
        QCOMPARE(whole.size(), QSize(3200, 3200));
        QCOMPARE(whole.copy(0, 0, 16, 16).convertToFormat(QImage::Format_RGB32), h.sheetEntry(6));
        QCOMPARE(whole.copy(16, 0, 16, 16).convertToFormat(QImage::Format_RGB32), h.sheetEntry(1));

        // The view, at any zoom, in tiles of 16 pixels from its first sector.
        h.find<QAction>("mnuViewZoom3")->trigger();
        h.find<QScrollBar>("hscroll")->setValue(20);
        h.find<QScrollBar>("vscroll")->setValue(30);
        h.world->sector(21, 31).terrain = 16;
        h.platform.files = {h.dir.file("view.PNG")};
        exportPicture(h, "optView");
        const QImage view(QString::fromStdString(h.dir.file("view.PNG")));
        QCOMPARE(view.size(), QSize(h.state.view.viewCols * 16, h.state.view.viewRows * 16));
        QCOMPARE(view.copy(0, 0, 16, 16).convertToFormat(QImage::Format_RGB32), h.sheetEntry(16));

        // An existing file is replaced only when the person says so.
        const std::string before = readFile(h.dir.file("whole.png"));
        h.platform.files = {h.dir.file("whole.png")};
        h.platform.answers = {Answer::No};
        exportPicture(h, "optView");
        QVERIFY(h.platform.messages.back().text.find("whole.png already exists") != std::string::npos);
        QVERIFY(readFile(h.dir.file("whole.png")) == before);

        // A file that cannot be written is named; nothing is left behind.
        const std::string nowhere = h.dir.file("missing/x.png");
        h.platform.files = {nowhere};
        exportPicture(h, "optWorld");
        QCOMPARE(h.platform.messages.back().text, "The map picture could not be written to " + nowhere + ".");
        QVERIFY(!h.platform.messages.back().detail.empty());
        QVERIFY(!std::filesystem::exists(nowhere));

        const std::size_t asked = h.platform.dialogs.size();
        exportPicture(h, nullptr);
        QCOMPARE(h.platform.dialogs.size(), asked);
    }
};

QTEST_MAIN(ExportPictureTest)
#include "export_picture_test.moc"
