#pragma once

#include "notes/note_edit.h"
#include "shared/ui/secondary_window.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace wayscribe {

class World;
struct ProgramState;
class Platform;
class ChangeHistory;
class WindowHost;

// "Note...": the note of sector (SelX, SelY). Whatever way it closes, the
// box is stored; Cancel and Escape first put the stored note back.
class frmNote : public SecondaryWindow {
    Q_OBJECT
public:
    frmNote(World &world, ProgramState &state, Platform &platform, ChangeHistory &history, WindowHost &host,
            QWidget *mainWindow);

protected:
    bool mayClose() override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdClear_Click();
    void cmdSeeDungeon_Click();

    World &world_;
    ProgramState &state_;
    Platform &platform_;
    ChangeHistory &history_;
    WindowHost &host_;
    NoteEdit edit_;

    QLabel *lblNote = nullptr;
    QPlainTextEdit *txtNoteBox = nullptr;
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdCancel = nullptr;
    QPushButton *cmdClear = nullptr;
    QPushButton *cmdSeeDungeon = nullptr;
};

} // namespace wayscribe
