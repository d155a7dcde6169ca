#include "notes/ui/frmNotes.h"

#include "app/window_host.h"
#include "model/change_history.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "notes/notes_search.h"
#include "notes/ui/frmNote.h"
#include "settlements/ui/report_list_view.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "view/view_navigation.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace wayscribe {

namespace {

QRadioButton *optionButton(const char *objectName, const QString &caption, QWidget *parent)
{
    auto *b = new QRadioButton(caption, parent);
    b->setObjectName(objectName);
    return b;
}

} // namespace

frmNotes::frmNotes(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                   WindowHost &host, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmNotes", "Note Database", Escape::Closes), world_(world), state_(state),
      platform_(platform), history_(history), host_(host)
{
    lstNotes = new ReportListView(notesListTable(world_), "Notes", this);
    lstNotes->setObjectName("lstNotes");

    Frame1 = new QGroupBox("Filters:", this);
    Frame1->setObjectName("Frame1");
    chkSettlements = checkBox("chkSettlements", "Don't list notes in settlements", false, Frame1);
    chkSearch = checkBox("chkSearch", "Only list notes containing the following:", false, Frame1);
    txtSearch = new QLineEdit(Frame1);
    txtSearch->setObjectName("txtSearch");
    // The check box names the search box for a screen reader.
    txtSearch->setAccessibleName(chkSearch->text());
    lblAdvanced = buddyLabel("lblAdvanced", "Advanced Search:", txtSearch, Frame1);
    lblExample = new QLabel("(For example, \"Dungeon + Level + 10\")", Frame1);
    lblExample->setObjectName("lblExample");
    // "And" is chosen when the window opens.
    Option1[0] = optionButton("Option1_0", "\"+\" means \"And\"", Frame1);
    Option1[1] = optionButton("Option1_1", "\"+\" means \"Or\"", Frame1);
    Option1[0]->setChecked(true);

    auto *filters = new QGridLayout(Frame1);
    filters->addWidget(chkSettlements, 0, 0, 1, 2);
    filters->addWidget(chkSearch, 1, 0, 1, 2);
    filters->addWidget(txtSearch, 2, 0, 1, 2);
    filters->addWidget(lblAdvanced, 3, 0);
    filters->addWidget(Option1[0], 3, 1);
    filters->addWidget(lblExample, 4, 0);
    filters->addWidget(Option1[1], 4, 1);
    filters->setColumnStretch(0, 1);

    cmdGoto = pushButton("cmdGoto", "Go To Note", this);
    cmdEdit = pushButton("cmdEdit", "Edit Note", this);
    cmdRemove = pushButton("cmdRemove", "Remove Note", this);
    cmdRefresh = pushButton("cmdRefresh", "Refresh List", this);
    cmdExit = pushButton("cmdExit", "Exit", this);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(cmdGoto);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdRemove);
    buttons->addWidget(cmdRefresh);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);

    auto *bottom = new QHBoxLayout;
    bottom->addWidget(Frame1, 1);
    bottom->addLayout(buttons);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lstNotes, 1);
    layout->addLayout(bottom);

    txtSearch->setText(toQString(state_.selection.notesSearchText));
    List_Update_All();
    const bool locked = state_.document.mapLocked == 1;
    cmdEdit->setEnabled(!locked);
    cmdRemove->setEnabled(!locked);

    connect(txtSearch, &QLineEdit::textChanged, this, &frmNotes::txtSearch_Change);
    connect(cmdGoto, &QPushButton::clicked, this, &frmNotes::cmdGoto_Click);
    connect(lstNotes, &ReportListView::rowActivated, this, &frmNotes::cmdGoto_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmNotes::cmdEdit_Click);
    connect(cmdRemove, &QPushButton::clicked, this, &frmNotes::cmdRemove_Click);
    connect(cmdRefresh, &QPushButton::clicked, this, &frmNotes::List_Update_All);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    // The note column and both number columns without a horizontal scroll bar.
    resize(640, 520);
}

void frmNotes::List_Update_All()
{
    const NotesFilter filter{chkSettlements->isChecked(), chkSearch->isChecked(),
                             fromQString(txtSearch->text()),
                             Option1[1]->isChecked() ? PlusMeans::Or : PlusMeans::And};
    lstNotes->refill([&](ReportTable &table) { rowsPresent_ = fillNotesList(table, world_, filter); });
}

void frmNotes::txtSearch_Change()
{
    state_.selection.notesSearchText = fromQString(txtSearch->text());
}

bool frmNotes::selectedSector(int &x, int &y) const
{
    if (!lstNotes->selectedRow())
        return false;
    x = static_cast<int>(indexValue(lstNotes->selectedText(2)));
    y = static_cast<int>(indexValue(lstNotes->selectedText(3)));
    return true;
}

void frmNotes::cmdGoto_Click()
{
    int x = 0, y = 0;
    if (!rowsPresent_ || !selectedSector(x, y))
        return;
    centreView(state_.view, platform_, x, y);
    close();
}

void frmNotes::cmdEdit_Click()
{
    int x = 0, y = 0;
    if (!selectedSector(x, y))
        return;
    state_.selection.selX = static_cast<std::uint8_t>(x);
    state_.selection.selY = static_cast<std::uint8_t>(y);
    host_.open(new frmNote(world_, state_, platform_, history_, host_, parentWidget()));
}

void frmNotes::cmdRemove_Click()
{
    int x = 0, y = 0;
    if (!selectedSector(x, y))
        return;
    if (platform_.message(noteRemovalQuestion(x, y), "Sure?", MessageButtons::YesNo, MessageIcon::Question) !=
        Answer::Yes)
        return;
    history_.apply("Remove Note", [&] { world_.sector(x, y).note.clear(); });
    List_Update_All();
}

} // namespace wayscribe
