#pragma once

#include <QImage>
#include <QPoint>

namespace wayscribe {

// Single pixels and one-pixel lines written straight into a Format_RGB32
// picture: a painter's points cost far more than the pixels themselves, and a
// road tile has up to eight lines. Pixels outside the picture are skipped.
//
// Make the canvas before a QPainter on the same picture: taking the pixels
// un-shares the picture's data, and the painter must then paint into that
// same data. Both may then be used in turn, as the painter draws at once.
class PixelCanvas {
public:
    explicit PixelCanvas(QImage &picture);

    void setPixel(QPoint p, QRgb colour)
    {
        if (p.x() >= 0 && p.y() >= 0 && p.x() < width_ && p.y() < height_)
            reinterpret_cast<QRgb *>(bits_ + p.y() * stride_)[p.x()] = colour;
    }

    // Like the line drawing the map was designed for, a line leaves out its
    // end point: a road line that ends on the edge of its tile therefore never
    // marks the neighbouring tile, and the minimap's view rectangle closes
    // exactly. A line from a point to itself draws nothing.
    void drawLine(QPoint from, QPoint to, QRgb colour);

private:
    uchar *bits_;
    qsizetype stride_;
    int width_, height_;
};

} // namespace wayscribe
