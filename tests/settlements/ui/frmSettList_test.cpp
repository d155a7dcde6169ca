#include "settlements/ui/frmSettList.h"
#include "settlements/ui/report_list_view.h"
#include "support/ui/window_fixture.h"

#include <QHeaderView>
#include <QPushButton>

using namespace wayscribe;
using namespace wayscribe::test;

class SettlementListingTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmSettList> window;

    void open()
    {
        window = new frmSettList(*world, state.view, platform, main.get());
        openWindow(window);
    }
    ReportListView *list() { return window->findChild<ReportListView *>("lstNotes"); }
    QPushButton *go() { return window->findChild<QPushButton *>("cmdGoto"); }
    void placeTwo()
    {
        placeSettlement(*world, 12, 3, 4, "Ashford");
        placeSettlement(*world, 150, 199, 198, "Brill");
    }

private slots:
    void init()
    {
        resetWindows();
        state.view.viewLeft = 77;
        state.view.viewTop = 77;
    }
    void cleanup() { closeWindows(); }

    void aMapWithoutSettlementsShowsNoList()
    {
        open();
        QCOMPARE(window->windowTitle(), QString("Settlement Listing"));
        QVERIFY(list()->isHidden());
        QVERIFY(!go()->isEnabled());
        QTest::mouseClick(go(), Qt::LeftButton);
        QVERIFY(window);
    }

    void goCentresTheSelectedSettlementAndCloses()
    {
        placeTwo();
        open();
        QVERIFY(!list()->isHidden());
        QVERIFY(go()->isEnabled());
        // Rows but none selected: nothing happens.
        QTest::mouseClick(go(), Qt::LeftButton);
        QVERIFY(window);

        list()->selectRow(1);
        QTest::mouseClick(go(), Qt::LeftButton);
        QCOMPARE(int(state.view.viewLeft), 160);
        QCOMPARE(int(state.view.viewTop), 170);
        QCOMPARE(platform.redraws, 1);
        QTRY_VERIFY(!window);
    }

    void aDoubleClickOnASortedListGoesToThatRow()
    {
        placeTwo();
        open();
        QHeaderView *header = list()->horizontalHeader();
        const QPoint number(header->sectionViewportPosition(1) + 5, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, number);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, number);
        QCOMPARE(list()->model()->index(0, 1).data().toString(), QString("150"));
        const QPoint first = list()->visualRect(list()->model()->index(0, 0)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(int(state.view.viewLeft), 160);
        QTRY_VERIFY(!window);
    }
};

QTEST_MAIN(SettlementListingTest)
#include "frmSettList_test.moc"
