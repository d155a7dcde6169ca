#include "view/hit_test.h"

#include "model/program_state.h"

#include <cmath>

namespace wayscribe {

std::optional<MapHit> hitTest(const ViewState &view, double px, double py, int zoom)
{
    const double column = std::floor(px / sectorPixels(zoom)) + 1;
    const double row = std::floor(py / sectorPixels(zoom)) + 1;
    if (column < 1 || row < 1 || column > view.viewCols || row > view.viewRows)
        return std::nullopt;
    const int c = static_cast<int>(column);
    const int r = static_cast<int>(row);
    return MapHit{view.viewLeft + c, view.viewTop + r, c, r};
}

} // namespace wayscribe
