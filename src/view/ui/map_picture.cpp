#include "view/ui/map_picture.h"

#include "view/draw/map_drawing.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace wayscribe {

namespace {
const QColor kBackground(40, 40, 44);
}

MapPicture::MapPicture(QWidget *parent) : QWidget(parent)
{
    setObjectName("Picture1");
    setAccessibleName("Map");
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The map can be scrolled from the keyboard once it has the focus.
    setFocusPolicy(Qt::StrongFocus);
}

void MapPicture::clearBuffer()
{
    buffer_ = QImage(size().expandedTo(QSize(1, 1)), kMapPictureFormat);
    buffer_.fill(kBackground);
}

void MapPicture::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    // Tiles are pixel art: on a high-density screen they grow without blur.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.fillRect(event->rect(), kBackground);
    painter.drawImage(QPoint(0, 0), buffer_);
}

void MapPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    emit resized();
}

void MapPicture::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        emit scrollRequested(-1, 0, false);
        break;
    case Qt::Key_Right:
        emit scrollRequested(1, 0, false);
        break;
    case Qt::Key_Up:
        emit scrollRequested(0, -1, false);
        break;
    case Qt::Key_Down:
        emit scrollRequested(0, 1, false);
        break;
    case Qt::Key_PageUp:
        emit scrollRequested(0, -1, true);
        break;
    case Qt::Key_PageDown:
        emit scrollRequested(0, 1, true);
        break;
    case Qt::Key_Home:
        emit scrollRequested(-1, 0, true);
        break;
    case Qt::Key_End:
        emit scrollRequested(1, 0, true);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
}

void MapPicture::mouseMoveEvent(QMouseEvent *event)
{
    emit pointerMoved(event->position().toPoint(), event->buttons() != Qt::NoButton);
}

void MapPicture::mousePressEvent(QMouseEvent *event)
{
    const int button = event->button() == Qt::LeftButton ? 1 : event->button() == Qt::RightButton ? 2 : 0;
    emit pressed(button, event->position().toPoint());
}

void MapPicture::mouseReleaseEvent(QMouseEvent *event)
{
    // A click ends where it began: releasing outside the picture is no click.
    if (rect().contains(event->position().toPoint()))
        emit clicked();
}

} // namespace wayscribe
