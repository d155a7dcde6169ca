#include "app/Orvens_Mapper.h"

#include "app/frmAbout.h"
#include "app/frmGameNum.h"
#include "app/frmOptions.h"
#include "shared/ui/qt_text.h"
#include "import/batch_import.h"
#include "import/html_import.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_commands.h"
#include "storage/options_file.h"
#include "storage/questor_import.h"
#include "travel/ui/frmRouteFinder.h"
#include "view/draw/map_drawing.h"
#include "view/map_tools.h"
#include "view/minimap_geometry.h"
#include "view/sector_info.h"
#include "view/tile_files.h"
#include "view/ui/map_picture.h"
#include "view/ui/minimap_widget.h"
#include "view/ui/terrain_palette.h"
#include "view/view_navigation.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace wayscribe {

namespace {

struct ToolbarButton {
    const char *name;
    const char *caption;
    const char *picture;
    bool checkable;
};

// The toolbar in the order of its pictures.
const ToolbarButton kToolbar[] = {
    {"cmdNew", "New Map", "new.gif", false},
    {"cmdLoad", "Load Map", "load.gif", false},
    {"cmdSave", "Save Map", "save.gif", false},
    {"chkLocked", "Map Lock", "lock.gif", true},
    {"chkMovement", "Movement point counter", "movement.gif", true},
    {"cmdGotoxy", "Go to co-ords", "gotoxy.gif", false},
    {"cmdGotoNote", "Go to note", "gotonote.gif", false},
    {"cmdGotoSettle", "Go to settlement", "gotosettlement.gif", false},
};

QLineEdit *infoBox(const char *name, const QString &accessible, QWidget *parent)
{
    auto *box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setAccessibleName(accessible);
    box->setReadOnly(true);
    return box;
}

} // namespace

Orvens_Mapper::Orvens_Mapper(World &world, ProgramState &state, Platform &platform, const AppPaths &paths)
    : world_(world), state_(state), platform_(platform), paths_(paths)
{
    setObjectName("Orvens_Mapper");
    setWindowTitle("Wayscribe");
    buildCentre();
    buildMenus();
    buildToolbar();
    resize(1180, 760);
}

Orvens_Mapper::~Orvens_Mapper() = default;

