#pragma once

#include <QWidget>

class QLineEdit;

namespace wayscribe {

struct ProgramState;

// Edit, Game Number: the number of the game this map belongs to. It takes
// effect when the window closes.
class frmGameNum : public QWidget {
    Q_OBJECT
public:
    frmGameNum(ProgramState &state, QWidget *mainWindow);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    ProgramState &state_;
    QLineEdit *txtGameNum = nullptr;
};

} // namespace wayscribe
