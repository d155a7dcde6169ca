#include "view/draw/pixel_line.h"

#include <QPainter>
#include <QVarLengthArray>

#include <cstdlib>

namespace wayscribe {

void drawPixelLine(QPainter &painter, QPoint from, QPoint to)
{
    QVarLengthArray<QPoint, 64> points;
    int x = from.x(), y = from.y();
    const int dx = std::abs(to.x() - x), stepX = x < to.x() ? 1 : -1;
    const int dy = -std::abs(to.y() - y), stepY = y < to.y() ? 1 : -1;
    int error = dx + dy;
    while (x != to.x() || y != to.y()) {
        points.append(QPoint(x, y));
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y += stepY;
        }
    }
    if (!points.isEmpty())
        painter.drawPoints(points.constData(), static_cast<int>(points.size()));
}

} // namespace wayscribe
