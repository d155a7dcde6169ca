#include "settlements/ui/report_list_model.h"
#include "settlements/ui/report_list_view.h"

#include <QAccessible>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

#include <set>

using namespace wayscribe;

namespace {

// Rows hold references 0..n-1; the name is "Row r", the number 1000 - r, so
// sorting by the number reverses the rows.
struct Cells {
    std::set<std::uint32_t> asked;

    ReportTable table(std::uint32_t rows)
    {
        ReportTable t({{"Name", 2700, ColumnAlignment::Left, SortKind::Text},
                       {"Number", 800, ColumnAlignment::Right, SortKind::Number}},
                      [this](std::uint32_t ref, int column, std::string &out) {
                          asked.insert(ref);
                          out += column == 1 ? "Row " + std::to_string(ref) : std::to_string(1000 - ref);
                      });
        for (std::uint32_t r = 0; r < rows; ++r)
            t.addRow(r);
        return t;
    }
};

QPoint rowCentre(const ReportListView &view, int row)
{
    return view.visualRect(view.model()->index(row, 0)).center();
}

} // namespace

class ReportListTest : public QObject {
    Q_OBJECT
private slots:
    void screenReadersMeetATableWithItsColumnHeaders()
    {
        Cells cells;
        ReportListView view(cells.table(3), "Settlements");
        view.show();
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(&view);
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::Table);
        QCOMPARE(list->text(QAccessible::Name), QString("Settlements"));
        QAccessibleTableInterface *table = list->tableInterface();
        QVERIFY(table);
        QCOMPARE(table->columnCount(), 2);
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->columnDescription(0), QString("Name"));
        QCOMPARE(table->columnDescription(1), QString("Number"));
        QCOMPARE(view.columnWidth(0), 180); // 2700 / 15
    }

    void onlyTheRowsOnScreenAreRead()
    {
        Cells cells;
        ReportListView view(cells.table(100000), "Big list");
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.grab();
        QVERIFY(!cells.asked.empty());
        QVERIFY2(cells.asked.size() < 100, qPrintable(QString::number(cells.asked.size())));
        const QModelIndex number = view.model()->index(2, 1);
        QCOMPARE(number.data().toString(), QString("998"));
        QVERIFY(number.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
    }

    void aHeaderClickSortsAndTheSelectionFollowsItsRow()
    {
        Cells cells;
        ReportListView view(cells.table(12), "List");
        view.resize(400, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.selectRow(9);
        QCOMPARE(view.selectedText(1), std::string("Row 9"));

        QHeaderView *header = view.horizontalHeader();
        const QPoint numberHeader(header->sectionViewportPosition(1) + 10, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, numberHeader);
        QCOMPARE(view.model()->index(0, 0).data().toString(), QString("Row 11")); // 989 first
        QCOMPARE(view.selectedRow(), std::optional<std::size_t>(2));
        QCOMPARE(view.selectedReference(), std::optional<std::uint32_t>(9));
        QCOMPARE(view.selectedText(2), std::string("991"));

        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, numberHeader);
        QCOMPARE(view.model()->index(0, 0).data().toString(), QString("Row 0"));
        QCOMPARE(view.selectedRow(), std::optional<std::size_t>(9));

        // Rows added to the sorted list are placed in order.
        view.refill([](ReportTable &t) { t.addRow(5); });
        QCOMPARE(view.model()->rowCount(), 13);
        QCOMPARE(view.model()->index(6, 0).data().toString(), QString("Row 5"));
    }

    void doubleClickAndEnterActivateARow()
    {
        Cells cells;
        ReportListView view(cells.table(5), "List");
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QSignalSpy activated(&view, &ReportListView::rowActivated);
        // The view takes a double click only on the row its first press hit.
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, rowCentre(view, 3));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, rowCentre(view, 3));
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, rowCentre(view, 3));
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated.at(0).at(0).toInt(), 3);

        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Down);
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(activated.size(), 2);
        QCOMPARE(activated.at(1).at(0).toInt(), 4);
        QCOMPARE(view.selectedRow(), std::optional<std::size_t>(4));

        view.refill([](ReportTable &t) { t.clear(); });
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(activated.size(), 2);
        QVERIFY(!view.selectedReference());
        QCOMPARE(view.selectedText(1), std::string());
    }
};

QTEST_MAIN(ReportListTest)
#include "report_list_test.moc"
