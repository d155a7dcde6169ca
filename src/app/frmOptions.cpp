#include "app/frmOptions.h"

#include "model/program_state.h"
#include "shared/ui/labelled_fields.h"
#include "storage/options_file.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace wayscribe {

frmOptions::frmOptions(ProgramState &state, Platform &platform, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmOptions", "Wayscribe Options", Escape::Closes), state_(state),
      platform_(platform)
{
    const Options &o = state.options;
    auto *layout = new QVBoxLayout(this);
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName("SSTab1");

    auto *general = new QWidget(tabs);
    auto *generalLayout = new QVBoxLayout(general);
    chkLockLoad = checkBox("chkLockLoad", "&Lock maps upon loading", o.loadLock, general);
    chkGraphs = checkBox("chkGraphs", "&Dungeon/Special sector graphics", o.extra, general);
    chkLoadOnLoad = checkBox("chkLoadOnLoad", "Load last &map on program start", o.lmol, general);
    generalLayout->addWidget(chkLockLoad);
    generalLayout->addWidget(chkGraphs);
    generalLayout->addWidget(chkLoadOnLoad);
    generalLayout->addStretch();
    tabs->addTab(general, "General");

    auto *import = new QWidget(tabs);
    auto *importLayout = new QVBoxLayout(import);
    chkImportMap = checkBox("chkImportMap", "Import &Map Data", o.importMap, import);
    chkImportShop = checkBox("chkImportShop", "Import &Settlement Data", o.importShops, import);
    chkImportHide = checkBox("chkImportHide", "Import &Hide Prices", o.importHides, import);
    chkImportDungeon = checkBox("chkImportDungeon", "Import D&ungeon Locations", o.importDungeons, import);
    chkImportHide->setEnabled(chkImportShop->isChecked());
    importLayout->addWidget(chkImportMap);
    importLayout->addWidget(chkImportShop);
    auto *hideRow = new QHBoxLayout;
    hideRow->addSpacing(20);
    hideRow->addWidget(chkImportHide);
    importLayout->addLayout(hideRow);
    importLayout->addWidget(chkImportDungeon);
    importLayout->addStretch();
    tabs->addTab(import, "HTML Import");
    layout->addWidget(tabs);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmOptions::cmdOK_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    connect(chkImportShop, &QCheckBox::clicked, this, &frmOptions::chkImportShop_Click);
    resize(380, 240);
}

void frmOptions::chkImportShop_Click()
{
    chkImportHide->setEnabled(chkImportShop->isChecked());
}

void frmOptions::cmdOK_Click()
{
    Options &o = state_.options;
    o.loadLock = chkLockLoad->isChecked();
    o.lmol = chkLoadOnLoad->isChecked();
    o.extra = chkGraphs->isChecked();
    o.importMap = chkImportMap->isChecked();
    o.importShops = chkImportShop->isChecked();
    o.importHides = chkImportHide->isChecked();
    o.importDungeons = chkImportDungeon->isChecked();
    writeOptions(state_, platform_);
    close();
}

} // namespace wayscribe
