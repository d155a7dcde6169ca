#include "settlements/ui/frmObjects.h"
#include "settlements/ui/report_list_view.h"
#include "support/ui/window_fixture.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace wayscribe;
using namespace wayscribe::test;

class ObjectsWindowTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmObjects> window;

    void open()
    {
        window = new frmObjects(*world, state.view, platform, main.get());
        openWindow(window);
    }
    template <typename T> T *find(const char *name) { return window->findChild<T *>(name); }
    ReportListView *list() { return find<ReportListView>("lstObjects"); }
    QString cell(int row, int column) { return list()->model()->index(row, column).data().toString(); }
    void sell(int n, int item, const std::string &name, const std::string &number, const std::string &price)
    {
        world->setShopName(n, 1, "General store");
        stockItem(*world, n, 1, item, name, number, price);
    }

private slots:
    void init() { resetWindows(); }
    void cleanup() { closeWindows(); }

    void anEmptySearchHidesTheListAndLeavesGotoDisabled()
    {
        open();
        QCOMPARE(window->windowTitle(), QString("Object Database"));
        QVERIFY(list()->isHidden());
        QVERIFY(!find<QPushButton>("cmdGoto")->isEnabled());

        // One object found: the list shows with it and Goto is enabled.
        placeSettlement(*world, 4, 10, 10, "Ashford");
        sell(4, 1, "Rope", "5", "2");
        QTest::mouseClick(find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QVERIFY(!list()->isHidden());
        QCOMPARE(list()->model()->rowCount(), 1);
        QVERIFY(find<QPushButton>("cmdGoto")->isEnabled());

        // Every settlement class left out: empty and hidden again.
        for (const char *box : {"chkVillages", "chkTowns", "chkCities"})
            find<QCheckBox>(box)->setChecked(true);
        QTest::mouseClick(find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QVERIFY(list()->isHidden());
        QVERIFY(!find<QPushButton>("cmdGoto")->isEnabled());
    }

    void theOptionButtonsHoldTheZeroCostBoxButDoNotRefill()
    {
        placeSettlement(*world, 4, 10, 10, "Ashford");
        sell(4, 1, "Rope", "5", "2");
        sell(4, 2, "Rope", "5", "3");
        open();
        auto *zeroCost = find<QCheckBox>("chkZeroCost");
        QVERIFY(zeroCost->isChecked());
        QVERIFY(!zeroCost->isEnabled());
        QVERIFY(find<QRadioButton>("Option1_1")->isChecked());
        QCOMPARE(find<QLabel>("Label5")->text(), QString("List only the cheapest of each class"));
        QCOMPARE(find<QLabel>("Label1")->buddy(), zeroCost);

        // A click on the label works its option button.
        QTest::mouseClick(find<QLabel>("Label4"), Qt::LeftButton);
        QVERIFY(find<QRadioButton>("Option1_0")->isChecked());
        QVERIFY(zeroCost->isEnabled());
        QVERIFY(zeroCost->isChecked());
        zeroCost->setChecked(false);
        QCOMPARE(list()->model()->rowCount(), 1);

        QTest::mouseClick(find<QRadioButton>("Option1_2"), Qt::LeftButton);
        QVERIFY(zeroCost->isChecked());
        QVERIFY(!zeroCost->isEnabled());
        QCOMPARE(cell(0, 4), QString("2"));
        QTest::mouseClick(find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QCOMPARE(cell(0, 4), QString("3"));
    }

    void headerClicksSortAndRefreshStartsUnsorted()
    {
        placeSettlement(*world, 4, 10, 10, "Ashford");
        sell(4, 1, "Rope", "5", "20");
        sell(4, 2, "Lamp", "6", "3");
        sell(4, 3, "Sword", "7", "100");
        open();
        QHeaderView *header = list()->horizontalHeader();
        const QPoint price(header->sectionViewportPosition(4) + 5, header->height() / 2);
        for (const char *first : {"3", "100", "3"}) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, price);
            QCOMPARE(cell(0, 4), QString(first));
        }
        QTest::mouseClick(find<QPushButton>("cmdRefresh"), Qt::LeftButton);
        QCOMPARE(cell(0, 4), QString("20"));
    }

    void gotoCentresTheRowsSettlementAndCloses()
    {
        placeSettlement(*world, 4, 150, 120, "Ash (7th)");
        placeSettlement(*world, 7, 3, 4, "Brill");
        sell(4, 1, "Rope", "5", "20");
        open();
        // No row selected: nothing happens.
        QTest::mouseClick(find<QPushButton>("cmdGoto"), Qt::LeftButton);
        QVERIFY(window);
        QCOMPARE(platform.redraws, 0);

        // The name's own bracket leads to settlement 7.
        list()->selectRow(0);
        QTest::mouseClick(find<QPushButton>("cmdGoto"), Qt::LeftButton);
        QCOMPARE(state.view.viewLeft, 0);
        QCOMPARE(state.view.viewTop, 0);
        QCOMPARE(platform.redraws, 1);
        QTRY_VERIFY(!window);
    }

    void aDoubleClickGoesToo()
    {
        placeSettlement(*world, 4, 150, 120, "Ashford");
        sell(4, 1, "Rope", "5", "20");
        open();
        emit list()->rowActivated(0); // a double click or Enter
        QCOMPARE(state.view.viewLeft, 130);
        QCOMPARE(state.view.viewTop, 105);
        QTRY_VERIFY(!window);
    }
};

QTEST_MAIN(ObjectsWindowTest)
#include "frmObjects_test.moc"
