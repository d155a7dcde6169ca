#pragma once

#include "app/app_paths.h"
#include "app/qt_platform.h"
#include "view/draw/tile_sheet.h"
#include "view/map_brush.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>

class QDragEnterEvent;
class QDropEvent;
class QLabel;
class QMenu;
class QToolBar;

namespace wayscribe {

class World;
struct ProgramState;
class ChangeHistory;
class WorldChangeSignal;
class CommandTable;
class WindowHost;
class TileSetMenu;
class MapView;
class MapClicks;
struct CounterUpdate;
class MapPicture;
class MinimapWidget;
class SectorPanel;
class MovementPanel;
class TerrainPalette;
class frmAbout;
class Autosave;
struct Minimap;

// The main window: puts the map view, the side panels, the menus and the
// toolbar together, runs the start-up and the exit, and shows what the
// platform asks it to show.
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

    // Every change to the world goes through here, so that it can be undone.
    ChangeHistory &history() { return *history_; }

    const TileSheet &tileSheet() const { return sheet_; }
    const Minimap &minimap() const;
    MapPicture *mapPicture() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    // Maps and turn reports dropped onto the window (main_window_files.cpp).
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildCentre();
    void buildCommands(); // main_window_commands.cpp
    bool loadPictures();
    void setMapLocked(bool locked);
    void updateTitle();
    // The title's star and the undo items follow the document: run after
    // every command, map click and change of the world.
    void followDocument();
    // File, Open and the Load Map button (`fromMenu` false); a dropped or
    // recent map comes as `name`.
    void openMap(bool fromMenu, const std::string &name = {});
    // File > Recent Maps after the file commands (main_window_files.cpp).
    void addRecentMapsMenu(QMenu *fileMenu);
    void fillRecentMapsMenu();
    // A map that now has its own file joins the recent maps.
    void rememberMapFile();
    // The zoom items of the View menu and File, Export Map Picture
    // (view_commands.cpp).
    void groupZoomCommands();
    void showZoom();
    void openExportPicture();
    void showAbout();
    void worldChanged();
    void refreshUndoItems();
    // Shows what a movement counter command changed.
    void counterChanged(const CounterUpdate &update);
    // A map click opens the note or settlement editor of the selected sector.
    void openEditor(SectorEditor editor);
    // The travel agency, with a settlement handed over by the settlement
    // editor in one of its boxes (none when `boxText` is empty).
    void openRouteFinder(const QString &boxText, bool asDestination);
    // The commands that change the world, as undo steps; the commands that
    // replace the map (New) empty the history.
    std::function<void()> undoable(const char *name, std::function<void()> command);
    std::function<void()> replacing(std::function<void()> command);

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    AppPaths paths_;
    TileSheet sheet_;
    std::unique_ptr<ChangeHistory> history_;
    std::unique_ptr<WorldChangeSignal> changes_; // goes before the history it listens to

    CommandTable *commands_ = nullptr;
    WindowHost *host_ = nullptr;
    TileSetMenu *tileSets_ = nullptr;
    MapView *mapView_ = nullptr;
    MapClicks *clicks_ = nullptr;
    MinimapWidget *MiniMap = nullptr;
    SectorPanel *sectorPanel_ = nullptr;
    MovementPanel *movementPanel_ = nullptr;
    TerrainPalette *palette_ = nullptr;
    QToolBar *toolbar_ = nullptr;
    QLabel *txtStatus = nullptr;
    frmAbout *about_ = nullptr;
    QMenu *recentMaps_ = nullptr;
    Autosave *autosave_ = nullptr;
    std::string rememberedMapFile_;
};

} // namespace wayscribe
