#include "settlements/ui/frmObjects.h"

#include "model/program_state.h"
#include "model/world.h"
#include "settlements/ui/report_list_view.h"
#include "shared/ui/labelled_fields.h"
#include "view/settlement_finder.h"
#include "view/view_navigation.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace wayscribe {

namespace {

// The filter buttons carry no caption of their own: the label beside each
// names it, for the eye and for a screen reader.
template <typename Button>
Button *captionless(const char *objectName, const QString &caption, QWidget *parent)
{
    auto *b = new Button(parent);
    b->setObjectName(objectName);
    b->setAccessibleName(caption);
    return b;
}

} // namespace

frmObjects::frmObjects(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmObjects", "Object Database", Escape::Closes), world_(world),
      view_(view), platform_(platform)
{
    lstObjects = new ReportListView(objectsTable(world_), "Objects", this);
    lstObjects->setObjectName("lstObjects");

    Frame1 = new QGroupBox("Filters:", this);
    Frame1->setObjectName("Frame1");
    auto *grid = new QGridLayout(Frame1);
    auto *group = new QButtonGroup(this);
    const std::array<std::pair<const char *, const char *>, 3> options = {{
        {"Label4", "List all objects"},
        {"Label5", "List only the cheapest of each class"},
        {"Label3", "List only the more expensive of each class"},
    }};
    std::array<QLabel *, 3> optionLabels{};
    for (int i = 0; i < 3; ++i) {
        const QString name = QString("Option1_%1").arg(i);
        Option1[i] = captionless<QRadioButton>(name.toLatin1().constData(), options[i].second, Frame1);
        group->addButton(Option1[i], i);
        optionLabels[i] = buddyLabel(options[i].first, options[i].second, Option1[i], Frame1);
        grid->addWidget(Option1[i], i, 0);
        grid->addWidget(optionLabels[i], i, 1);
    }
    Label4 = optionLabels[0];
    Label5 = optionLabels[1];
    Label3 = optionLabels[2];
    Option1[1]->setChecked(true);

    struct Box {
        QCheckBox *&box;
        QLabel *&label;
        const char *boxName, *labelName, *caption;
        bool checked;
    };
    const Box boxes[] = {
        {chkZeroCost, Label1, "chkZeroCost", "Label1", "Don't list objects with zero cost", true},
        {chkOneOfEach, Label8, "chkOneOfEach", "Label8", "Only list each object once", true},
        {chkVillages, Label6, "chkVillages", "Label6", "Don't list Villages", false},
        {chkTowns, Label7, "chkTowns", "Label7", "Don't list Towns", false},
        {chkCities, Label2, "chkCities", "Label2", "Don't list Cities", false},
    };
    int row = 0;
    for (const Box &b : boxes) {
        b.box = captionless<QCheckBox>(b.boxName, b.caption, Frame1);
        b.box->setChecked(b.checked);
        b.label = buddyLabel(b.labelName, b.caption, b.box, Frame1);
        grid->addWidget(b.box, row, 3);
        grid->addWidget(b.label, row, 4);
        ++row;
    }
    chkZeroCost->setEnabled(false);
    grid->setColumnMinimumWidth(2, 16);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    for (QLabel *label : Frame1->findChildren<QLabel *>())
        label->installEventFilter(this);

    cmdGoto = pushButton("cmdGoto", "Goto Settlement", this);
    cmdRefresh = pushButton("cmdRefresh", "Refresh List", this);
    cmdExit = pushButton("cmdExit", "Exit", this);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoto);
    buttons->addWidget(cmdRefresh);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lstObjects, 1);
    layout->addWidget(Frame1);
    layout->addLayout(buttons);

    connect(group, &QButtonGroup::idClicked, this, &frmObjects::Option1_Click);
    connect(cmdRefresh, &QPushButton::clicked, this, &frmObjects::cmdRefresh_Click);
    connect(cmdGoto, &QPushButton::clicked, this, &frmObjects::cmdGoto_Click);
    connect(lstObjects, &ReportListView::rowActivated, this,
            [this](int row) { goToRow(static_cast<std::size_t>(row)); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    List_Update_All();
    // The five columns side by side, and a screenful of rows above the filters.
    resize(std::max(560, lstObjects->horizontalHeader()->length() + 60), 560);
}

bool frmObjects::eventFilter(QObject *watched, QEvent *event)
{
    // A click on a filter's label works its button, as a caption would.
    if (event->type() == QEvent::MouseButtonRelease)
        if (auto *label = qobject_cast<QLabel *>(watched))
            if (auto *buddy = qobject_cast<QAbstractButton *>(label->buddy()); buddy && buddy->isEnabled())
                buddy->click();
    return SecondaryWindow::eventFilter(watched, event);
}

ObjectsFilters frmObjects::filters() const
{
    ObjectsFilters f;
    f.mode = static_cast<ObjectsMode>(Option1[0]->isChecked() ? 0 : Option1[1]->isChecked() ? 1 : 2);
    f.zeroCost = chkZeroCost->isChecked();
    f.oneOfEach = chkOneOfEach->isChecked();
    f.noVillages = chkVillages->isChecked();
    f.noTowns = chkTowns->isChecked();
    f.noCities = chkCities->isChecked();
    return f;
}

void frmObjects::List_Update_All()
{
    cmdGoto->setEnabled(false);
    // Hidden while it fills: a message box in the middle lets the window
    // paint, and the list is then half made.
    const bool wasShown = !lstObjects->isHidden();
    lstObjects->hide();
    ObjectsFillResult result;
    lstObjects->refill([&](ReportTable &table) {
        result = wayscribe::List_Update_All(table, world_, filters(), platform_);
    });
    const bool rows = lstObjects->table().rowCount() > 0;
    // A filling the unknown error stopped keeps what it listed, without Goto.
    lstObjects->setVisible(result.completed ? rows : wasShown);
    cmdGoto->setEnabled(result.completed && rows);
    widenTextColumns();
}

void frmObjects::widenTextColumns()
{
    // Shop and item names are often longer than the columns' usual widths:
    // a text column grows to the texts of the rows the list measures (the
    // first thousand or so), up to a limit, and never shrinks.
    constexpr int kWidest = 320;
    for (int column = 0; column < 3; ++column) {
        const int before = lstObjects->columnWidth(column);
        lstObjects->resizeColumnToContents(column);
        lstObjects->setColumnWidth(column,
                                   std::max(before, std::min(lstObjects->columnWidth(column), kWidest)));
    }
}

void frmObjects::Option1_Click(int index)
{
    const ObjectsMode mode = static_cast<ObjectsMode>(index);
    if (zeroCostAlwaysOn(mode))
        chkZeroCost->setChecked(true);
    chkZeroCost->setEnabled(!zeroCostAlwaysOn(mode));
}

void frmObjects::cmdRefresh_Click()
{
    lstObjects->refill([](ReportTable &table) {
        table.clear();
        table.stopSorting();
    });
    List_Update_All();
}

void frmObjects::cmdGoto_Click()
{
    // With rows but none selected there is no settlement to go to.
    if (const std::optional<std::size_t> row = lstObjects->selectedRow())
        goToRow(*row);
}

void frmObjects::goToRow(std::size_t row)
{
    if (lstObjects->isHidden() || row >= lstObjects->table().rowCount())
        return;
    const std::string settlement = lstObjects->table().cellText(row, 1);
    const GotoTarget target = settlementPositionFor(world_, objectRowSettlementNumber(settlement));
    centreView(view_, platform_, target.x, target.y);
    close();
}

} // namespace wayscribe
