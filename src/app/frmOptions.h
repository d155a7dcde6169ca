#pragma once

#include "shared/ui/secondary_window.h"

class QCheckBox;

namespace wayscribe {

struct ProgramState;
class Platform;

// File, Options: the settings kept in the options file.
class frmOptions : public SecondaryWindow {
    Q_OBJECT
public:
    frmOptions(ProgramState &state, Platform &platform, QWidget *mainWindow);

private:
    void cmdOK_Click();
    void chkImportShop_Click();

    ProgramState &state_;
    Platform &platform_;
    QCheckBox *chkLockLoad = nullptr;
    QCheckBox *chkGraphs = nullptr;
    QCheckBox *chkLoadOnLoad = nullptr;
    QCheckBox *chkImportMap = nullptr;
    QCheckBox *chkImportShop = nullptr;
    QCheckBox *chkImportHide = nullptr;
    QCheckBox *chkImportDungeon = nullptr;
};

} // namespace wayscribe
