#include "travel/ui/frmRouteFinder.h"

#include "model/text.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "travel/route_finder.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace wayscribe {

namespace {

QComboBox *settlementBox(const char *name, const QStringList &items, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(name);
    // A settlement can be typed in as well as chosen; typing adds nothing to the list.
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMaxVisibleItems(20);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->addItems(items);
    box->setCurrentIndex(-1);
    return box;
}

} // namespace

frmRouteFinder::frmRouteFinder(World &world, ProgramState &state, Platform &platform, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmRouteFinder", "Find Routes...", Escape::Closes), world_(world),
      state_(state), platform_(platform)
{

    QStringList items;
    for (const std::string &item : routeBoxItems(world_))
        items << toQString(item);
    cmbFrom = settlementBox("cmbFrom", items, this);
    cmbTo = settlementBox("cmbTo", items, this);
    Label1 = buddyLabel("Label1", "From:", cmbFrom, this);
    Label2 = buddyLabel("Label2", "To:", cmbTo, this);

    txtRoutes = new QPlainTextEdit(this);
    txtRoutes->setObjectName("txtRoutes");
    txtRoutes->setReadOnly(true);
    txtRoutes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtRoutes->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Label5 = buddyLabel("Label5", "Possible Routes:", txtRoutes, this);

    cmdFind = new QPushButton("Find Routes", this);
    cmdFind->setObjectName("cmdFind");
    cmdExit = new QPushButton("Exit", this);
    cmdExit->setObjectName("cmdExit");

    auto *boxes = new QGridLayout;
    boxes->addWidget(Label1, 0, 0);
    boxes->addWidget(cmbFrom, 0, 1);
    boxes->addWidget(Label2, 1, 0);
    boxes->addWidget(cmbTo, 1, 1);
    boxes->setColumnStretch(1, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdFind);
    buttons->addWidget(cmdExit);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addSpacing(6);
    layout->addWidget(Label5);
    layout->addWidget(txtRoutes, 1);
    layout->addLayout(buttons);

    setTabOrder(cmbFrom, cmbTo);
    setTabOrder(cmbTo, cmdFind);
    setTabOrder(cmdFind, cmdExit);
    setTabOrder(cmdExit, txtRoutes);

    connect(cmdFind, &QPushButton::clicked, this, &frmRouteFinder::cmdFind_Click);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(cmbFrom->lineEdit(), &QLineEdit::returnPressed, this, &frmRouteFinder::cmdFind_Click);
    connect(cmbTo->lineEdit(), &QLineEdit::returnPressed, this, &frmRouteFinder::cmdFind_Click);

    resize(560, 420);
}

void frmRouteFinder::setFromText(const QString &text)
{
    cmbFrom->setEditText(text);
}

void frmRouteFinder::setToText(const QString &text)
{
    cmbTo->setEditText(text);
}

void frmRouteFinder::cmdFind_Click()
{
    const std::optional<std::string> routes =
        findRoutes(world_, state_, platform_, fromQString(cmbFrom->currentText()),
                   fromQString(cmbTo->currentText()), [this](const std::string &pleaseWait) {
                       txtRoutes->setPlainText(toQString(replaceAll(pleaseWait, "\r\n", "\n")));
                       txtRoutes->repaint();
                   });
    if (routes)
        txtRoutes->setPlainText(toQString(replaceAll(*routes, "\r\n", "\n")));
}

} // namespace wayscribe
