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
    return {state.view.viewLeft / 2, state.view.viewTop / 2, state.view.viewCols / 2, state.view.viewRows / 2};
}

namespace {
// The origin before clamping; far-off values are held in range so that the
// 16-bit field cannot wrap before clampView pulls it back.
std::int16_t originFor(double position, int visible)
{
    const double origin = roundHalfEven(2 * position - 1) - visible / 2;
    return static_cast<std::int16_t>(std::clamp(origin, -32768.0, 32767.0));
}
} // namespace

void moveViewToMinimapPoint(ProgramState &state, double x, double y)
{
    state.view.viewLeft = originFor(x, state.view.viewCols);
    state.view.viewTop = originFor(y, state.view.viewRows);
    clampView(state);
}

} // namespace wayscribe