void Orvens_Mapper::buildCentre()
{
    auto *centre = new QWidget(this);
    auto *row = new QHBoxLayout(centre);
    row->setContentsMargins(6, 6, 6, 6);
    row->setSpacing(8);

    auto *mapArea = new QGridLayout;
    mapArea->setSpacing(0);
    Picture1 = new MapPicture(centre);
    hscroll = new QScrollBar(Qt::Horizontal, centre);
    hscroll->setObjectName("hscroll");
    hscroll->setAccessibleName("Scroll the map east and west");
    vscroll = new QScrollBar(Qt::Vertical, centre);
    vscroll->setObjectName("vscroll");
    vscroll->setAccessibleName("Scroll the map north and south");
    mapArea->addWidget(Picture1, 0, 0);
    mapArea->addWidget(vscroll, 0, 1);
    mapArea->addWidget(hscroll, 1, 0);
    row->addLayout(mapArea, 1);

    auto *side = new QVBoxLayout;
    side->setContentsMargins(0, 0, 0, 0);
    side->setSpacing(4);
    MiniMap = new MinimapWidget(centre);
    side->addWidget(MiniMap, 0, Qt::AlignHCenter);

    auto *info = new QGroupBox("Sector", centre);
    info->setObjectName("Frame2");
    auto *form = new QFormLayout(info);
    auto *coords = new QHBoxLayout;
    Xbox = infoBox("Xbox", "X", info);
    Ybox = infoBox("Ybox", "Y", info);
    auto *xLabel = new QLabel("&X:", info);
    xLabel->setBuddy(Xbox);
    auto *yLabel = new QLabel("&Y:", info);
    yLabel->setBuddy(Ybox);
    coords->addWidget(xLabel);
    coords->addWidget(Xbox);
    coords->addWidget(yLabel);
    coords->addWidget(Ybox);
    form->addRow(coords);
    terbox = infoBox("terbox", "Terrain", info);
    form->addRow("Terrain:", terbox);
    citybox = infoBox("citybox", "Settlement", info);
    form->addRow("Settlement:", citybox);
    citynumbox = infoBox("citynumbox", "Settlement number", info);
    form->addRow("Number:", citynumbox);
    txtCityState = infoBox("txtCityState", "City-state", info);
    form->addRow("City-state:", txtCityState);
    txtNoteBox = new QPlainTextEdit(info);
    txtNoteBox->setObjectName("txtNoteBox");
    txtNoteBox->setAccessibleName("Note");
    txtNoteBox->setReadOnly(true);
    txtNoteBox->setMinimumHeight(48);
    form->addRow("Note:", txtNoteBox);
    side->addWidget(info, 1);

    auto *moves = new QGroupBox("Movement points", centre);
    moves->setObjectName("Frame4");
    auto *moveForm = new QFormLayout(moves);
    mpbox = infoBox("mpbox", "Movement points of this sector", moves);
    mpcbox = infoBox("mpcbox", "Squares counted", moves);
    txtTotalMPs = infoBox("txtTotalMPs", "Total movement points", moves);
    moveForm->addRow("Sector:", mpbox);
    moveForm->addRow("Squares:", mpcbox);
    moveForm->addRow("Total:", txtTotalMPs);
    auto *chkHorses = new QCheckBox("Enable Horse Counter", moves);
    chkHorses->setObjectName("chkHorses");
    moveForm->addRow(chkHorses);
    auto *cmdMPCommandClipboard =
        new QPushButton("Copy MP \"M\" command(s)\nto clipboard for pasting", moves);
    cmdMPCommandClipboard->setObjectName("cmdMPCommandClipboard");
    cmdMPCommandClipboard->setAccessibleName("Copy MP \"M\" command(s) to clipboard for pasting");
    moveForm->addRow(cmdMPCommandClipboard);
    // The movement counter is not part of this version yet.
    moves->setEnabled(false);
    side->addWidget(moves);

    auto *paint = new QGroupBox("Terrain", centre);
    auto *paintLayout = new QVBoxLayout(paint);
    palette_ = new TerrainPalette(paint);
    paintLayout->addWidget(palette_);
    // Painting with the mouse comes with map editing.
    palette_->setEnabled(false);
    side->addWidget(paint);

    auto *sideWidget = new QWidget;
    sideWidget->setLayout(side);
    // On a small screen the panels scroll rather than push the window off it.
    auto *sideScroll = new QScrollArea(centre);
    sideScroll->setObjectName("sidePanel");
    sideScroll->setWidget(sideWidget);
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

    connect(Picture1, &MapPicture::resized, this, &Orvens_Mapper::layoutMapPicture);
    connect(Picture1, &MapPicture::hovered, this, &Orvens_Mapper::Picture1_MouseMove);
    connect(Picture1, &MapPicture::scrollRequested, this, [this](int dx, int dy, bool byHalfViews) {
        // Moving the scroll bars runs their own change handlers.
        hscroll->setValue(hscroll->value() + dx * (byHalfViews ? hscroll->pageStep() : 1));
        vscroll->setValue(vscroll->value() + dy * (byHalfViews ? vscroll->pageStep() : 1));
    });
    connect(hscroll, &QScrollBar::valueChanged, this, &Orvens_Mapper::hscroll_Change);
    connect(vscroll, &QScrollBar::valueChanged, this, &Orvens_Mapper::vscroll_Change);
    connect(MiniMap, &MinimapWidget::clicked, this, &Orvens_Mapper::MiniMap_MouseDown);
    connect(MiniMap, &MinimapWidget::pointerMoved, this, &Orvens_Mapper::MiniMap_MouseMove);
}

void Orvens_Mapper::buildToolbar()
{
    toolbar_ = addToolBar("Tools");
    toolbar_->setObjectName("toolbar");
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(24, 24));
    toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const ToolbarButton &b : kToolbar) {
        auto *button = new QToolButton(toolbar_);
        button->setObjectName(b.name);
        button->setText(b.caption);
        button->setToolTip(b.caption);
        button->setAccessibleName(b.caption);
        button->setCheckable(b.checkable);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        toolbar_->addWidget(button);
        const std::string name = b.name;
        if (name == "cmdNew")
            connect(button, &QToolButton::clicked, this, &Orvens_Mapper::cmdNew_Click);
        else if (name == "cmdLoad")
            connect(button, &QToolButton::clicked, this, &Orvens_Mapper::cmdLoad_Click);
        else if (name == "cmdSave")
            connect(button, &QToolButton::clicked, this, &Orvens_Mapper::cmdSave_Click);
        else if (name == "chkLocked") {
            chkLocked = button;
            connect(button, &QToolButton::clicked, this, &Orvens_Mapper::chkLocked_Click);
        } else if (name == "cmdGotoxy")
            connect(button, &QToolButton::clicked, this, &Orvens_Mapper::mnuViewGoto_Click);
        else
            button->setEnabled(false); // their windows come with later versions
        if (button->isEnabled())
            workingButtons_.push_back(button);
    }
}

