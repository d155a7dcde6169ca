#include "travel/ui/frmRouteFinder.h"

#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

class RouteFinderWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<World> world;
    ProgramState state;
    ScriptedPlatform platform;
    QPointer<frmRouteFinder> window;

    void settle(int n, const std::string &name, int x, int y)
    {
        world->settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
        world->sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
        world->sector(x, y).settlementName = name;
    }

    QComboBox *box(const char *name) { return window->findChild<QComboBox *>(name); }
    QString routes() { return window->findChild<QPlainTextEdit *>("txtRoutes")->toPlainText(); }
    void find() { window->findChild<QPushButton *>("cmdFind")->click(); }

private slots:
    void init()
    {
        world = std::make_unique<World>();
        settle(12, "Oakvale", 10, 10);
        settle(3,
               "Br\xFC"
               "ckenau",
               20, 10); // the model holds Windows-1252
        settle(40, "Sandmere", 60, 40);
        world->settlement(7).inUse = 0; // a free number is not offered
        world->setItem(12, 2, 1, ItemField::Name, "Passage (3)");
        world->setItem(12, 2, 1, ItemField::Number, "431");
        world->setItem(12, 2, 1, ItemField::Price, "25");
        platform = ScriptedPlatform{};
        window = new frmRouteFinder(*world, state, platform, nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    void cleanup() { delete window; }

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

    void namesTheClosestSettlementWhenNoRouteExists()
    {
        window->setFromText("Oakvale (12)");
        box("cmbTo")->setEditText("Sandmere (40)");
        QTest::keyClick(box("cmbTo")->lineEdit(), Qt::Key_Return); // Enter in a box searches too
        QCOMPARE(routes(),
                 "Please wait, calculating routes...\nNo routes found from Oakvale (12) to Sandmere "
                 "(40).\n\nThe closest settlement to your destination was calculated as:\nBrückenau "
                 "(3) with a rough distance of 50 sectors from Sandmere (40).\n\nYou may be able to "
                 "journey to Brückenau (3) and travel on foot to Sandmere (40)... or journey to "
                 "Brückenau (3) travel on foot to a nearby settlement, and try to continue the journeys "
                 "to Sandmere (40) from there.");
    }

    void refusesMalformedBoxesAndKeepsTheLastAnswer()
    {
        window->setFromText("Oakvale (12)");
        window->setToText("Brückenau (3)");
        find();
        const QString answer = routes();
        window->setToText("Brückenau");
        find();
        window->setToText("Brückenau )(");
        find();
        QCOMPARE(platform.messages.size(), size_t(2));
        QCOMPARE(platform.messages[0].text,
                 std::string("Bad settlement names in to/from field? Cancelling search."));
        QCOMPARE(platform.messages[1].text,
                 std::string("Bad settlement numbers in to/from field? Cancelling search."));
        QCOMPARE(platform.messages[1].title, std::string("Wayscribe"));
        window->setToText("");
        find();
        QCOMPARE(platform.messages.size(), size_t(2));
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
