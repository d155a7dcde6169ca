#pragma once

#include "shared/ui/secondary_window.h"

#include <cstddef>

class QPushButton;

namespace wayscribe {

class World;
struct ViewState;
class Platform;
class ReportListView;

// "Settlement Listing": every settlement with its number, shops and
// position, leading the map view to the chosen one.
class frmSettList : public SecondaryWindow {
    Q_OBJECT
public:
    frmSettList(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow);

private:
    void List_Update_All();
    void cmdGoto_Click();
    void goToRow(std::size_t row);

    const World &world_;
    ViewState &view_;
    Platform &platform_;

    ReportListView *lstNotes = nullptr;
    QPushButton *cmdGoto = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