QAction *Orvens_Mapper::addMenuItem(QMenu *menu, const char *name, const QString &caption,
                                    void (Orvens_Mapper::*slot)())
{
    QAction *a = menu->addAction(caption);
    a->setObjectName(name);
    connect(a, &QAction::triggered, this, slot);
    return a;
}

QAction *Orvens_Mapper::addLaterItem(QMenu *menu, const char *name, const QString &caption)
{
    QAction *a = menu->addAction(caption);
    a->setObjectName(name);
    a->setEnabled(false);
    return a;
}

void Orvens_Mapper::showStatus(const std::string &text)
{
    txtStatus->setText(toQString(text));
    txtStatus->repaint();
}

void Orvens_Mapper::syncScrollBars()
{
    state_.view.scrollBusy = 1;
    hscroll->setMaximum(std::max(0, kMapSize - state_.view.viewCols));
    vscroll->setMaximum(std::max(0, kMapSize - state_.view.viewRows));
    hscroll->setPageStep(std::max(1, state_.view.viewCols / 2));
    vscroll->setPageStep(std::max(1, state_.view.viewRows / 2));
    vscroll->setValue(state_.view.viewTop);
    hscroll->setValue(state_.view.viewLeft);
    state_.view.scrollBusy = 0;
}

void Orvens_Mapper::updateTitle()
{
    // The map's file name, and a star while it has unsaved changes.
    const QString name = state_.document.mapFileName.empty() ? QString("Untitled")
                                                    : QFileInfo(toQString(state_.document.mapFileName)).fileName();
    setWindowTitle(name + (state_.document.mapChanged ? "*" : "") + " - Wayscribe");
}

void Orvens_Mapper::redrawMap()
{
    updateTitle();
    syncScrollBars();
    state_.view.fullRedraw = 1;
    if (Refresh_Map(Picture1->backBuffer(), minimap_, world_, state_, sheet_)) {
        Picture1->update();
        MiniMap->setImage(minimap_.image);
    }
    state_.view.fullRedraw = 0;
}

void Orvens_Mapper::syncLockControls()
{
    chkLocked->setChecked(state_.document.mapLocked == 1);
    mnuEditLock->setChecked(state_.document.mapLocked == 1);
}

void Orvens_Mapper::layoutMapPicture()
{
    if (isMinimized())
        return;
    state_.view.viewCols = static_cast<std::int16_t>(std::min(Picture1->width(), 32767) / 16);
    state_.view.viewRows = static_cast<std::int16_t>(std::min(Picture1->height(), 32767) / 16);
    // Growing the window pulls the origin back so the view never runs past
    // the world's last sector.
    clampView(state_);
    Picture1->clearBuffer();
    redrawMap();
}

void Orvens_Mapper::enableTileSetItems()
{
    for (auto &[set, action] : tileSetItems_)
        action->setEnabled(tileSetAvailable(paths_.graphicsFolder, set));
}

