#include "travel/ui/frmRouteFinder.h"

#include "support/ui/window_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace wayscribe;
using namespace wayscribe::test;

class RouteFinderWindowTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmRouteFinder> window;

    QComboBox *box(const char *name) { return window->findChild<QComboBox *>(name); }
    QString routes() { return window->findChild<QPlainTextEdit *>("txtRoutes")->toPlainText(); }
    void find() { window->findChild<QPushButton *>("cmdFind")->click(); }

private slots:
    void init()
    {
        resetWindows();
        placeSettlement(*world, 12, 10, 10, "Oakvale");
        placeSettlement(*world, 3, 20, 10,
                        "Br\xFC"
                        "ckenau"); // the model holds Windows-1252
        placeSettlement(*world, 40, 60, 40, "Sandmere");
        world->settlement(7).inUse = 0; // a free number is not offered
        stockItem(*world, 12, 2, 1, "Passage (3)", "431", "25");
        window = new frmRouteFinder(*world, state, platform, main.get());
        host->open(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    void cleanup() { closeWindows(); }

    void offersTheSettlementsInUseInNumberOrder()
    {
        QCOMPARE(window->windowTitle(), QString("Find Routes..."));
        for (const char *name : {"cmbFrom", "cmbTo"}) {
            QStringList items;
            for (int i = 0; i < box(name)->count(); ++i)
                items << box(name)->itemText(i);
            QCOMPARE(items, QStringList({"Brückenau (3)", "Oakvale (12)", "Sandmere (40)"}));
            QVERIFY(box(name)->currentText().isEmpty());
        }
        QCOMPARE(window->findChild<QLabel *>("Label5")->text(), QString("Possible Routes:"));
    }

    void writesTheRoutesFound()
    {
        box("cmbFrom")->setCurrentIndex(1);
        window->setToText("Brückenau (3)");
        find();
        const QString orders = "B 99 2 431 @ 25gp to get to Brückenau (3)\n"
                               "Total cost to reach destination:  25 gp per head\n\n";
        QCOMPARE(routes(), "Please wait, calculating routes...\nCheapest Route:\n" + orders +
                               "Shortest Route:\n" + orders + "Finished.\n");
        QVERIFY(platform.messages.empty());
        QCOMPARE(state.document.fileBusy, 0);
        QVERIFY(!platform.waitCursor);
    }

    void enterSearchesAndMalformedBoxesKeepTheLastAnswer()
    {
        window->setFromText("Oakvale (12)");
        box("cmbTo")->setEditText("Sandmere (40)");
        QTest::keyClick(box("cmbTo")->lineEdit(), Qt::Key_Return);
        const QString answer = routes();
        QVERIFY(answer.contains("\nBrückenau (3) with a rough distance of 50 sectors from Sandmere (40)."));

        window->setToText("Brückenau");
        find();
        QCOMPARE(platform.messages.size(), size_t(1));
        QCOMPARE(platform.messages[0].text,
                 std::string("Bad settlement names in to/from field? Cancelling search."));
        window->setToText("");
        find();
        QCOMPARE(platform.messages.size(), size_t(1));
        QCOMPARE(routes(), answer);
    }

    void escapeClosesAndTellsTheMainWindow()
    {
        QSignalSpy closed(window.data(), &frmRouteFinder::closed);
        QTest::keyClick(box("cmbFrom")->lineEdit(), Qt::Key_Escape);
        QCOMPARE(closed.count(), 1);
        QTRY_VERIFY(window.isNull()); // deleted on close
    }
};

QTEST_MAIN(RouteFinderWindowTest)
#include "frmRouteFinder_test.moc"
