#include "app/frmGameNum.h"

#include "shared/ui/qt_text.h"
#include "model/program_state.h"
#include "model/text.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QVBoxLayout>

namespace wayscribe {

frmGameNum::frmGameNum(ProgramState &state, QWidget *mainWindow)
    : QWidget(mainWindow, Qt::Window), state_(state)
{
    setObjectName("frmGameNum");
    setWindowTitle("Change Game Number:");
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel("&Please input game # of this map:", this);
    txtGameNum = new QLineEdit(QString::number(state.document.gameNumber), this);
    txtGameNum->setObjectName("txtGameNum");
    // The game number is one byte: only 0 to 255 can be typed.
    txtGameNum->setValidator(new QRegularExpressionValidator(
        QRegularExpression(R"(25[0-5]|2[0-4]\d|1\d\d|[1-9]?\d|)"), txtGameNum));
    label->setBuddy(txtGameNum);
    layout->addWidget(label);
    layout->addWidget(txtGameNum);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
    connect(buttons, &QDialogButtonBox::accepted, this, &QWidget::close);
    connect(txtGameNum, &QLineEdit::returnPressed, this, &QWidget::close);
    new QShortcut(QKeySequence(Qt::Key_Escape), this, this, &QWidget::close);
    layout->addWidget(buttons);
    resize(320, sizeHint().height());
}

void frmGameNum::closeEvent(QCloseEvent *event)
{
    const double value = roundHalfEven(textValue(trimBlanks(fromQString(txtGameNum->text()))));
    state_.document.gameNumber = static_cast<std::uint8_t>(value >= 0 && value <= 255 ? value : 0);
    event->accept();
}

} // namespace wayscribe
