#pragma once

#include "shared/ui/secondary_window.h"

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// The travel agency: the cheapest and the shortest chain of journeys between
// two settlements, written as purchase orders to copy into the game.
class frmRouteFinder : public SecondaryWindow {
    Q_OBJECT
public:
    frmRouteFinder(World &world, ProgramState &state, Platform &platform, QWidget *mainWindow);

    // The settlement editor hands a settlement over as "Name (n)".
    void setFromText(const QString &text);
    void setToText(const QString &text);

private:
    void cmdFind_Click();

    const World &world_;
    ProgramState &state_;
    Platform &platform_;

    QLabel *Label1 = nullptr;
    QComboBox *cmbFrom = nullptr;
    QLabel *Label2 = nullptr;
    QComboBox *cmbTo = nullptr;
    QLabel *Label5 = nullptr;
    QPlainTextEdit *txtRoutes = nullptr;
    QPushButton *cmdFind = nullptr;
    QPushButton *cmdExit = nullptr;
};

} // namespace wayscribe
