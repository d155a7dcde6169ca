#include "model/program_state.h"
#include "model/world.h"
#include "settlements/ui/frmObjects.h"
#include "settlements/ui/report_list_view.h"
#include "support/test_support.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

void place(World &world, int n, int x, int y, const std::string &name)
{
    world.settlement(n) = {1, static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), ""};
    world.sector(x, y).settlementNumber = static_cast<std::uint8_t>(n);
    world.sector(x, y).settlementName = name;
}

void sell(World &world, int n, int shop, int item, const std::string &name, const std::string &number,
          const std::string &price)
{
    world.setShopName(n, shop, "General store");
    world.setItem(n, shop, item, ItemField::Name, name);
    world.setItem(n, shop, item, ItemField::Number, number);
    world.setItem(n, shop, item, ItemField::Price, price);
}

struct Objects {
    std::unique_ptr<World> world = std::make_unique<World>();
    ViewState view;
    ScriptedPlatform platform;
    QPointer<frmObjects> window;

    Objects()
    {
        view.viewCols = 40;
        view.viewRows = 30;
    }
    ~Objects() { delete window.data(); }
    void open()
    {
        window = new frmObjects(*world, view, platform, nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    }
    template <typename T> T *find(const char *name) { return window->findChild<T *>(name); }
    ReportListView *list() { return find<ReportListView>("lstObjects"); }
    QString cell(int row, int column) { return list()->model()->index(row, column).data().toString(); }
};

} // namespace

class ObjectsWindowTest : public QObject {
    Q_OBJECT
private slots:
    void anEmptySearchHidesTheListAndLeavesGotoDisabled()
    {
        Objects o;
        o.open();
        QCOMPARE(o.window->windowTitle(), QString("Object Database"));
        QVERIFY(o.list()->isHidden());
        QVERIFY(!o.find<QPushButton>("cmdGoto")->isEnabled());

        // One object found: the list shows with it and Goto is enabled.
        place(*o.world, 4, 10, 10, "Ashford");
        sell(*o.world, 4, 1, 1, "Rope", "5", "2");
        QTest::mouseClick(o.find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QVERIFY(!o.list()->isHidden());
        QCOMPARE(o.list()->model()->rowCount(), 1);
        QVERIFY(o.find<QPushButton>("cmdGoto")->isEnabled());

        // Every settlement class left out: empty and hidden again.
        for (const char *box : {"chkVillages", "chkTowns", "chkCities"})
            o.find<QCheckBox>(box)->setChecked(true);
        QTest::mouseClick(o.find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QVERIFY(o.list()->isHidden());
        QVERIFY(!o.find<QPushButton>("cmdGoto")->isEnabled());
    }

    void theOptionButtonsHoldTheZeroCostBoxButDoNotRefill()
    {
        Objects o;
        place(*o.world, 4, 10, 10, "Ashford");
        sell(*o.world, 4, 1, 1, "Rope", "5", "2");
        sell(*o.world, 4, 1, 2, "Rope", "5", "3");
        o.open();
        auto *zeroCost = o.find<QCheckBox>("chkZeroCost");
        QVERIFY(zeroCost->isChecked());
        QVERIFY(!zeroCost->isEnabled());
        QVERIFY(o.find<QRadioButton>("Option1_1")->isChecked());
        QCOMPARE(o.find<QLabel>("Label5")->text(), QString("List only the cheapest of each class"));
        QCOMPARE(o.find<QLabel>("Label1")->buddy(), zeroCost);

        // A click on the label works its option button.
        QTest::mouseClick(o.find<QLabel>("Label4"), Qt::LeftButton);
        QVERIFY(o.find<QRadioButton>("Option1_0")->isChecked());
        QVERIFY(zeroCost->isEnabled());
        QVERIFY(zeroCost->isChecked());
        zeroCost->setChecked(false);
        QCOMPARE(o.list()->model()->rowCount(), 1);

        QTest::mouseClick(o.find<QRadioButton>("Option1_2"), Qt::LeftButton);
        QVERIFY(zeroCost->isChecked());
        QVERIFY(!zeroCost->isEnabled());
        QCOMPARE(o.cell(0, 4), QString("2"));
        QTest::mouseClick(o.find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QCOMPARE(o.cell(0, 4), QString("3"));
    }

    void headerClicksSortAndRefreshStartsUnsorted()
    {
        Objects o;
        place(*o.world, 4, 10, 10, "Ashford");
        sell(*o.world, 4, 1, 1, "Rope", "5", "20");
        sell(*o.world, 4, 1, 2, "Lamp", "6", "3");
        sell(*o.world, 4, 1, 3, "Sword", "7", "100");
        o.open();
        QHeaderView *header = o.list()->horizontalHeader();
        const QPoint price(header->sectionViewportPosition(4) + 5, header->height() / 2);
        for (const char *first : {"3", "100", "3"}) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, price);
            QCOMPARE(o.cell(0, 4), QString(first));
        }
        QTest::mouseClick(o.find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QCOMPARE(o.cell(0, 4), QString("20"));
    }

    void gotoCentresTheRowsSettlementAndCloses()
    {
        Objects o;
        place(*o.world, 4, 150, 120, "Ash (7th)");
        place(*o.world, 7, 3, 4, "Brill");
        sell(*o.world, 4, 1, 1, "Rope", "5", "20");
        o.open();
        // No row selected: nothing happens.
        QTest::mouseClick(o.find<QPushButton>("cmdGoto"), Qt::LeftButton);
        QVERIFY(o.window);
        QCOMPARE(o.platform.redraws, 0);

        // The name's own bracket leads to settlement 7.
        o.list()->selectRow(0);
        QTest::mouseClick(o.find<QPushButton>("cmdGoto"), Qt::LeftButton);
        QCOMPARE(o.view.viewLeft, 0);
        QCOMPARE(o.view.viewTop, 0);
        QCOMPARE(o.platform.redraws, 1);
        QTRY_VERIFY(!o.window);
    }

    void aDoubleClickGoesToo()
    {
        Objects o;
        place(*o.world, 4, 150, 120, "Ashford");
        sell(*o.world, 4, 1, 1, "Rope", "5", "20");
        o.open();
        ReportListView *list = o.list();
        const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
        QCOMPARE(o.view.viewLeft, 130);
        QCOMPARE(o.view.viewTop, 105);
        QTRY_VERIFY(!o.window);
    }
};

QTEST_MAIN(ObjectsWindowTest)
#include "frmObjects_test.moc"
