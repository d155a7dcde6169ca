#include "view/ui/frmGotoCity.h"

#include "model/program_state.h"
#include "model/text.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"
#include "view/settlement_finder.h"
#include "view/view_navigation.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace wayscribe {

frmGotoCity::frmGotoCity(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmGotoCity", "Goto City...", Escape::Closes), world_(world), view_(view),
      platform_(platform)
{
    txtName = new QLineEdit(this);
    txtName->setObjectName("txtName");
    txtNumber = new QLineEdit(this);
    txtNumber->setObjectName("txtNumber");
    Label1 = buddyLabel("Label1", "&Name:", txtName, this);
    Label2 = buddyLabel("Label2", "N&umber:", txtNumber, this);
    Command1 = new QPushButton("&Go", this);
    Command1->setObjectName("Command1");
    Command2 = new QPushButton("Cancel", this);
    Command2->setObjectName("Command2");

    auto *boxes = new QGridLayout;
    boxes->addWidget(Label1, 0, 0);
    boxes->addWidget(txtName, 0, 1);
    boxes->addWidget(Label2, 1, 0);
    boxes->addWidget(txtNumber, 1, 1);
    boxes->setColumnStretch(1, 1);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(Command1, QDialogButtonBox::AcceptRole);
    buttons->addButton(Command2, QDialogButtonBox::RejectRole);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addWidget(buttons);

    txtName->installEventFilter(this);
    txtNumber->installEventFilter(this);
    connect(txtName, &QLineEdit::textChanged, this, &frmGotoCity::txtName_Change);
    connect(txtNumber, &QLineEdit::textChanged, this, &frmGotoCity::txtNumber_Change);
    connect(txtName, &QLineEdit::returnPressed, this, &frmGotoCity::enterPressed);
    connect(txtNumber, &QLineEdit::returnPressed, this, &frmGotoCity::enterPressed);
    connect(Command1, &QPushButton::clicked, this, &frmGotoCity::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &QWidget::close);
    resize(320, sizeHint().height());
}

bool frmGotoCity::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        typing_ = watched == txtName ? TypingSource::Name : TypingSource::Number;
    else if (event->type() == QEvent::FocusOut && watched == txtNumber)
        lookUpNumber();
    return SecondaryWindow::eventFilter(watched, event);
}

void frmGotoCity::txtName_Change()
{
    if (typing_ != TypingSource::Name)
        return;
    if (const std::optional<int> n = settlementNumberForName(world_, fromQString(txtName->text())))
        txtNumber->setText(QString::number(*n));
}

void frmGotoCity::txtNumber_Change()
{
    if (typing_ != TypingSource::Number)
        return;
    txtName->clear();
    lookUpNumber();
}

void frmGotoCity::lookUpNumber()
{
    const std::string number = fromQString(txtNumber->text());
    if (number.empty())
        return;
    if (const std::optional<std::string> name = settlementNameForNumber(world_, number))
        txtName->setText(toQString(*name));
}

void frmGotoCity::enterPressed()
{
    if (!txtName->text().isEmpty())
        Command1_Click();
}

void frmGotoCity::Command1_Click()
{
    if (!txtName->text().isEmpty()) {
        const GotoTarget target = settlementPositionFor(world_, fromQString(txtNumber->text()));
        centreView(view_, platform_, target.x, target.y);
    }
    close();
}

} // namespace wayscribe
