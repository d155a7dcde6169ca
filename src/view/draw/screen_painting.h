#pragma once

#include <QRect>

class QImage;
class QPainter;

namespace wayscribe {

// How the map picture reaches the screen. The map is drawn 16 pixels a sector
// into its picture whatever the zoom; the screen shows the picture enlarged.

// Paints the screen pixels `exposed` of `picture` shown at `zoom`: each of its
// pixels becomes zoom x zoom screen pixels, copied without smoothing so that
// the pixel art stays crisp.
void paintZoomed(QPainter &painter, const QImage &picture, int zoom, const QRect &exposed);

// Outlines a sector's tile, given in screen pixels, with a black line and a
// white one inside it, so that the outline shows on every terrain.
void paintSectorOutline(QPainter &painter, const QRect &tile);

} // namespace wayscribe
