#include "app/frmAbout.h"
#include "app/frmGameNum.h"
#include "app/frmOptions.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"
#include "support/test_support.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

class SecondaryWindowsTest : public QObject {
    Q_OBJECT
private slots:
    void optionsOkWritesTheFlagsWithTheCurrentOrigin()
    {
        TempDir dir;
        ProgramState state;
        ScriptedPlatform platform;
        state.optionsFilePath = dir.file("wayscribe.ini");
        state.view.viewLeft = 33;
        auto *window = new frmOptions(state, platform, nullptr);
        window->show();
        auto *shops = window->findChild<QCheckBox *>("chkImportShop");
        auto *hides = window->findChild<QCheckBox *>("chkImportHide");
        QVERIFY(hides->isEnabled());
        shops->click();
        QVERIFY(!hides->isEnabled());
        QVERIFY(hides->isChecked());
        window->findChild<QCheckBox *>("chkLockLoad")->click();
        window->findChild<QPushButton *>("cmdOK")->click();
        QVERIFY(!state.options.importShops);
        QVERIFY(state.options.importHides);
        QVERIFY(state.options.loadLock);
        const std::string file = readFile(state.optionsFilePath);
        QVERIFY(file.find("Shops = False\r\n") != std::string::npos);
        QVERIFY(file.find("LoadLock = True\r\n") != std::string::npos);
        QVERIFY(file.find("XLEFT = 33\r\n") != std::string::npos);
        delete window;
    }

    void optionsCancelChangesNothing()
    {
        TempDir dir;
        ProgramState state;
        ScriptedPlatform platform;
        state.optionsFilePath = dir.file("wayscribe.ini");
        frmOptions window(state, platform, nullptr);
        window.show();
        window.findChild<QCheckBox *>("chkGraphs")->click();
        window.findChild<QPushButton *>("cmdCancel")->click();
        QVERIFY(state.options.extra);
        QVERIFY(readFile(state.optionsFilePath).empty());
    }

    void gameNumberTakesEffectOnCloseAsAnUndoStep()
    {
        ProgramState state;
        auto world = std::make_unique<World>();
        ChangeHistory history(*world, state.document);
        state.document.gameNumber = 12;
        auto *window = new frmGameNum(state, history, nullptr);
        window->show();
        auto *box = window->findChild<QLineEdit *>("txtGameNum");
        QCOMPARE(box->text(), QString("12"));
        box->setText("");
        QTest::keyClicks(box, "300"); // only 0..255 can be typed
        QCOMPARE(box->text(), QString("30"));
        QPointer<frmGameNum> alive(window);
        window->close();
        QCOMPARE(state.document.gameNumber, 30);
        QTRY_VERIFY(alive.isNull());
        QCOMPARE(history.undoName(), std::string("Game Number"));
        history.undo();
        QCOMPARE(state.document.gameNumber, 12);

        // An emptied box means game 0; Escape closes the same way.
        window = new frmGameNum(state, history, nullptr);
        window->show();
        window->findChild<QLineEdit *>("txtGameNum")->setText("");
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(state.document.gameNumber, 0);
    }

    void aboutCannotBeClosedWhileTheLastMapLoads()
    {
        frmAbout about(WAYSCRIBE_GRAPHICS, nullptr);
        about.show();
        about.setPleaseWaitVisible(true);
        QTest::mouseClick(&about, Qt::LeftButton);
        QVERIFY(about.isVisible());
        about.setPleaseWaitVisible(false);
        QTest::mouseClick(&about, Qt::LeftButton);
        QVERIFY(!about.isVisible());
        QCOMPARE(about.windowTitle(), QString("About the Wayscribe"));
    }
};

QTEST_MAIN(SecondaryWindowsTest)
#include "secondary_windows_test.moc"
