#pragma once

#include <QDialog>

namespace wayscribe {

// The base of every secondary window: a dialog (so that screen readers
// announce it as one), shown without being modal over the main window,
// deleted when it closes. Every way of closing it (its own buttons, the close
// box, Escape where the window allows it) runs through closeEvent, so a
// window has one place to store what it must keep. Disabling the main window
// while it is open is the host's job, not the window's.
class SecondaryWindow : public QDialog {
    Q_OBJECT
public:
    enum class Escape { Closes, Ignored };

    SecondaryWindow(QWidget *mainWindow, const char *objectName, const QString &title, Escape escape);

signals:
    // The window has accepted its close and is about to go.
    void closed();

protected:
    // Called for every close; false keeps the window open.
    virtual bool mayClose() { return true; }

    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    // The dialog's own ways of ending (Escape, reject()) become a close.
    void reject() override;

private:
    Escape escape_;
};

} // namespace wayscribe
