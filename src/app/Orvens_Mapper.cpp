#include "app/Orvens_Mapper.h"

#include "app/autosave.h"
#include "app/command_table.h"
#include "app/frmAbout.h"
#include "app/tile_set_menu.h"
#include "app/window_host.h"
#include "model/change_history.h"
#include "model/file_paths.h"
#include "model/program_state.h"
#include "model/world.h"
#include "notes/ui/frmNote.h"
#include "settlements/ui/frmSettlement.h"
#include "shared/ui/qt_text.h"
#include "shared/ui/world_change_signal.h"
#include "storage/map_commands.h"
#include "storage/options_file.h"
#include "travel/ui/frmRouteFinder.h"
#include "view/movement_counter.h"
#include "view/movement_orders.h"
#include "view/ui/map_clicks.h"
#include "view/ui/map_picture.h"
#include "view/ui/map_view.h"
#include "view/ui/minimap_widget.h"
#include "view/ui/movement_panel.h"
#include "view/ui/sector_panel.h"
#include "view/ui/terrain_palette.h"
#include "view/view_navigation.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <tuple>

namespace wayscribe {

Orvens_Mapper::Orvens_Mapper(World &world, ProgramState &state, Platform &platform, const AppPaths &paths)
    : world_(world), state_(state), platform_(platform), paths_(paths),
      history_(std::make_unique<ChangeHistory>(world, state.document))
{
    setObjectName("Orvens_Mapper");
    setWindowTitle("Wayscribe");
    changes_ = std::make_unique<WorldChangeSignal>(*history_, nullptr);
    buildCentre();
    host_ = new WindowHost(this, [this] { redrawMap(); });
    buildCommands();
    connect(changes_.get(), &WorldChangeSignal::worldChanged, this, &Orvens_Mapper::worldChanged);
    refreshUndoItems();
    setAcceptDrops(true);
    resize(1180, 760);
}

Orvens_Mapper::~Orvens_Mapper() = default;

const Minimap &Orvens_Mapper::minimap() const
{
    return mapView_->minimap();
}

MapPicture *Orvens_Mapper::mapPicture() const
{
    return mapView_->picture();
}

void Orvens_Mapper::buildCentre()
{
    auto *centre = new QWidget(this);
    auto *row = new QHBoxLayout(centre);
    row->setContentsMargins(6, 6, 6, 6);
    row->setSpacing(8);
    mapView_ = new MapView(world_, state_, sheet_, centre);
    row->addWidget(mapView_, 1);

    auto *side = new QWidget;
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    MiniMap = new MinimapWidget(side);
    column->addWidget(MiniMap, 0, Qt::AlignHCenter);
    sectorPanel_ = new SectorPanel(side);
    column->addWidget(sectorPanel_, 1);
    movementPanel_ = new MovementPanel(side);
    column->addWidget(movementPanel_);
    auto *paint = new QGroupBox("Terrain", side);
    auto *paintLayout = new QVBoxLayout(paint);
    palette_ = new TerrainPalette(paint);
    paintLayout->addWidget(palette_);
    column->addWidget(paint);

    // On a small screen the panels scroll rather than push the window off it.
    auto *sideScroll = new QScrollArea(centre);
    sideScroll->setObjectName("sidePanel");
    sideScroll->setWidget(side);
    sideScroll->setWidgetResizable(true);
    sideScroll->setFrameShape(QFrame::NoFrame);
    sideScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sideScroll->setFixedWidth(std::max(MiniMap->sizeHint().width() + 40, 260) +
                              sideScroll->verticalScrollBar()->sizeHint().width());
    row->addWidget(sideScroll);
    setCentralWidget(centre);

    txtStatus = new QLabel(this);
    txtStatus->setObjectName("txtStatus");
    txtStatus->setAccessibleName("Status");
    statusBar()->addWidget(txtStatus, 1);

    connect(mapView_, &MapView::sectorHovered, this,
            [this](int x, int y) { sectorPanel_->showSector(world_, x, y, state_.movement.moveMode); });
    clicks_ = new MapClicks(world_, state_, platform_, *history_, *mapView_, this);
    connect(mapView_, &MapView::sectorClicked, clicks_, &MapClicks::Picture1_Click);
    // Connected after the click handler, so it runs after it: a declined
    // brush stroke still marks the map as changed.
    connect(mapView_, &MapView::sectorClicked, this, &Orvens_Mapper::followDocument);
    connect(clicks_, &MapClicks::counterChanged, this, &Orvens_Mapper::counterChanged);
    connect(clicks_, &MapClicks::editorRequested, this, &Orvens_Mapper::openEditor);
    connect(palette_, &TerrainPalette::terrainChosen, this,
            [this](int terrain) { state_.selection.brushTerrain = static_cast<std::int16_t>(terrain); });
    connect(movementPanel_, &MovementPanel::horseCounterClicked, this,
            [this](bool ticked) { counterChanged(setHorseCounter(world_, state_.movement, ticked)); });
    connect(movementPanel_, &MovementPanel::copyOrdersClicked, this,
            [this] { copyMovementOrders(state_.movement, platform_); });
    connect(mapView_, &MapView::minimapRedrawn, MiniMap, &MinimapWidget::setImage);
    connect(MiniMap, &MinimapWidget::clicked, mapView_, &MapView::centreOnMinimapPoint);
    connect(MiniMap, &MinimapWidget::pointerMoved, this, [this](double x, double y) {
        sectorPanel_->showCoordinates(static_cast<int>(2 * x), static_cast<int>(2 * y));
    });
}

std::function<void()> Orvens_Mapper::undoable(const char *name, std::function<void()> command)
{
    return [this, name, command] { history_->apply(name, command); };
}

std::function<void()> Orvens_Mapper::replacing(std::function<void()> command)
{
    return [this, command] { history_->replace(command); };
}

void Orvens_Mapper::refreshUndoItems()
{
    for (const auto &[item, caption, can, stepName] :
         {std::tuple{"mnuEditUndo", "&Undo", history_->canUndo(), history_->undoName()},
          std::tuple{"mnuEditRedo", "&Redo", history_->canRedo(), history_->redoName()}}) {
        QAction *action = commands_->action(item);
        action->setEnabled(can);
        action->setText(can ? QString(caption) + " " + toQString(stepName) : QString(caption));
    }
}

void Orvens_Mapper::worldChanged()
{
    followDocument();
    // Editors mark the map as changed after their step has been kept: look
    // again once they are done.
    QTimer::singleShot(0, this, &Orvens_Mapper::followDocument);
}

void Orvens_Mapper::followDocument()
{
    refreshUndoItems();
    updateTitle();
    rememberMapFile();
    if (autosave_)
        autosave_->followDocument();
}

void Orvens_Mapper::openMap(bool fromMenu, const std::string &name)
{
    // A load that stops part-way overwrites part of the map: it is one undo
    // step, so that the map from before can come back. A complete load is
    // another map, to which the old steps do not apply.
    LoadResult result = LoadResult::Cancelled;
    history_->apply("Open Map", [&] { result = loadMapCommand(world_, state_, platform_, fromMenu, name); });
    if (result == LoadResult::Complete)
        history_->clear();
}

void Orvens_Mapper::counterChanged(const CounterUpdate &update)
{
    if (update.boxes)
        movementPanel_->showCounts(*update.boxes);
    if (update.redrawMap)
        redrawMap();
    const MovementState &movement = state_.movement;
    // The toolbar box, the menu items and the horse box mirror the counter.
    commands_->action("chkMovement")->setChecked(movement.moveCounterOn == 1);
    commands_->action("mnuEditMovement")->setChecked(movement.moveCounterOn == 1);
    movementPanel_->setHorseCounter(movement.horseCounter);
    for (const auto &[item, mount] :
         {std::pair{"mnuArabians", Mount::Arabians}, std::pair{"mnuMules", Mount::Mules},
          std::pair{"mnuDrafts", Mount::Drafts}, std::pair{"mnuFlying", Mount::Flying}})
        commands_->action(item)->setChecked(movement.checkedMount == mount);
}

void Orvens_Mapper::openEditor(SectorEditor editor)
{
    if (editor == SectorEditor::Note) {
        host_->open(new frmNote(world_, state_, platform_, *history_, *host_, this));
    } else if (editor == SectorEditor::Settlement) {
        auto *settlement = new frmSettlement(world_, state_, platform_, *history_, this);
        connect(settlement, &frmSettlement::travelRequested, this, &Orvens_Mapper::openRouteFinder);
        host_->open(settlement);
    }
}

void Orvens_Mapper::openRouteFinder(const QString &boxText, bool asDestination)
{
    auto *finder = new frmRouteFinder(world_, state_, platform_, this);
    if (!boxText.isEmpty()) {
        if (asDestination)
            finder->setToText(boxText);
        else
            finder->setFromText(boxText);
    }
    host_->open(finder);
}

void Orvens_Mapper::showStatus(const std::string &text)
{
    txtStatus->setText(toQString(text));
    txtStatus->repaint();
}

void Orvens_Mapper::updateTitle()
{
    // The map's file name, and a star while it has unsaved changes.
    const DocumentState &doc = state_.document;
    const QString name =
        doc.mapFileName.empty() ? QString("Untitled") : QFileInfo(toQString(doc.mapFileName)).fileName();
    setWindowTitle(name + (doc.mapChanged ? "*" : "") + " - Wayscribe");
}

void Orvens_Mapper::redrawMap()
{
    updateTitle();
    mapView_->redraw();
}

void Orvens_Mapper::setMapLocked(bool locked)
{
    state_.document.mapLocked = locked ? 1 : 0;
    syncLockControls();
}

void Orvens_Mapper::syncLockControls()
{
    // The toolbar box and the Edit menu item mirror the one flag.
    for (const char *name : {"chkLocked", "mnuEditLock"})
        commands_->action(name)->setChecked(state_.document.mapLocked == 1);
}

bool Orvens_Mapper::loadPictures()
{
    for (const auto &[command, picture] : commands_->toolbarPictures()) {
        const QImage image(toQString(paths_.graphicsFolder + "/" + picture));
        if (!image.isNull())
            commands_->action(command)->setIcon(QIcon(QPixmap::fromImage(image)));
    }
    Options &options = state_.options;
    std::string error = sheet_.loadTileSet(paths_.graphicsFolder, options.graphicsSetName);
    if (!error.empty() && options.graphicsSetName != kDefaultTileSet) {
        // A set named in the options that is gone: fall back to the default.
        options.graphicsSetName = kDefaultTileSet;
        error = sheet_.loadTileSet(paths_.graphicsFolder, options.graphicsSetName);
    }
    if (!error.empty())
        platform_.message("The tile pictures could not be loaded.", kProgramTitle, MessageButtons::Ok,
                          MessageIcon::Exclamation, error);
    palette_->showTiles(sheet_);
    tileSets_->markCurrent(options.graphicsSetName);
    if (!QFileInfo::exists(toQString(paths_.graphicsFolder + "/note_m.gif"))) {
        platform_.message(
            "Warning! The new 'note_m.gif' image was not found! Please place this new graphic into "
            "the 'graphics\\' folder and re-run Wayscribe!",
            kProgramTitle, MessageButtons::Ok, MessageIcon::None);
        return false;
    }
    error = sheet_.loadMarkers(paths_.graphicsFolder);
    if (!error.empty())
        platform_.message("Some marker pictures could not be loaded.", kProgramTitle, MessageButtons::Ok,
                          MessageIcon::Exclamation, error);
    return true;
}

bool Orvens_Mapper::startUp(const std::string &mapToOpen)
{
    state_.appFolder = paths_.appFolder;
    state_.optionsFilePath = paths_.optionsFile;
    about_ = new frmAbout(paths_.graphicsFolder, this);
    about_->adjustSize();
    host_->centre(about_);
    about_->show();
    DocumentState &doc = state_.document;
    state_.view.scrollBusy = 0;
    doc.mapLocked = 0;
    doc.gameNumber = 0;
    doc.mapFileName.clear();
    state_.selection.selDungeon = 0;
    state_.options.lmol = false;
    state_.options.wmol.clear();
    doc.mapChanged = 0;
    tileSets_->enableAvailable(paths_.graphicsFolder);
    state_.view.viewLeft = 0;
    state_.view.viewTop = 0;
    // Options that cannot be read leave the defaults; the status line says why.
    const std::optional<FileError> optionsError = readOptionsFile(state_.optionsFilePath, state_);
    if (!loadPictures())
        return false;
    sectorPanel_->reset();
    world_.clear();
    state_.movement = {};
    doc.fileBusy = 0;
    mapView_->measure();
    showZoom();
    if (!mapToOpen.empty()) {
        // A map named on the command line opens like File, Open, in place of
        // the last map.
        Load_Map(world_, state_, platform_, mapToOpen);
    } else if (state_.options.lmol && !state_.options.wmol.empty() && fileExists(state_.options.wmol)) {
        about_->setPleaseWaitVisible(true);
        Load_Map(world_, state_, platform_, state_.options.wmol);
        state_.view.viewLeft = state_.options.xLeft;
        state_.view.viewTop = state_.options.yTop;
        about_->setPleaseWaitVisible(false);
    }
    clampView(state_.view);
    // A map opened at start-up (the last one, or one the desktop handed
    // over) is a recent map too.
    fillRecentMapsMenu();
    rememberMapFile();
    // After the start-up steps: the changes a crashed run left behind.
    autosave_ = new Autosave(world_, state_, platform_, paths_.recoveryFolder, this);
    if (const std::optional<LeftBehindMap> copy = autosave_->leftBehind()) {
        about_->close(); // the question is not to be read through the splash
        if (autosave_->offer(*copy)) {
            history_->clear();
            clampView(state_.view);
        }
    }
    autosave_->start();
    redrawMap();
    syncLockControls();
    QTimer::singleShot(200, this, [this, optionsError] {
        showStatus("Please wait, initializing Wayscribe...");
        showStatus(optionsError ? "The options could not be read: " + optionsError->describe() : "");
    });
    // The splash steps aside by itself once the map is up.
    QTimer::singleShot(2500, about_, &QWidget::close);
    return true;
}

void Orvens_Mapper::showAbout()
{
    host_->centre(about_);
    about_->show();
    about_->raise();
}

void Orvens_Mapper::loadTileSet(const std::string &setName)
{
    Options &options = state_.options;
    if (options.graphicsSetName == setName)
        return;
    const std::string error = sheet_.loadTileSet(paths_.graphicsFolder, setName);
    if (!error.empty()) {
        platform_.message("The tile set could not be loaded; the map keeps its tiles.", kProgramTitle,
                          MessageButtons::Ok, MessageIcon::Exclamation, error);
        tileSets_->markCurrent(options.graphicsSetName);
        return;
    }
    options.graphicsSetName = setName;
    writeOptions(state_, platform_);
    palette_->showTiles(sheet_);
    tileSets_->markCurrent(setName);
    redrawMap();
}

void Orvens_Mapper::closeEvent(QCloseEvent *event)
{
    // An import or a save in progress finishes first.
    if (state_.document.fileBusy || !confirmExit(world_, state_, platform_)) {
        event->ignore();
        return;
    }
    writeOptions(state_, platform_);
    if (autosave_)
        autosave_->cleanExit();
    if (about_)
        about_->close();
    event->accept();
}

} // namespace wayscribe
