#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"
#include "view/ui/frmGotoCity.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

void placeSettlement(World &world, int n, int x, int y, const std::string &name)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
    world.sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
    world.sector(x, y).settlementName = name;
}

struct Finder {
    std::unique_ptr<World> world = std::make_unique<World>();
    ViewState view;
    ScriptedPlatform platform;
    QPointer<frmGotoCity> window;

    Finder()
    {
        placeSettlement(*world, 7, 120, 90, "Hamley");
        placeSettlement(*world, 3, 150, 160, "Harbor");
        placeSettlement(*world, 9, 5, 6, "Oakvale");
        view.viewCols = 40;
        view.viewRows = 30;
        window = new frmGotoCity(*world, view, platform, nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    }
    ~Finder() { delete window.data(); }
    QLineEdit *box(const char *name) { return window->findChild<QLineEdit *>(name); }
};

} // namespace

class GotoCityTest : public QObject {
    Q_OBJECT
private slots:
    void theNameFindsTheLowestNumberWhoseNameBeginsWithIt()
    {
        Finder f;
        f.box("txtName")->setFocus();
        QTest::keyClicks(f.box("txtName"), "hA");
        QCOMPARE(f.box("txtNumber")->text(), QString("3"));
        // A text that no name begins with leaves the number as it was.
        QTest::keyClicks(f.box("txtName"), "x");
        QCOMPARE(f.box("txtNumber")->text(), QString("3"));
    }

    void theNumberFindsTheName()
    {
        Finder f;
        f.box("txtName")->setText("left over");
        f.box("txtNumber")->setFocus();
        QTest::keyClicks(f.box("txtNumber"), "7");
        QCOMPARE(f.box("txtName")->text(), QString("Hamley"));
        QTest::keyClicks(f.box("txtNumber"), "7"); // 77: no settlement
        QCOMPARE(f.box("txtName")->text(), QString());
    }

    void enterGoesOnlyWithANameAndCentresTheSettlement()
    {
        Finder f;
        f.box("txtNumber")->setFocus();
        QTest::keyClick(f.box("txtNumber"), Qt::Key_Return);
        QVERIFY(f.window); // an empty name: Enter does nothing
        QTest::keyClicks(f.box("txtNumber"), "7");
        QTest::keyClick(f.box("txtNumber"), Qt::Key_Return);
        QTRY_VERIFY(!f.window);
        QCOMPARE(f.view.viewLeft, 100);
        QCOMPARE(f.view.viewTop, 75);
        QCOMPARE(f.platform.redraws, 1);
    }

    void goWithAnEmptyNameClosesWithoutMovingAndEscapeCloses()
    {
        Finder f;
        f.window->findChild<QPushButton *>("Command1")->click();
        QTRY_VERIFY(!f.window);
        QCOMPARE(f.platform.redraws, 0);

        Finder g;
        g.box("txtName")->setFocus();
        QTest::keyClick(g.box("txtName"), Qt::Key_Escape);
        QTRY_VERIFY(!g.window);
    }

    void goClampsTheViewAtTheWorldsEdge()
    {
        Finder f;
        f.box("txtNumber")->setFocus();
        QTest::keyClicks(f.box("txtNumber"), "9");
        f.window->findChild<QPushButton *>("Command1")->click();
        QCOMPARE(f.view.viewLeft, 0);
        QCOMPARE(f.view.viewTop, 0);
    }
};

QTEST_MAIN(GotoCityTest)
#include "frmGotoCity_test.moc"
