#include "settlements/ui/frmSettList.h"

#include "model/program_state.h"
#include "settlements/settlement_list.h"
#include "settlements/ui/report_list_view.h"
#include "view/settlement_finder.h"
#include "view/view_navigation.h"

#include "shared/ui/labelled_fields.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace wayscribe {

frmSettList::frmSettList(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmSettList", "Settlement Listing", Escape::Closes), world_(world),
      view_(view), platform_(platform)
{
    lstNotes = new ReportListView(settlementListTable(world_), "Settlements", this);
    lstNotes->setObjectName("lstNotes");
    lstNotes->hide();

    cmdGoto = pushButton("cmdGoto", "Go to Settlement", this);
    cmdExit = pushButton("cmdExit", "Exit", this);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoto);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lstNotes, 1);
    layout->addLayout(buttons);

    connect(cmdGoto, &QPushButton::clicked, this, &frmSettList::cmdGoto_Click);
    connect(lstNotes, &ReportListView::rowActivated, this,
            [this](int row) { goToRow(static_cast<std::size_t>(row)); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    // All five columns without a horizontal scroll bar.
    resize(std::max(420, sizeHint().width()), 480);
    List_Update_All();
}

void frmSettList::List_Update_All()
{
    lstNotes->refill([this](ReportTable &table) { wayscribe::List_Update_All(table, world_); });
    const bool rows = lstNotes->table().rowCount() > 0;
    lstNotes->setVisible(rows);
    cmdGoto->setEnabled(rows);
}

void frmSettList::cmdGoto_Click()
{
    // With rows but none selected there is no settlement to go to.
    if (const std::optional<std::size_t> row = lstNotes->selectedRow())
        goToRow(*row);
}

void frmSettList::goToRow(std::size_t row)
{
    if (row >= lstNotes->table().rowCount())
        return;
    const GotoTarget target = settlementPositionFor(world_, lstNotes->table().cellText(row, 2));
    // The redraw sets the scroll bars with ScrollBusy held and redraws the
    // map with FullRedraw held.
    centreView(view_, platform_, target.x, target.y);
    close();
}

} // namespace wayscribe
