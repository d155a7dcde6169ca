#pragma once

#include "shared/ui/secondary_window.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace wayscribe {

class World;
struct ViewState;
class Platform;

// View, Goto City: finds a settlement by the start of its name or by its
// number, and brings it into the middle of the view.
class frmGotoCity : public SecondaryWindow {
    Q_OBJECT
public:
    frmGotoCity(const World &world, ViewState &view, Platform &platform, QWidget *mainWindow);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class TypingSource { Name, Number };

    void txtName_Change();
    void txtNumber_Change();
    void lookUpNumber();
    void Command1_Click();
    void enterPressed();

    const World &world_;
    ViewState &view_;
    Platform &platform_;
    // Which box the person types in: each box fills the other only while
    // the person types in it.
    TypingSource typing_ = TypingSource::Number;

    QLabel *Label1 = nullptr;
    QLineEdit *txtName = nullptr;
    QLabel *Label2 = nullptr;
    QLineEdit *txtNumber = nullptr;
    QPushButton *Command1 = nullptr;
    QPushButton *Command2 = nullptr;
};

} // namespace wayscribe
