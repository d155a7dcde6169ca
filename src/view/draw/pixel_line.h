#pragma once

#include <QPoint>

class QPainter;

namespace wayscribe {

// A one-pixel line in the painter's pen that, like the line drawing the map
// was designed for, leaves out its end point: a road line that ends on the
// edge of its tile therefore never marks the neighbouring tile, and the
// minimap's view rectangle closes exactly. A line from a point to itself
// draws nothing.
void drawPixelLine(QPainter &painter, QPoint from, QPoint to);

} // namespace wayscribe
