#pragma once

#include "settlements/settlement_editor.h"
#include "shared/ui/secondary_window.h"

#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;

namespace wayscribe {

class ReportListView;

// The settlement editor: name, number, city-state and notes of the settlement
// the selections name (the opener sets SelX, SelY, SelSettlement, SelNumber
// and SelShop), with its shops and their items.
class frmSettlement : public SecondaryWindow {
    Q_OBJECT
public:
    frmSettlement(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                  QWidget *mainWindow);

signals:
    // The route finder is to be shown. With a box text ("Oakvale (12)") the
    // editor has closed to hand its settlement over as the destination or
    // the start; with an empty text the sector holds no settlement in use,
    // and the route finder opens with its boxes untouched beside the editor.
    void travelRequested(const QString &boxText, bool asDestination);

protected:
    bool mayClose() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Refresh_Shops();
    void showObjects(std::vector<ShopItemRow> rows);
    void Refresh_Objects();
    void refreshLists();
    void SetNum_LostFocus();
    void lstShops_Click();
    void lstShops_DblClick();
    void lstObjects_DblClick(int row);
    void AddShop_Click();
    void AddObject_Click();
    void cmdClip_Click();
    void travel(bool asDestination);
    void openDialog(SecondaryWindow *dialog);
    std::string notesText() const;

    World &world_;
    SettlementEditor editor_;
    std::vector<ShopRow> shopRows_;
    std::vector<ShopItemRow> itemRows_;

    QMenuBar *menuBar = nullptr;
    QMenu *mnuOptions = nullptr;
    QAction *mnuTravelTo = nullptr;
    QAction *mnuTravelFrom = nullptr;
    QAction *mnuSep1 = nullptr;
    QAction *mnuExit = nullptr;
    QLabel *Label1 = nullptr;
    QLineEdit *SetName = nullptr;
    QLabel *Label2 = nullptr;
    QLineEdit *SetNum = nullptr;
    QLabel *Label3 = nullptr;
    QLineEdit *SetCoords = nullptr;
    QLabel *Label5 = nullptr;
    QLineEdit *txtCityState = nullptr;
    QLabel *Label8 = nullptr;
    ReportListView *lstShops = nullptr;
    QLabel *Label4 = nullptr;
    QPlainTextEdit *SetNotes = nullptr;
    QLabel *lblObjects = nullptr;
    ReportListView *lstObjects = nullptr;
    QPushButton *AddShop = nullptr;
    QPushButton *AddObject = nullptr;
    QPushButton *cmdClip = nullptr;
    QPushButton *ExitSet = nullptr;
    QPlainTextEdit *txtClipboard = nullptr; // never shown: the last shop list copied
};

} // namespace wayscribe
