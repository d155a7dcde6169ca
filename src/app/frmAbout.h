#pragma once

#include <QDialog>

#include <string>

class QLabel;

namespace wayscribe {

// The About window, which is also the start-up splash. A click closes it,
// except while it tells that the last map is being loaded.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    frmAbout(const std::string &graphicsFolder, QWidget *mainWindow);
    void setPleaseWaitVisible(bool visible);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *txtPleaseWait = nullptr;
};

} // namespace wayscribe
