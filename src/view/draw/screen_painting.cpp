#include "view/draw/screen_painting.h"

#include <QImage>
#include <QPainter>

namespace wayscribe {

void paintZoomed(QPainter &painter, const QImage &picture, int zoom, const QRect &exposed)
{
    const QRect source = QRect(QPoint(exposed.left() / zoom, exposed.top() / zoom),
                               QPoint(exposed.right() / zoom, exposed.bottom() / zoom))
                             .intersected(picture.rect());
    if (source.isEmpty())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QRect(source.topLeft() * zoom, source.size() * zoom), picture, source);
}

void paintSectorOutline(QPainter &painter, const QRect &tile)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 0));
    painter.drawRect(tile.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(Qt::white, 0));
    painter.drawRect(tile.adjusted(1, 1, -2, -2));
}

} // namespace wayscribe
