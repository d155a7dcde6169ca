#include "dungeons/ui/frmDungeonList.h"

#include "app/window_host.h"
#include "dungeons/dungeon_list.h"
#include "dungeons/ui/frmDungeon.h"
#include "model/change_history.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "settlements/ui/report_list_view.h"

#include "shared/ui/labelled_fields.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace wayscribe {

frmDungeonList::frmDungeonList(World &world, ProgramState &state, Platform &platform, ChangeHistory &history,
                               WindowHost &host, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmDungeonList", "Dungeon List", Escape::Closes), world_(world),
      state_(state), platform_(platform), history_(history), host_(host)
{
    lstNotes = new ReportListView(dungeonListTable(world_), "Dungeons", this);
    lstNotes->setObjectName("lstNotes");
    cmdGoto = pushButton("cmdGoto", "View Dungeon", this);
    cmdRemove = pushButton("cmdRemove", "Remove Dungeon", this);
    cmdRefresh = pushButton("cmdRefresh", "Refresh List", this);
    cmdExit = pushButton("cmdExit", "Exit", this);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoto);
    buttons->addWidget(cmdRemove);
    buttons->addWidget(cmdRefresh);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lstNotes, 1);
    layout->addLayout(buttons);

    connect(cmdGoto, &QPushButton::clicked, this, &frmDungeonList::cmdGoto_Click);
    connect(lstNotes, &ReportListView::rowActivated, this, &frmDungeonList::cmdGoto_Click);
    connect(cmdRemove, &QPushButton::clicked, this, &frmDungeonList::cmdRemove_Click);
    connect(cmdRefresh, &QPushButton::clicked, this, &frmDungeonList::List_Update_All);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    List_Update_All();
    // The four columns and the scroll bar, without a horizontal scroll bar.
    resize(std::max(460, sizeHint().width()), 360);
}

void frmDungeonList::List_Update_All()
{
    bool rows = false;
    lstNotes->refill([&](ReportTable &table) { rows = fillDungeonList(table, world_); });
    cmdRemove->setEnabled(rows);
    cmdGoto->setEnabled(rows);
}

int frmDungeonList::selectedDungeon() const
{
    return static_cast<int>(indexValue(lstNotes->selectedText(4)));
}

// With rows but none selected, both commands do nothing: there is no
// dungeon to act on.
void frmDungeonList::cmdGoto_Click()
{
    const int d = selectedDungeon();
    if (!isDungeonIndex(d))
        return;
    state_.selection.selDungeon = static_cast<std::int16_t>(d);
    host_.open(new frmDungeon(world_, state_, history_, parentWidget()));
    // Closing enables the main window again, so it stays usable while the
    // dungeon window is open.
    close();
}

void frmDungeonList::cmdRemove_Click()
{
    const int d = selectedDungeon();
    if (!isDungeonIndex(d))
        return;
    if (platform_.message(dungeonRemovalQuestion(world_, d), "Sure?", MessageButtons::YesNo,
                          MessageIcon::Question) != Answer::Yes)
        return;
    history_.apply("Remove Dungeon", [&] { removeDungeon(world_, d); });
    List_Update_All();
}

} // namespace wayscribe
