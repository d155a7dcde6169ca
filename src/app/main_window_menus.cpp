// The main window's menu bar: every item of the program, those whose windows
// come with later versions present but disabled.
#include "app/Orvens_Mapper.h"

#include <QActionGroup>
#include <QMenuBar>

namespace wayscribe {

void Orvens_Mapper::buildMenus()
{
    QMenu *file = menuBar()->addMenu("File");
    file->setObjectName("mnuFile");
    addMenuItem(file, "mnuFileNew", "&New", &Orvens_Mapper::mnuFileNew_Click);
    addMenuItem(file, "mnuFileImport", "&Import HTML", &Orvens_Mapper::mnuFileImport_Click);
    addMenuItem(file, "mnuFileBatch", "&Batch Import HTML", &Orvens_Mapper::mnuFileBatch_Click);
    addMenuItem(file, "mnuFileQuestor", "Import &QuestOR", &Orvens_Mapper::mnuFileQuestor_Click);
    file->addSeparator()->setObjectName("mnuFileSep1");
    addMenuItem(file, "mnuFileOpen", "&Open", &Orvens_Mapper::mnuFileOpen_Click);
    addMenuItem(file, "mnuFileSave", "&Save", &Orvens_Mapper::cmdSave_Click);
    addMenuItem(file, "mnuFileSaveAs", "Save &As", &Orvens_Mapper::mnuFileSaveAs_Click);
    addMenuItem(file, "mnuFileMerge", "&Merge Map", &Orvens_Mapper::mnuFileMerge_Click);
    file->addSeparator()->setObjectName("mnuFileSep2");
    addMenuItem(file, "mnuFileOptions", "O&ptions", &Orvens_Mapper::mnuFileOptions_Click);
    addMenuItem(file, "mnuFileExit", "E&xit", &Orvens_Mapper::mnuFileExit_Click);

    QMenu *edit = menuBar()->addMenu("Edit");
    edit->setObjectName("mnuEdit");
    addMenuItem(edit, "mnuEditGame", "&Game Number", &Orvens_Mapper::mnuEditGame_Click);
    mnuEditLock = addMenuItem(edit, "mnuEditLock", "&Lock Map", &Orvens_Mapper::mnuEditLock_Click);
    mnuEditLock->setCheckable(true);
    addMenuItem(edit, "mnuEditWater", "&Unknowns to Water", &Orvens_Mapper::mnuEditWater_Click);
    edit->addSeparator()->setObjectName("mnuEditSep1");
    addLaterItem(edit, "mnuArabians", "Use &Arabians");
    addLaterItem(edit, "mnuMules", "Use &Mules");
    addLaterItem(edit, "mnuDrafts", "Use &Drafts");
    addLaterItem(edit, "mnuFlying", "Use &Flying");
    edit->addSeparator()->setObjectName("mnuEditSep2");
    addLaterItem(edit, "mnuEditMovement", "Movement &Counter");

    QMenu *view = menuBar()->addMenu("View");
    view->setObjectName("mnuView");
    addLaterItem(view, "mnuGotoCity", "Goto &City");
    addLaterItem(view, "mnuViewNote", "Goto &Note");
    addMenuItem(view, "mnuViewGoto", "&Goto X Y", &Orvens_Mapper::mnuViewGoto_Click);

    QMenu *info = menuBar()->addMenu("Information");
    info->setObjectName("mnuInformation");
    addMenuItem(info, "mnuInformationPercent", "&Map Statistics",
                &Orvens_Mapper::mnuInformationPercent_Click);
    addLaterItem(info, "mnuInformationObjects", "&Objects Database");
    addLaterItem(info, "mnuInformationNotes", "&Notes Database");
    addLaterItem(info, "mnuInfoSett", "&Settlement Database");
    addLaterItem(info, "mnuInfoDungeon", "&Dungeon Database");
    info->addSeparator()->setObjectName("mnuInformationLine");
    addMenuItem(info, "mnuInformationTravel", "&Travel Agency", &Orvens_Mapper::mnuInformationTravel_Click);

    QMenu *graphics = menuBar()->addMenu("Graphics");
    graphics->setObjectName("mnuGraphics");
    auto *sets = new QActionGroup(this);
    const std::pair<const char *, std::pair<const char *, const char *>> kSets[] = {
        {"mnuGraphicsQuestor", {"QuestOR set", "questor_set"}},
        {"mnuGraphicsTolma", {"Tolmaworld set", "tolma_set"}},
        {"mnuGraphicsKJC1", {"KJC set 1", "kjc_set1"}},
        {"mnuGraphicsKJC2", {"KJC set 2", "kjc_set2"}},
    };
    for (const auto &[name, captionAndFolder] : kSets) {
        QAction *a = graphics->addAction(captionAndFolder.first);
        a->setObjectName(name);
        a->setCheckable(true);
        a->setEnabled(false);
        sets->addAction(a);
        const std::string folder = captionAndFolder.second;
        connect(a, &QAction::triggered, this, [this, folder] { loadTileSet(folder); });
        tileSetItems_[folder] = a;
    }
    graphics->addSeparator()->setObjectName("mnuGraphicsLine");
    addLaterItem(graphics, "mnuGraphicsCustom", "Custom Set");

    QMenu *help = menuBar()->addMenu("Help");
    help->setObjectName("mnuHelp");
    addMenuItem(help, "mnuHelpAbout", "&About Wayscribe", &Orvens_Mapper::mnuHelpAbout_Click);
}

} // namespace wayscribe
