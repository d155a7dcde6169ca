#pragma once

#include <optional>

namespace wayscribe {

struct ViewState;

// A tile is 16 x 16 pixels of the map picture; at zoom z the screen shows
// each of them as z x z pixels, so that the pixel art stays crisp.
inline constexpr int kTilePixels = 16;

// Screen pixels across one sector at `zoom`.
inline int sectorPixels(int zoom)
{
    return kTilePixels * zoom;
}

// A sector of the map picture: the world sector and its view column and row,
// both counted from 1.
struct MapHit {
    int x = 0;
    int y = 0;
    int column = 0;
    int row = 0;
};

// The sector under screen pixel (px, py) of the map picture shown at `zoom`.
// The strip right of or below the last whole tile hits nothing.
std::optional<MapHit> hitTest(const ViewState &view, double px, double py, int zoom);

} // namespace wayscribe
