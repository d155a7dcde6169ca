#pragma once

#include "shared/ui/secondary_window.h"

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace wayscribe {

class World;
struct ProgramState;
class Platform;
class ChangeHistory;
class WindowHost;
class ReportListView;

// "Note Database": every note of the map, filtered and searched, leading to
// its sector, its editor or its removal.
class frmNotes : public SecondaryWindow {
    Q_OBJECT
public:
    frmNotes(World &world, ProgramState &state, Platform &platform, ChangeHistory &history, WindowHost &host,
             QWidget *mainWindow);

private:
    void List_Update_All();
    void txtSearch_Change();
    void cmdGoto_Click();
    void cmdEdit_Click();
    void cmdRemove_Click();
    // The selected row's sector; false without a selection.
    bool selectedSector(int &x, int &y) const;

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    ChangeHistory &history_;
    WindowHost &host_;
    bool rowsPresent_ = false;

    ReportListView *lstNotes = nullptr;
    QGroupBox *Frame1 = nullptr;
    QCheckBox *chkSettlements = nullptr;
    QCheckBox *chkSearch = nullptr;
    QLineEdit *txtSearch = nullptr;
    QLabel *lblAdvanced = nullptr;
    QLabel *lblExample = nullptr;
    std::array<QRadioButton *, 2> Option1{};
    QPushButton *cmdGoto = nullptr;
    QPushButton *cmdEdit = nullptr;
    QPushButton *cmdRemove = nullptr;
    QPushButton *cmdRefresh = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
