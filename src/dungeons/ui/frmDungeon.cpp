#include "dungeons/ui/frmDungeon.h"

#include "dungeons/ui/box_text.h"
#include "model/program_state.h"
#include "model/text.h"
#include "shared/ui/labelled_fields.h"
#include "shared/ui/qt_text.h"

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

QLineEdit *numberBox(const char *objectName, QWidget *parent)
{
    auto *box = new QLineEdit(parent);
    box->setObjectName(objectName);
    box->setMaximumWidth(60);
    return box;
}

// Dungeon maps are drawn with characters: they only line up in a
// fixed-pitch font, and lines are never wrapped.
QPlainTextEdit *fixedPitchBox(const char *objectName, QWidget *parent)
{
    auto *box = new QPlainTextEdit(parent);
    box->setObjectName(objectName);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTabChangesFocus(true);
    return box;
}

} // namespace

frmDungeon::frmDungeon(World &world, ProgramState &state, ChangeHistory &history, QWidget *mainWindow)
    : SecondaryWindow(mainWindow, "frmDungeon", "Dungeon Map", Escape::Closes),
      sheet_(world, state.selection, history)
{
    // The name is shown, never stored: it takes no typing.
    txtDungeonName = readOnlyBox("txtDungeonName", this);
    lblDungeonName = buddyLabel("lblDungeonName", "Dungeon:", txtDungeonName, this);
    txtLevels = numberBox("txtLevels", this);
    lblLevels = buddyLabel("lblLevels", "Known levels:", txtLevels, this);
    txtCurLevel = numberBox("txtCurLevel", this);
    lblCurLevel = buddyLabel("lblCurLevel", "Current Level:", txtCurLevel, this);
    txtXPos = readOnlyBox("txtXPos", this);
    txtXPos->setMaximumWidth(60);
    txtYPos = readOnlyBox("txtYPos", this);
    txtYPos->setMaximumWidth(60);
    lblPosition = buddyLabel("lblPosition", "Co-Ordinates:", txtXPos, this);
    txtXPos->setAccessibleName("Co-Ordinates X");
    txtYPos->setAccessibleName("Co-Ordinates Y");

    txtDungeonMap = fixedPitchBox("txtDungeonMap", this);
    txtDungeonMap->setReadOnly(true);
    txtDungeonMap->setAccessibleName("Level map");
    txtRoomData = fixedPitchBox("txtRoomData", this);
    lblRoomData = buddyLabel("lblRoomData", "Room Data/Notes:", txtRoomData, this);

    cmdLevelUp = pushButton("cmdLevelUp", "Level Up", this);
    cmdLevelDown = pushButton("cmdLevelDown", "Level Down", this);
    cmdExit = pushButton("cmdExit", "Exit", this);

    auto *fields = new QGridLayout;
    fields->addWidget(lblDungeonName, 0, 0);
    fields->addWidget(txtDungeonName, 0, 1, 1, 4);
    fields->addWidget(lblLevels, 1, 0);
    fields->addWidget(txtLevels, 1, 1);
    fields->addWidget(lblCurLevel, 1, 2);
    fields->addWidget(txtCurLevel, 1, 3);
    fields->addWidget(lblPosition, 2, 0);
    auto *position = new QHBoxLayout;
    position->addWidget(txtXPos);
    position->addWidget(txtYPos);
    position->addStretch(1);
    fields->addLayout(position, 2, 1, 1, 4);
    fields->setColumnStretch(4, 1);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(cmdLevelUp);
    buttons->addWidget(cmdLevelDown);
    buttons->addStretch(1);
    buttons->addWidget(cmdExit);

    auto *top = new QHBoxLayout;
    top->addLayout(fields, 1);
    top->addLayout(buttons);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(txtDungeonMap, 3);
    layout->addWidget(lblRoomData);
    layout->addWidget(txtRoomData, 2);

    setTabOrder(txtLevels, txtCurLevel);
    setTabOrder(txtCurLevel, cmdLevelUp);
    setTabOrder(cmdLevelUp, cmdLevelDown);
    setTabOrder(cmdLevelDown, txtDungeonMap);
    setTabOrder(txtDungeonMap, txtRoomData);
    setTabOrder(txtRoomData, cmdExit);

    txtDungeonName->setText(toQString(sheet_.name()));
    txtLevels->setText(toQString(formatGeneral(sheet_.knownLevels())));
    txtXPos->setText(toQString(formatGeneral(sheet_.position().x)));
    txtYPos->setText(toQString(formatGeneral(sheet_.position().y)));
    showLevel();

    connect(cmdLevelUp, &QPushButton::clicked, this, &frmDungeon::cmdLevelUp_Click);
    connect(cmdLevelDown, &QPushButton::clicked, this, &frmDungeon::cmdLevelDown_Click);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(txtCurLevel, &QLineEdit::textEdited, this, &frmDungeon::txtCurLevel_Change);
    connect(txtLevels, &QLineEdit::textEdited, this, &frmDungeon::txtLevels_Change);

    resize(620, 560);
}

std::string frmDungeon::roomText() const
{
    return fromBoxText(txtRoomData->toPlainText());
}

void frmDungeon::showLevel()
{
    txtCurLevel->setText(toQString(formatGeneral(sheet_.currentLevel())));
    txtDungeonMap->setPlainText(toBoxText(sheet_.levelMap()));
    txtRoomData->setPlainText(toBoxText(sheet_.roomData()));
}

void frmDungeon::cmdLevelDown_Click()
{
    if (sheet_.levelDown(roomText()))
        showLevel();
}

void frmDungeon::cmdLevelUp_Click()
{
    if (sheet_.levelUp(roomText()))
        showLevel();
}

void frmDungeon::txtCurLevel_Change()
{
    if (sheet_.typeLevel(fromQString(txtCurLevel->text()), roomText()))
        showLevel();
}

void frmDungeon::txtLevels_Change()
{
    sheet_.typeKnownLevels(fromQString(txtLevels->text()));
}

bool frmDungeon::mayClose()
{
    sheet_.close(fromQString(txtLevels->text()), roomText());
    return true;
}

} // namespace wayscribe
