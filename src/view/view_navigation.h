#pragma once

#include <cstdint>

namespace wayscribe {

struct ViewState;
class Platform;

// The largest scroll origin (ViewLeft for a width, ViewTop for a height)
// at which a view `visible` sectors across still ends inside the world:
// 200 - visible, and 0 for a view wider than the world. The scroll bars use
// it as their maximum.
int largestViewOrigin(int visible);

// An origin kept inside the world for a view `visible` sectors across:
// first pulled back from the far edge, then a negative value becomes 0.
std::int16_t clampedViewOrigin(long long origin, int visible);

// Keeps the scroll origin inside the world for the current view size.
void clampView(ViewState &view);

// Fits the view to a map picture `width` x `height` screen pixels shown at
// `zoom`: ViewCols and ViewRows count the whole sectors that fit, and the
// origin is pulled back so that the view never runs past the world's last
// sector.
void fitView(ViewState &view, int width, int height, int zoom);

// Fits the view to the picture at `newZoom` in place of `oldZoom`, keeping
// the sector under screen pixel (anchorX, anchorY) under it, as far as the
// world's edges allow.
void zoomView(ViewState &view, int width, int height, int oldZoom, int newZoom, double anchorX,
              double anchorY);

// Puts sector (x, y) in the middle of the view (as far as the world's edges
// allow) and redraws. Coordinates outside the world are not refused: the
// view goes to the nearest edge.
void centreView(ViewState &view, Platform &platform, int x, int y);

// View, Goto X Y: asks for "X, Y" and centres the view there. An answer
// without a comma does nothing; a part that is not a number counts as 0.
void gotoXYCommand(ViewState &view, Platform &platform);

} // namespace wayscribe
