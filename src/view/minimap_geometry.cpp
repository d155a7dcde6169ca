#include "view/minimap_geometry.h"

#include "model/program_state.h"
#include "model/text.h"
#include "view/view_navigation.h"

#include <algorithm>

namespace wayscribe {

MinimapPixel minimapPixelOf(int x, int y)
{
    return {(x - 1) / 2, (y - 1) / 2};
}

MinimapViewRect minimapViewRect(const ProgramState &state)
{
    return {state.view.viewLeft / 2, state.view.viewTop / 2, state.view.viewCols / 2,
            state.view.viewRows / 2};
}

namespace {
// The origin that puts the point in the middle of the view, kept inside the
// world. Far-off clicks only need to stay far off on their way to an integer.
std::int16_t originFor(double position, int visible)
{
    const double origin = roundHalfEven(2 * position - 1) - visible / 2;
    return clampedViewOrigin(static_cast<long long>(std::clamp(origin, -1e9, 1e9)), visible);
}
} // namespace

void moveViewToMinimapPoint(ViewState &view, double x, double y)
{
    view.viewLeft = originFor(x, view.viewCols);
    view.viewTop = originFor(y, view.viewRows);
}

} // namespace wayscribe
