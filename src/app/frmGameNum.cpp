#include "app/frmGameNum.h"

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/text.h"
#include "shared/ui/qt_text.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace wayscribe {

frmGameNum::frmGameNum(ProgramState &state, ChangeHistory &history, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmGameNum", "Change Game Number:", Escape::Closes), state_(state),
      history_(history)
{
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
    layout->addWidget(buttons);
    resize(320, sizeHint().height());
}

bool frmGameNum::mayClose()
{
    const double value = roundHalfEven(textValue(trimBlanks(fromQString(txtGameNum->text()))));
    const auto number = static_cast<std::uint8_t>(value >= 0 && value <= 255 ? value : 0);
    history_.apply("Game Number", [this, number] { state_.document.gameNumber = number; });
    return true;
}

} // namespace wayscribe
