#pragma once

#include "app/app_paths.h"
#include "app/qt_platform.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/tile_sheet.h"

#include <QMainWindow>

#include <map>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QScrollBar;
class QToolButton;
class QToolBar;

namespace wayscribe {

class World;
struct ProgramState;
class MapPicture;
class MinimapWidget;
class TerrainPalette;
class frmAbout;

// The main window: menu bar, toolbar, map picture with its scroll bars,
// minimap, information panel and status line.
class Orvens_Mapper : public QMainWindow, public PlatformHost {
    Q_OBJECT
public:
    Orvens_Mapper(World &world, ProgramState &state, Platform &platform, const AppPaths &paths);
    ~Orvens_Mapper() override;

    // The start-up sequence after the window exists: options, pictures,
    // cleared map, and the last map when the options ask for it, or else the
    // map named on the command line. False when the program must end at once.
    bool startUp(const std::string &mapToOpen = {});

    // PlatformHost
    QWidget *dialogParent() override { return this; }
    void showStatus(const std::string &text) override;
    void redrawMap() override;
    void syncLockControls() override;

    // Switches the tile set (the Graphics menu).
    void loadTileSet(const std::string &setName);

    // Shows a secondary window; the main window's contents stay disabled
    // until it closes. `redrawAfter` redraws the map when it closes.
    void openSecondary(QWidget *window, bool redrawAfter = false);

    const TileSheet &tileSheet() const { return sheet_; }
    const Minimap &minimap() const { return minimap_; }
    MapPicture *mapPicture() const { return Picture1; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void buildToolbar();
    void buildCentre();
    QAction *addMenuItem(QMenu *menu, const char *name, const QString &caption,
                         void (Orvens_Mapper::*slot)());
    QAction *addLaterItem(QMenu *menu, const char *name, const QString &caption);
    void enableTileSetItems();
    bool loadPictures();
    void layoutMapPicture();
    void syncScrollBars();
    void showSector(int x, int y);
    void setContentsEnabled(bool enabled);
    void centreOverWindow(QWidget *window) const;
    void updateTitle();

    // Commands.
    void cmdNew_Click();
    void mnuFileNew_Click();
    void cmdLoad_Click();
    void mnuFileOpen_Click();
    void cmdSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileMerge_Click();
    void mnuFileImport_Click();
    void mnuFileBatch_Click();
    void mnuFileQuestor_Click();
    void mnuFileOptions_Click();
    void mnuFileExit_Click();
    void mnuEditGame_Click();
    void mnuEditLock_Click();
    void chkLocked_Click();
    void mnuEditWater_Click();
    void mnuViewGoto_Click();
    void mnuInformationPercent_Click();
    void mnuInformationTravel_Click();
    void mnuHelpAbout_Click();
    void hscroll_Change(int value);
    void vscroll_Change(int value);
    void MiniMap_MouseDown(double x, double y);
    void MiniMap_MouseMove(double x, double y);
    void Picture1_MouseMove(int column, int row);

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    AppPaths paths_;
    TileSheet sheet_;
    Minimap minimap_;

    MapPicture *Picture1 = nullptr;
    QScrollBar *hscroll = nullptr;
    QScrollBar *vscroll = nullptr;
    MinimapWidget *MiniMap = nullptr;
    TerrainPalette *palette_ = nullptr;
    QLabel *txtStatus = nullptr;
    QLineEdit *Xbox = nullptr;
    QLineEdit *Ybox = nullptr;
    QLineEdit *terbox = nullptr;
    QLineEdit *citybox = nullptr;
    QLineEdit *citynumbox = nullptr;
    QLineEdit *txtCityState = nullptr;
    QPlainTextEdit *txtNoteBox = nullptr;
    QLineEdit *mpbox = nullptr;
    QLineEdit *mpcbox = nullptr;
    QLineEdit *txtTotalMPs = nullptr;
    QToolBar *toolbar_ = nullptr;
    std::vector<QToolButton *> workingButtons_; // the toolbar buttons that have a command
    QToolButton *chkLocked = nullptr;
    QAction *mnuEditLock = nullptr;
    std::map<std::string, QAction *> tileSetItems_;
    frmAbout *about_ = nullptr;
};

} // namespace wayscribe
