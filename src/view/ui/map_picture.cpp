#include "view/ui/map_picture.h"

#include "view/draw/map_drawing.h"

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
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
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

void MapPicture::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint p = event->position().toPoint();
    const int column = p.x() / 16 + 1;
    const int row = p.y() / 16 + 1;
    const bool inside = p.x() >= 0 && p.y() >= 0 && column <= width() / 16 && row <= height() / 16;
    emit hovered(inside ? column : 0, inside ? row : 0);
}

} // namespace wayscribe
