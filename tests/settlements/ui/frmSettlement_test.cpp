#include "settlements/ui/frmSettlement.h"

#include "settlements/ui/report_list_view.h"
#include "support/ui/window_fixture.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace wayscribe;
using namespace wayscribe::test;

class SettlementWindowTest : public QObject, WindowFixture {
    Q_OBJECT

    QPointer<frmSettlement> window;

    template <typename T> T *child(const char *name) { return window->findChild<T *>(name); }
    QLineEdit *edit(const char *name) { return child<QLineEdit>(name); }
    ReportListView *list(const char *name) { return child<ReportListView>(name); }
    QPushButton *button(const char *name) { return child<QPushButton>(name); }

    void open()
    {
        state.selection.selX = 57;
        state.selection.selY = 112;
        state.selection.selSettlement = 12;
        state.selection.selNumber = 12;
        state.selection.selShop = 20;
        window = new frmSettlement(*world, state, platform, *history, nullptr);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    // The top-level dialog the editor opened, by its name.
    template <typename T = QWidget> T *dialogBox(const char *dialog, const char *box)
    {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->objectName() == dialog && w->isVisible())
                return w->findChild<T *>(box);
        return nullptr;
    }

private slots:
    void init()
    {
        resetWindows();
        placeSettlement(*world, 12, 57, 112, "Oakvale", "Realm");
        world->sector(57, 112).terrain = 17;
        world->sector(57, 112).note = "Old well\r\nand a mill";
        world->setShopName(12, 20, "Smithy");
        stockItem(*world, 12, 20, 1, "Long Sword", "143", "120");
        stockItem(*world, 12, 20, 2, "Dagger", "", "15");
        world->setShopName(12, 21, "Stables");
    }
    // The editor and the dialogs it opened stand on their own.
    void cleanup()
    {
        QList<QPointer<QWidget>> windows;
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->objectName().startsWith("frm"))
                windows << w;
        for (const QPointer<QWidget> &w : windows)
            delete w.data();
        closeWindows();
    }

    void showsTheSettlementItsShopsAndTheirItems()
    {
        open();
        QCOMPARE(window->windowTitle(), QString("Settlement"));
        QCOMPARE(edit("SetName")->text(), QString("Oakvale"));
        QCOMPARE(edit("SetNum")->text(), QString("12"));
        QCOMPARE(edit("SetCoords")->text(), QString("57, 112"));
        QCOMPARE(edit("txtCityState")->text(), QString("Realm"));
        QCOMPARE(child<QPlainTextEdit>("SetNotes")->toPlainText(), QString("Old well\nand a mill"));
        QCOMPARE(child<QLabel>("Label3")->text(), QString("Coordiates:"));
        QCOMPARE(child<QLabel>("Label8")->buddy(), list("lstShops"));
        QCOMPARE(list("lstShops")->table().rowCount(), 2u);
        QCOMPARE(list("lstShops")->table().cellText(1, 2), std::string("Stables"));
        QCOMPARE(list("lstObjects")->table().cellText(0, 1), std::string("Long Sword (143)"));
        QCOMPARE(list("lstObjects")->table().cellText(1, 2), std::string("15"));
        QCOMPARE(child<QAction>("mnuTravelTo")->text(), QString("Travel &To Settlement"));
        QCOMPARE(child<QAction>("mnuTravelFrom")->text(), QString("Travel &From Settlement"));
        QCOMPARE(child<QAction>("mnuExit")->text(), QString("E&xit"));
        QVERIFY(!child<QPlainTextEdit>("txtClipboard")->isVisible());
        if (const QByteArray shot = qgetenv("WAYSCRIBE_SHOT"); !shot.isEmpty())
            window->grab().save(QString::fromLocal8Bit(shot));

        // Clicking Stables shows its (empty, hence hidden) object list.
        list("lstShops")->selectRow(1);
        QTest::mouseClick(list("lstShops")->viewport(), Qt::LeftButton, {},
                          list("lstShops")->visualRect(list("lstShops")->model()->index(1, 0)).center());
        QVERIFY(!list("lstObjects")->isVisible());
    }

    void theLockLeavesOnlyLookingAndClosing()
    {
        state.document.mapLocked = 1;
        open();
        QVERIFY(!button("AddShop")->isEnabled());
        QVERIFY(!button("AddObject")->isEnabled());
        QVERIFY(edit("SetName")->isReadOnly());
        QVERIFY(child<QPlainTextEdit>("SetNotes")->isReadOnly());
        list("lstShops")->setFocus();
        list("lstShops")->selectRow(0);
        QTest::keyClick(list("lstShops"), Qt::Key_Delete);
        emit list("lstShops")->rowActivated(0);
        QVERIFY(platform.messages.empty());
        QVERIFY(window->isEnabled()); // no dialog opened
        QCOMPARE(world->shopName(12, 20), std::string_view("Smithy"));
        QTest::keyClick(list("lstShops"), Qt::Key_Escape);
        QTRY_VERIFY(window.isNull() || !window->isVisible());
    }

    void travelHandsTheSettlementToTheRouteFinder()
    {
        open();
        QSignalSpy travel(window, &frmSettlement::travelRequested);
        QSignalSpy closed(window, &SecondaryWindow::closed);
        edit("SetNum")->setText("13"); // typed, not yet checked: the hand-off drops it
        child<QAction>("mnuTravelFrom")->trigger();
        QCOMPARE(closed.count(), 1);
        QCOMPARE(travel.count(), 1);
        QCOMPARE(travel.at(0).at(0).toString(), QString("Oakvale (12)"));
        QCOMPARE(travel.at(0).at(1).toBool(), false);
        QCOMPARE(world->sector(57, 112).settlementNumber, 12);

        // A sector without a settlement in use: the editor stays.
        world->sector(3, 4).terrain = 16;
        state.selection = {};
        state.selection.selX = 3;
        state.selection.selY = 4;
        window = new frmSettlement(*world, state, platform, *history, nullptr);
        window->show();
        QSignalSpy again(window, &frmSettlement::travelRequested);
        child<QAction>("mnuTravelTo")->trigger();
        QCOMPARE(again.count(), 1);
        QVERIFY(again.at(0).at(0).toString().isEmpty());
        QVERIFY(window->isVisible());
    }

    void eachStoredEditUndoesAsOneStep()
    {
        open();
        edit("SetName")->setFocus();
        edit("SetName")->selectAll();
        QTest::keyClicks(edit("SetName"), "Oakton");
        QCOMPARE(world->sector(57, 112).settlementName, std::string("Oakton"));

        // A shop stored through its dialog.
        button("AddShop")->click();
        QVERIFY(!window->isEnabled());
        auto *name = dialogBox<QLineEdit>("frmAddShop", "txtName");
        QVERIFY(name);
        QCOMPARE(dialogBox<QLineEdit>("frmAddShop", "txtNumber")->text(), QString("22"));
        name->setText("Inn");
        dialogBox<QPushButton>("frmAddShop", "cmdOK")->click();
        QVERIFY(window->isEnabled());
        QCOMPARE(world->shopName(12, 22), std::string_view("Inn"));
        QCOMPARE(list("lstShops")->table().rowCount(), 3u);
        // Renumbering when the number box is left.
        edit("SetNum")->setFocus();
        edit("SetNum")->setText("40");
        button("AddObject")->setFocus(Qt::TabFocusReason);
        QCOMPARE(world->sector(57, 112).settlementNumber, 40);

        window->close();

        history->undo();
        QCOMPARE(world->sector(57, 112).settlementNumber, 12);
        history->undo();
        QCOMPARE(world->shopName(12, 22), std::string_view(""));
        history->undo();
        QCOMPARE(world->sector(57, 112).settlementName, std::string("Oakvale"));
        QVERIFY(!history->canUndo());
    }

    void anItemDeletedIsOneStep()
    {
        open();
        list("lstObjects")->setFocus();
        list("lstObjects")->selectRow(0);
        platform.answers = {Answer::Yes};
        QTest::keyClick(list("lstObjects"), Qt::Key_Delete);
        QCOMPARE(platform.messages.back().text, std::string("Really delete this object?"));
        QCOMPARE(list("lstObjects")->table().rowCount(), 1u);
        QCOMPARE(world->item(12, 20, 1, ItemField::Name), std::string_view("Dagger"));
        QCOMPARE(history->undoName(), std::string("Delete Item"));
        history->undo();
        QCOMPARE(world->item(12, 20, 1, ItemField::Name), std::string_view("Long Sword"));
        QCOMPARE(world->item(12, 20, 2, ItemField::Name), std::string_view("Dagger"));
    }

    void clipboardCopiesTheShopList()
    {
        open();
        button("cmdClip")->click();
        QCOMPARE(platform.clipboard.substr(0, 9), std::string("20 Smithy"));
        QCOMPARE(child<QPlainTextEdit>("txtClipboard")->toPlainText().left(9), QString("20 Smithy"));
    }
};

QTEST_MAIN(SettlementWindowTest)
#include "frmSettlement_test.moc"
