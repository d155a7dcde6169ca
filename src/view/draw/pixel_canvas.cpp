#include "view/draw/pixel_canvas.h"

#include <cstdlib>

namespace wayscribe {

PixelCanvas::PixelCanvas(QImage &picture)
    : bits_(picture.bits()), stride_(picture.bytesPerLine()), width_(picture.width()),
      height_(picture.height())
{
    Q_ASSERT(picture.format() == QImage::Format_RGB32 || picture.isNull());
}

void PixelCanvas::drawLine(QPoint from, QPoint to, QRgb colour)
{
    int x = from.x(), y = from.y();
    const int dx = std::abs(to.x() - x), stepX = x < to.x() ? 1 : -1;
    const int dy = -std::abs(to.y() - y), stepY = y < to.y() ? 1 : -1;
    int error = dx + dy;
    while (x != to.x() || y != to.y()) {
        setPixel({x, y}, colour);
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
}

} // namespace wayscribe