bool Orvens_Mapper::loadPictures()
{
    for (std::size_t i = 0; i < std::size(kToolbar); ++i) {
        const QString file = toQString(paths_.graphicsFolder) + "/" + kToolbar[i].picture;
        auto *button = toolbar_->findChild<QToolButton *>(kToolbar[i].name);
        QImage picture(file);
        if (!picture.isNull() && button)
            button->setIcon(QIcon(QPixmap::fromImage(picture)));
    }
    std::string error = sheet_.loadTileSet(paths_.graphicsFolder, state_.options.graphicsSetName);
    if (!error.empty() && state_.options.graphicsSetName != "kjc_set1") {
        // A set named in the options that is gone: fall back to the default.
        state_.options.graphicsSetName = "kjc_set1";
        error = sheet_.loadTileSet(paths_.graphicsFolder, state_.options.graphicsSetName);
    }
    if (!error.empty())
        platform_.message("The tile pictures could not be loaded.", kProgramTitle, MessageButtons::Ok,
                          MessageIcon::Exclamation, error);
    palette_->showTiles(sheet_);
    for (auto &[set, action] : tileSetItems_)
        action->setChecked(set == state_.options.graphicsSetName);
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
    centreOverWindow(about_);
    about_->show();
    state_.view.scrollBusy = 0;
    state_.document.mapLocked = 0;
    state_.document.gameNumber = 0;
    state_.document.mapFileName.clear();
    state_.selection.selDungeon = 0;
    state_.options.lmol = false;
    state_.options.wmol.clear();
    state_.document.mapChanged = 0;
    enableTileSetItems();
    state_.view.viewLeft = 0;
    state_.view.viewTop = 0;
    readOptionsFile(state_.optionsFilePath, state_);
    if (!loadPictures())
        return false;
    terbox->setText("Unknown");
    mpcbox->setText("0");
    txtTotalMPs->setText("0");
    mpbox->setText("0");
    world_.clear();
    state_.movement.pathX.fill(0);
    state_.movement.pathY.fill(0);
    state_.document.fileBusy = 0;
    layoutMapPicture();
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
    clampView(state_);
    redrawMap();
    syncLockControls();
    QTimer::singleShot(200, this, [this] {
        showStatus("Please wait, initializing Wayscribe...");
        showStatus("");
    });
    // The splash steps aside by itself once the map is up.
    QTimer::singleShot(2500, about_, &QWidget::close);
    return true;
}

void Orvens_Mapper::centreOverWindow(QWidget *window) const
{
    window->move(geometry().center() - window->rect().center());
}

void Orvens_Mapper::setContentsEnabled(bool enabled)
{
    centralWidget()->setEnabled(enabled);
    menuBar()->setEnabled(enabled);
    // Button by button: buttons of later versions stay disabled throughout.
    for (QToolButton *button : workingButtons_)
        button->setEnabled(enabled);
}

void Orvens_Mapper::openSecondary(QWidget *window, bool redrawAfter)
{
    setContentsEnabled(false);
    connect(window, &QObject::destroyed, this, [this, redrawAfter] {
        setContentsEnabled(true);
        if (redrawAfter)
            redrawMap();
    });
    window->setAttribute(Qt::WA_DeleteOnClose);
    centreOverWindow(window);
    window->show();
    window->raise();
    window->activateWindow();
}

void Orvens_Mapper::loadTileSet(const std::string &setName)
{
    if (state_.options.graphicsSetName == setName)
        return;
    const std::string error = sheet_.loadTileSet(paths_.graphicsFolder, setName);
    if (!error.empty()) {
        platform_.message("The tile set could not be loaded; the map keeps its tiles.", kProgramTitle,
                          MessageButtons::Ok, MessageIcon::Exclamation, error);
        for (auto &[set, action] : tileSetItems_)
            action->setChecked(set == state_.options.graphicsSetName);
        return;
    }
    state_.options.graphicsSetName = setName;
    writeOptions(state_, platform_);
    palette_->showTiles(sheet_);
    for (auto &[set, action] : tileSetItems_)
        action->setChecked(set == setName);
    redrawMap();
}

void Orvens_Mapper::showSector(int x, int y)
{
    const SectorInfo info = describeSector(world_, x, y);
    Xbox->setText(QString::number(x));
    Ybox->setText(QString::number(y));
    terbox->setText(toQString(info.terrain));
    txtNoteBox->setPlainText(toQString(info.note));
    citybox->setText(toQString(info.settlementName));
    citynumbox->setText(toQString(info.settlementNumber));
    txtCityState->setText(toQString(info.cityState));
}

void Orvens_Mapper::Picture1_MouseMove(int column, int row)
{
    const int x = state_.view.viewLeft + column;
    const int y = state_.view.viewTop + row;
    if (column < 1 || row < 1 || column > state_.view.viewCols || row > state_.view.viewRows || !isSectorIndex(x) ||
        !isSectorIndex(y))
        return;
    showSector(x, y);
}

void Orvens_Mapper::hscroll_Change(int value)
{
    if (state_.view.scrollBusy)
        return;
    state_.view.viewLeft = static_cast<std::int16_t>(std::min(value, kMapSize - state_.view.viewCols));
    if (!state_.document.fileBusy)
        redrawMap();
}

