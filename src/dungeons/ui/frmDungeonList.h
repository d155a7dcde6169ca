#pragma once

#include "shared/ui/secondary_window.h"

class QPushButton;

namespace wayscribe {

class World;
struct ProgramState;
class Platform;
class ChangeHistory;
class WindowHost;
class ReportListView;

// "Dungeon List": every dungeon in use, to view or remove.
class frmDungeonList : public SecondaryWindow {
    Q_OBJECT
public:
    frmDungeonList(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                   WindowHost &host, QWidget *mainWindow);

private:
    void List_Update_All();
    void cmdGoto_Click();
    void cmdRemove_Click();
    // The "Dungeon #" of the selected row; none without a selection.
    int selectedDungeon() const;

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    ChangeHistory &history_;
    WindowHost &host_;

    ReportListView *lstNotes = nullptr;
    QPushButton *cmdGoto = nullptr;
    QPushButton *cmdRemove = nullptr;
    QPushButton *cmdRefresh = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
