#pragma once

#include "shared/ui/secondary_window.h"

class QLineEdit;

namespace wayscribe {

struct ProgramState;
class ChangeHistory;

// Edit, Game Number: the number of the game this map belongs to. It takes
// effect when the window closes, as one step of the undo history.
class frmGameNum : public SecondaryWindow {
    Q_OBJECT
public:
    frmGameNum(ProgramState &state, ChangeHistory &history, QWidget *mainWindow);

protected:
    bool mayClose() override;

private:
    ProgramState &state_;
    ChangeHistory &history_;
    QLineEdit *txtGameNum = nullptr;
};

} // namespace wayscribe