void Orvens_Mapper::vscroll_Change(int value)
{
    if (state_.view.scrollBusy)
        return;
    state_.view.viewTop = static_cast<std::int16_t>(std::min(value, kMapSize - state_.view.viewRows));
    if (!state_.document.fileBusy)
        redrawMap();
}

void Orvens_Mapper::MiniMap_MouseDown(double x, double y)
{
    if (state_.document.fileBusy)
        return;
    moveViewToMinimapPoint(state_, x, y);
    redrawMap();
}

void Orvens_Mapper::MiniMap_MouseMove(double x, double y)
{
    if (x > 0)
        Xbox->setText(QString::number(static_cast<int>(2 * x)));
    if (y > 0)
        Ybox->setText(QString::number(static_cast<int>(2 * y)));
}

void Orvens_Mapper::cmdNew_Click()
{
    newMapCommand(world_, state_, platform_);
}

void Orvens_Mapper::mnuFileNew_Click()
{
    if (!state_.document.fileBusy)
        newMapCommand(world_, state_, platform_);
}

void Orvens_Mapper::cmdLoad_Click()
{
    loadMapCommand(world_, state_, platform_, false);
}

void Orvens_Mapper::mnuFileOpen_Click()
{
    if (!state_.document.fileBusy)
        loadMapCommand(world_, state_, platform_, true);
}

void Orvens_Mapper::cmdSave_Click()
{
    if (!state_.document.fileBusy)
        Save_Map(world_, state_, platform_, state_.document.mapFileName.find_first_of("/\\") == std::string::npos);
    updateTitle();
}

void Orvens_Mapper::mnuFileSaveAs_Click()
{
    if (!state_.document.fileBusy)
        Save_Map(world_, state_, platform_, true);
    updateTitle();
}

void Orvens_Mapper::mnuFileMerge_Click()
{
    mergeMapCommand(world_, state_, platform_);
}

void Orvens_Mapper::mnuFileImport_Click()
{
    if (!state_.document.fileBusy)
        Import_HTML(world_, state_, platform_);
}

void Orvens_Mapper::mnuFileBatch_Click()
{
    if (!state_.document.fileBusy)
        batchImportHtml(world_, state_, platform_);
}

void Orvens_Mapper::mnuFileQuestor_Click()
{
    if (!state_.document.fileBusy)
        importQuestorCommand(world_, state_, platform_);
}

void Orvens_Mapper::mnuFileOptions_Click()
{
    openSecondary(new frmOptions(state_, platform_, this), true);
}

void Orvens_Mapper::mnuFileExit_Click()
{
    close();
}

void Orvens_Mapper::mnuEditGame_Click()
{
    openSecondary(new frmGameNum(state_, this));
}

void Orvens_Mapper::chkLocked_Click()
{
    state_.document.mapLocked = chkLocked->isChecked() ? 1 : 0;
    mnuEditLock->setChecked(state_.document.mapLocked == 1);
}

void Orvens_Mapper::mnuEditLock_Click()
{
    // The item's check mark has already flipped: it now shows the new state.
    state_.document.mapLocked = mnuEditLock->isChecked() ? 1 : 0;
    chkLocked->setChecked(state_.document.mapLocked == 1);
}

void Orvens_Mapper::mnuEditWater_Click()
{
    unknownsToWaterCommand(world_, state_, platform_);
}

void Orvens_Mapper::mnuViewGoto_Click()
{
    gotoXYCommand(state_, platform_);
}

void Orvens_Mapper::mnuInformationPercent_Click()
{
    mapStatisticsCommand(world_, platform_);
}

void Orvens_Mapper::mnuInformationTravel_Click()
{
    if (!state_.document.fileBusy)
        openSecondary(new frmRouteFinder(world_, state_, platform_, this));
}

void Orvens_Mapper::mnuHelpAbout_Click()
{
    centreOverWindow(about_);
    about_->show();
    about_->raise();
}

void Orvens_Mapper::closeEvent(QCloseEvent *event)
{
    // An import or a save in progress finishes first.
    if (state_.document.fileBusy || !confirmExit(world_, state_, platform_)) {
        event->ignore();
        return;
    }
    writeOptions(state_, platform_);
    if (about_)
        about_->close();
    event->accept();
}

} // namespace wayscribe
