#include "app/tile_set_menu.h"

#include "view/tile_files.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

namespace wayscribe {

namespace {

struct TileSetItem {
    const char *name;
    const char *caption;
    const char *folder;
};

const TileSetItem kItems[] = {
    {"mnuGraphicsQuestor", "QuestOR set", "questor_set"},
    {"mnuGraphicsTolma", "Tolmaworld set", "tolma_set"},
    {"mnuGraphicsKJC1", "KJC set 1", "kjc_set1"},
    {"mnuGraphicsKJC2", "KJC set 2", "kjc_set2"},
};

} // namespace

TileSetMenu::TileSetMenu(QMenuBar *bar, QObject *parent) : QObject(parent)
{
    QMenu *graphics = bar->addMenu("Graphics");
    graphics->setObjectName("mnuGraphics");
    auto *group = new QActionGroup(this);
    for (const TileSetItem &item : kItems) {
        QAction *a = graphics->addAction(item.caption);
        a->setObjectName(item.name);
        a->setCheckable(true);
        a->setEnabled(false);
        group->addAction(a);
        const std::string folder = item.folder;
        connect(a, &QAction::triggered, this, [this, folder] { emit chosen(folder); });
        items_[folder] = a;
    }
    graphics->addSeparator()->setObjectName("mnuGraphicsLine");
    // Custom sets are not part of this version: the item is there, disabled.
    graphics->addAction("Custom Set")->setObjectName("mnuGraphicsCustom");
    graphics->actions().back()->setEnabled(false);
}

void TileSetMenu::enableAvailable(const std::string &graphicsFolder)
{
    for (auto &[folder, action] : items_)
        action->setEnabled(tileSetAvailable(graphicsFolder, folder));
}

void TileSetMenu::markCurrent(const std::string &setName)
{
    for (auto &[folder, action] : items_)
        action->setChecked(folder == setName);
}

} // namespace wayscribe
