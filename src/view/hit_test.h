#pragma once

#include <optional>

namespace wayscribe {

struct ViewState;

// A sector of the map picture: the world sector and its view column and row,
// both counted from 1.
struct MapHit {
    int x = 0;
    int y = 0;
    int column = 0;
    int row = 0;
};

// The sector under pixel (px, py) of the map picture. The strip right of or
// below the last whole tile hits nothing.
std::optional<MapHit> hitTest(const ViewState &view, double px, double py);

} // namespace wayscribe
