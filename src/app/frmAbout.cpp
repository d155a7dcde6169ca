#include "app/frmAbout.h"

#include "shared/ui/qt_text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace wayscribe {

frmAbout::frmAbout(const std::string &graphicsFolder, QWidget *mainWindow) : QDialog(mainWindow)
{
    setObjectName("frmAbout");
    setWindowTitle("About the Wayscribe");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 18);
    auto *picture = new QLabel(this);
    picture->setObjectName("pctAbout");
    const QPixmap banner(toQString(graphicsFolder) + "/wayscribe.gif");
    // The banner is pixel art: shown twice its size, without blurring.
    if (!banner.isNull())
        picture->setPixmap(banner.scaled(banner.size() * 2, Qt::KeepAspectRatio, Qt::FastTransformation));
    picture->setAlignment(Qt::AlignCenter);
    picture->setAccessibleName("Wayscribe");
    layout->addWidget(picture);
    auto *credits =
        new QLabel("<p align=center><b>Wayscribe</b> keeps the map of your world, turn by turn.</p>"
                   "<p align=center>Terrain, settlements, shops, dungeons and notes from your turn "
                   "reports,<br>movement orders, and journeys planned from shop to shop.</p>"
                   "<p align=center>Written by the Wayscribe developers. Click to close.</p>",
                   this);
    credits->setObjectName("lblCredits");
    credits->setWordWrap(true);
    layout->addWidget(credits);
    txtPleaseWait = new QLabel("Please wait... Pre-Loading Map...", this);
    txtPleaseWait->setObjectName("txtPleaseWait");
    txtPleaseWait->setAlignment(Qt::AlignCenter);
    txtPleaseWait->setStyleSheet("font-weight: bold;");
    txtPleaseWait->setVisible(false);
    layout->addWidget(txtPleaseWait);
}

void frmAbout::setPleaseWaitVisible(bool visible)
{
    txtPleaseWait->setVisible(visible);
    txtPleaseWait->repaint();
}

void frmAbout::mousePressEvent(QMouseEvent *)
{
    close();
}

void frmAbout::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Space)
        close();
    else
        QDialog::keyPressEvent(event);
}

void frmAbout::closeEvent(QCloseEvent *event)
{
    if (txtPleaseWait->isVisible())
        event->ignore();
    else
        event->accept();
}

} // namespace wayscribe
