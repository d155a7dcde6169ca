// The main window's commands: every menu item and toolbar button of the
// program, in the order the menus show them. Items whose windows come with
// later versions are present but disabled.
#include "app/Orvens_Mapper.h"

#include "app/command_table.h"
#include "app/frmGameNum.h"
#include "app/frmOptions.h"
#include "app/tile_set_menu.h"
#include "app/window_host.h"
#include "dungeons/ui/frmDungeonList.h"
#include "import/batch_import.h"
#include "import/html_import.h"
#include "model/change_history.h"
#include "model/program_state.h"
#include "notes/ui/frmNotes.h"
#include "settlements/ui/frmObjects.h"
#include "settlements/ui/frmSettList.h"
#include "storage/map_commands.h"
#include "storage/options_file.h"
#include "storage/questor_import.h"
#include "view/map_tools.h"
#include "view/movement_counter.h"
#include "view/ui/frmGotoCity.h"
#include "view/ui/map_view.h"
#include "view/view_navigation.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace wayscribe {

void Orvens_Mapper::buildCommands()
{
    commands_ = new CommandTable([this] { return state_.document.fileBusy != 0; }, this);
    World &w = world_;
    ProgramState &s = state_;
    Platform &p = platform_;
    const auto busyGuarded = Command::NotWhileBusy;
    const auto openNotes = [this] {
        host_->open(new frmNotes(world_, state_, platform_, *history_, *host_, this));
    };
    const auto openSettlementFinder = [this] {
        host_->open(new frmGotoCity(world_, state_.view, platform_, this));
    };
    // The movement counter's two switches each show the new state once
    // clicked; the mounts are checked by the counter's own rule.
    const auto counterFrom = [this](const char *control) {
        return [this, control] {
            counterChanged(
                setMovementCounter(world_, state_.movement, commands_->action(control)->isChecked()));
        };
    };
    const auto mount = [this](Mount chosen) {
        return [this, chosen] { counterChanged(chooseMount(world_, state_.movement, chosen)); };
    };
    // Undo and redo redraw the map themselves: the edits draw what they
    // change as they always have, and some (removing a note from its list)
    // leave the map as it is, so the map does not follow every change.
    // Save asks for a file only while the map has none: a name without a
    // folder is no file of its own.
    const auto save = [this] {
        const std::string &name = state_.document.mapFileName;
        Save_Map(world_, state_, platform_, name.find_first_of("/\\") == std::string::npos);
    };
    const auto saveAs = [this] { Save_Map(world_, state_, platform_, true); };
    // The lock's two controls: each shows the new state once it is clicked.
    const auto lockFrom = [this](const char *control) {
        return [this, control] { setMapLocked(commands_->action(control)->isChecked()); };
    };

    QMenuBar *bar = menuBar();
    QMenu *fileMenu = commands_->addMenu(
        bar, "mnuFile", "File",
        {
            {"mnuFileNew", "&New", replacing([&w, &s, &p] { newMapCommand(w, s, p); }), busyGuarded, false,
             QKeySequence::New},
            {"mnuFileImport", "&Import HTML",
             undoable("Import HTML", [&w, &s, &p] { Import_HTML(w, s, p, writeOptions); }), busyGuarded},
            {"mnuFileBatch", "&Batch Import HTML",
             undoable("Batch Import HTML", [&w, &s, &p] { batchImportHtml(w, s, p, writeOptions); }),
             busyGuarded},
            {"mnuFileQuestor", "Import &QuestOR",
             undoable("Import QuestOR", [&w, &s, &p] { importQuestorCommand(w, s, p); }), busyGuarded},
            Command::separator("mnuFileSep1"),
            {"mnuFileOpen", "&Open", [this] { openMap(true); }, busyGuarded, false, QKeySequence::Open},
            {"mnuFileSave", "&Save", save, busyGuarded, false, QKeySequence::Save},
            {"mnuFileSaveAs", "Save &As", saveAs, busyGuarded, false,
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
            {"mnuFileMerge", "&Merge Map", undoable("Merge Map", [&w, &s, &p] { mergeMapCommand(w, s, p); })},
            Command::separator("mnuFileSep2"),
            {"mnuFileOptions", "O&ptions",
             [this] { host_->open(new frmOptions(state_, platform_, this), true); }},
            {"mnuFileExit", "E&xit", [this] { close(); }, Command::Always, false,
             QKeySequence(Qt::CTRL | Qt::Key_Q)},
            Command::separator("mnuFileSep3"),
            {"mnuFileExportPicture", "Export Map Pic&ture...", [this] { openExportPicture(); }, busyGuarded},
        });
    addRecentMapsMenu(fileMenu);
    commands_->addMenu(
        bar, "mnuEdit", "Edit",
        {
            {"mnuEditGame", "&Game Number", [this] { host_->open(new frmGameNum(state_, *history_, this)); }},
            {"mnuEditLock", "&Lock Map", lockFrom("mnuEditLock"), Command::Always, true},
            {"mnuEditWater", "&Unknowns to Water",
             undoable("Unknowns to Water", [&w, &s, &p] { unknownsToWaterCommand(w, s, p); })},
            Command::separator("mnuEditSep1"),
            {"mnuArabians", "Use &Arabians", mount(Mount::Arabians), Command::Always, true},
            {"mnuMules", "Use &Mules", mount(Mount::Mules), Command::Always, true},
            {"mnuDrafts", "Use &Drafts", mount(Mount::Drafts), Command::Always, true},
            {"mnuFlying", "Use &Flying", mount(Mount::Flying), Command::Always, true},
            Command::separator("mnuEditSep2"),
            {"mnuEditMovement", "Movement &Counter", counterFrom("mnuEditMovement"), Command::Always, true},
            Command::separator("mnuEditSep3"),
            {"mnuEditUndo", "&Undo",
             [this] {
                 history_->undo();
                 redrawMap();
             },
             busyGuarded, false, QKeySequence::Undo},
            {"mnuEditRedo", "&Redo",
             [this] {
                 history_->redo();
                 redrawMap();
             },
             busyGuarded, false, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
        });
    commands_->addMenu(bar, "mnuView", "View",
                       {
                           {"mnuGotoCity", "Goto &City", openSettlementFinder, busyGuarded},
                           {"mnuViewNote", "Goto &Note", openNotes},
                           {"mnuViewGoto", "&Goto X Y", [&s, &p] { gotoXYCommand(s.view, p); }},
                           Command::separator("mnuViewSep1"),
                           {"mnuViewZoomIn", "Zoom &In", [this] { mapView_->zoomTo(mapView_->zoom() + 1); },
                            busyGuarded, false, QKeySequence(Qt::CTRL | Qt::Key_Plus)},
                           {"mnuViewZoomOut", "Zoom &Out", [this] { mapView_->zoomTo(mapView_->zoom() - 1); },
                            busyGuarded, false, QKeySequence(Qt::CTRL | Qt::Key_Minus)},
                           {"mnuViewActualSize", "&Actual Size", [this] { mapView_->zoomTo(1); }, busyGuarded,
                            false, QKeySequence(Qt::CTRL | Qt::Key_0)},
                           Command::separator("mnuViewSep2"),
                           {"mnuViewZoom1", "&1x", [this] { mapView_->zoomTo(1); }, busyGuarded, true},
                           {"mnuViewZoom2", "&2x", [this] { mapView_->zoomTo(2); }, busyGuarded, true},
                           {"mnuViewZoom3", "&3x", [this] { mapView_->zoomTo(3); }, busyGuarded, true},
                           {"mnuViewZoom4", "&4x", [this] { mapView_->zoomTo(4); }, busyGuarded, true},
                       });
    groupZoomCommands();
    commands_->addMenu(
        bar, "mnuInformation", "Information",
        {
            {"mnuInformationPercent", "&Map Statistics", [&w, &p] { mapStatisticsCommand(w, p); }},
            {"mnuInformationObjects", "&Objects Database",
             [this] { host_->open(new frmObjects(world_, state_.view, platform_, this)); }},
            {"mnuInformationNotes", "&Notes Database", openNotes},
            {"mnuInfoSett", "&Settlement Database",
             [this] { host_->open(new frmSettList(world_, state_.view, platform_, this)); }},
            {"mnuInfoDungeon", "&Dungeon Database",
             [this] { host_->open(new frmDungeonList(world_, state_, platform_, *history_, *host_, this)); }},
            Command::separator("mnuInformationLine"),
            {"mnuInformationTravel", "&Travel Agency", [this] { openRouteFinder({}, false); }, busyGuarded},
        });
    tileSets_ = new TileSetMenu(bar, this);
    connect(tileSets_, &TileSetMenu::chosen, this, &Orvens_Mapper::loadTileSet);
    commands_->addMenu(bar, "mnuHelp", "Help",
                       {
                           {"mnuHelpAbout", "&About Wayscribe", [this] { showAbout(); }},
                       });

    toolbar_ = addToolBar("Tools");
    toolbar_->setObjectName("toolbar");
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(24, 24));
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    // The New Map and Load Map buttons do not test the busy flag; Save does.
    commands_->fillToolbar(
        toolbar_,
        {
            {.name = "cmdNew",
             .caption = "New Map",
             .run = replacing([&w, &s, &p] { newMapCommand(w, s, p); }),
             .picture = "new.gif"},
            {.name = "cmdLoad",
             .caption = "Load Map",
             .run = [this] { openMap(false); },
             .picture = "load.gif"},
            {.name = "cmdSave",
             .caption = "Save Map",
             .run = save,
             .guard = busyGuarded,
             .picture = "save.gif"},
            {.name = "chkLocked",
             .caption = "Map Lock",
             .run = lockFrom("chkLocked"),
             .checkable = true,
             .picture = "lock.gif"},
            {.name = "chkMovement",
             .caption = "Movement point counter",
             .run = counterFrom("chkMovement"),
             .checkable = true,
             .picture = "movement.gif"},
            {.name = "cmdGotoxy",
             .caption = "Go to co-ords",
             .run = [&s, &p] { gotoXYCommand(s.view, p); },
             .picture = "gotoxy.gif"},
            {.name = "cmdGotoNote", .caption = "Go to note", .run = openNotes, .picture = "gotonote.gif"},
            {.name = "cmdGotoSettle",
             .caption = "Go to settlement",
             .run = openSettlementFinder,
             .guard = busyGuarded,
             .picture = "gotosettlement.gif"},
        });
    // Commands that only show a message (an import of another game's report)
    // change the document without a redraw: after every command the title
    // and the undo items follow it. Connected after the table's own
    // connection, so this runs once the command is done.
    for (QAction *action : findChildren<QAction *>(Qt::FindDirectChildrenOnly))
        connect(action, &QAction::triggered, this, &Orvens_Mapper::followDocument);
}

} // namespace wayscribe
