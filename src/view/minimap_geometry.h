#pragma once

namespace wayscribe {

struct ProgramState;
struct ViewState;

// The minimap is 100 x 100 pixels; pixel (p, q) stands for the 2 x 2 sectors
// X = 2p + 1 .. 2p + 2, Y = 2q + 1 .. 2q + 2.
inline constexpr int kMinimapSize = 100;

struct MinimapPixel {
    int p = 0;
    int q = 0;
};

// The pixel a single edit of sector (x, y) recolours.
MinimapPixel minimapPixelOf(int x, int y);

// The white rectangle of the part of the world the map picture shows: every
// value is the view's, halved and truncated on its own.
struct MinimapViewRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};
MinimapViewRect minimapViewRect(const ProgramState &state);

// A click at minimap position (x, y) (pixels, fractions allowed) puts that
// point in the middle of the view: sets ViewLeft and ViewTop, kept inside the
// world. The caller checks FileBusy, sets the scroll bars and redraws.
void moveViewToMinimapPoint(ViewState &view, double x, double y);

} // namespace wayscribe
