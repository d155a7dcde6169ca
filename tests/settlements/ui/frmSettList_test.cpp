#include "model/program_state.h"
#include "model/world.h"
#include "settlements/ui/frmSettList.h"
#include "settlements/ui/report_list_view.h"
#include "support/test_support.h"

#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
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

struct Listing {
    std::unique_ptr<World> world = std::make_unique<World>();
    ViewState view;
    ScriptedPlatform platform;
    QPointer<frmSettList> window;

    Listing()
    {
        view.viewCols = 40;
        view.viewRows = 30;
        view.viewLeft = 77;
        view.viewTop = 77;
    }
    ~Listing() { delete window.data(); }
    void open()
    {
        window = new frmSettList(*world, view, platform, nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    }
    ReportListView *list() { return window->findChild<ReportListView *>("lstNotes"); }
    QPushButton *go() { return window->findChild<QPushButton *>("cmdGoto"); }
};

} // namespace

class SettlementListingTest : public QObject {
    Q_OBJECT
private slots:
    void aMapWithoutSettlementsShowsNoList()
    {
        Listing l;
        l.open();
        QCOMPARE(l.window->windowTitle(), QString("Settlement Listing"));
        QVERIFY(l.list()->isHidden());
        QVERIFY(!l.go()->isEnabled());
        QTest::mouseClick(l.go(), Qt::LeftButton);
        QVERIFY(l.window);
    }

    void goingToASettlementNearTheEdgesClampsTheView_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("top");
        QTest::newRow("(3, 4)") << 0 << 0 << 0;
        QTest::newRow("(199, 198)") << 1 << 160 << 170;
    }
    void goingToASettlementNearTheEdgesClampsTheView()
    {
        QFETCH(int, row);
        QFETCH(int, left);
        QFETCH(int, top);
        Listing l;
        place(*l.world, 12, 3, 4, "Ashford");
        place(*l.world, 150, 199, 198, "Brill");
        l.open();
        QVERIFY(!l.list()->isHidden());
        QVERIFY(l.go()->isEnabled());
        // Rows but none selected: nothing happens.
        QTest::mouseClick(l.go(), Qt::LeftButton);
        QVERIFY(l.window);

        l.list()->selectRow(row);
        QTest::mouseClick(l.go(), Qt::LeftButton);
        QCOMPARE(int(l.view.viewLeft), left);
        QCOMPARE(int(l.view.viewTop), top);
        QCOMPARE(l.platform.redraws, 1);
        QTRY_VERIFY(!l.window);
    }

    void aDoubleClickOnASortedListGoesToThatRow()
    {
        Listing l;
        place(*l.world, 12, 3, 4, "Ashford");
        place(*l.world, 150, 199, 198, "Brill");
        l.open();
        ReportListView *list = l.list();
        QHeaderView *header = list->horizontalHeader();
        const QPoint number(header->sectionViewportPosition(1) + 5, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, number);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, number);
        QCOMPARE(list->model()->index(0, 1).data().toString(), QString("150"));
        const QPoint first = list->visualRect(list->model()->index(0, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(int(l.view.viewLeft), 160);
        QTRY_VERIFY(!l.window);
    }
};

QTEST_MAIN(SettlementListingTest)
#include "frmSettList_test.moc"
