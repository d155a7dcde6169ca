#pragma once

#include "dungeons/dungeon_sheet.h"
#include "shared/ui/secondary_window.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace wayscribe {

class World;
struct ProgramState;
class ChangeHistory;

// "Dungeon Map": one level of the dungeon SelDungeon at a time, its map in
// a fixed-pitch font and the player's room notes beside it.
class frmDungeon : public SecondaryWindow {
    Q_OBJECT
public:
    frmDungeon(World &world, ProgramState &state, ChangeHistory &history, QWidget *mainWindow);

protected:
    bool mayClose() override;

private:
    void cmdLevelDown_Click();
    void cmdLevelUp_Click();
    void txtCurLevel_Change();
    void txtLevels_Change();
    void showLevel();
    std::string roomText() const;

    DungeonSheet sheet_;

    QLabel *lblDungeonName = nullptr;
    QLineEdit *txtDungeonName = nullptr;
    QLabel *lblLevels = nullptr;
    QLineEdit *txtLevels = nullptr;
    QLabel *lblCurLevel = nullptr;
    QLineEdit *txtCurLevel = nullptr;
    QLabel *lblPosition = nullptr;
    QLineEdit *txtXPos = nullptr;
    QLineEdit *txtYPos = nullptr;
    QPlainTextEdit *txtDungeonMap = nullptr;
    QLabel *lblRoomData = nullptr;
    QPlainTextEdit *txtRoomData = nullptr;
    QPushButton *cmdLevelUp = nullptr;
    QPushButton *cmdLevelDown = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
