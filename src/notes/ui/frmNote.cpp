#include "notes/ui/frmNote.h"

#include "app/window_host.h"
#include "dungeons/dungeon_note.h"
#include "dungeons/ui/box_text.h"
#include "dungeons/ui/frmDungeon.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace wayscribe {

// The sector is taken when the editor opens: a second editor opened from
// the notes database meanwhile moves SelX and SelY, and each editor still
// stores into its own sector.
frmNote::frmNote(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                 WindowHost &host, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmNote", "Note...", Escape::Ignored), world_(world), state_(state),
      platform_(platform), history_(history), host_(host),
      edit_(world, history, state.selection.selX, state.selection.selY)
{
    txtNoteBox = new QPlainTextEdit(this);
    txtNoteBox->setObjectName("txtNoteBox");
    txtNoteBox->setTabChangesFocus(true);
    lblNote = buddyLabel("lblNote", toQString(edit_.caption()), txtNoteBox, this);
    cmdOK = pushButton("cmdOK", "Okay", this);
    cmdCancel = pushButton("cmdCancel", "Cancel", this);
    cmdClear = pushButton("cmdClear", "Clear", this);
    cmdSeeDungeon = pushButton("cmdSeeDungeon", "Go to Dungeon", this);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdClear);
    buttons->addStretch(1);
    buttons->addWidget(cmdSeeDungeon);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblNote);
    layout->addWidget(txtNoteBox, 1);
    layout->addLayout(buttons);

    cmdSeeDungeon->setVisible(edit_.isDungeon());
    txtNoteBox->setPlainText(toBoxText(edit_.boxText()));
    const bool locked = state_.document.mapLocked == 1;
    txtNoteBox->setReadOnly(locked);
    cmdClear->setEnabled(!locked);

    connect(cmdOK, &QPushButton::clicked, this, &frmNote::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmNote::cmdCancel_Click);
    connect(cmdClear, &QPushButton::clicked, this, &frmNote::cmdClear_Click);
    connect(cmdSeeDungeon, &QPushButton::clicked, this, &frmNote::cmdSeeDungeon_Click);
    // Escape is Cancel, wherever the focus is in the window.
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(escape, &QShortcut::activated, this, &frmNote::cmdCancel_Click);

    txtNoteBox->setFocus();
    resize(440, 260);
}

void frmNote::cmdOK_Click()
{
    edit_.ok(fromBoxText(txtNoteBox->toPlainText()), state_.document);
    platform_.redrawMap();
    close();
}

void frmNote::cmdCancel_Click()
{
    txtNoteBox->setPlainText(toBoxText(edit_.storedNote()));
    close();
}

// Nothing is stored until the editor closes.
void frmNote::cmdClear_Click()
{
    txtNoteBox->clear();
}

// While a dungeon window is open the button does nothing, and the editor
// stays.
void frmNote::cmdSeeDungeon_Click()
{
    if (!selectDungeonOfNote(world_, state_.selection, history_, edit_.x(), edit_.y()))
        return;
    host_.open(new frmDungeon(world_, state_, history_, parentWidget()));
    close();
}

bool frmNote::mayClose()
{
    edit_.store(fromBoxText(txtNoteBox->toPlainText()));
    return true;
}

} // namespace wayscribe
