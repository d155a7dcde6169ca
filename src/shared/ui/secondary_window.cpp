#include "shared/ui/secondary_window.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace wayscribe {

SecondaryWindow::SecondaryWindow(QWidget *mainWindow, const char *objectName, const QString &title,
                                 Escape escape)
    : QDialog(mainWindow), escape_(escape)
{
    setObjectName(objectName);
    setWindowTitle(title);
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);
}

void SecondaryWindow::closeEvent(QCloseEvent *event)
{
    if (!mayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    emit closed();
}

void SecondaryWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (escape_ == Escape::Closes)
            close();
        event->accept();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A dialog would press its first button on Enter wherever the focus
        // is; here Enter acts only where a window wires it.
        event->accept();
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

void SecondaryWindow::reject()
{
    close();
}

} // namespace wayscribe
