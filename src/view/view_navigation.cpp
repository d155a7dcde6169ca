#include "view/view_navigation.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/world.h"

#include <algorithm>

namespace wayscribe {

namespace {
std::int16_t clampOrigin(long origin, int visible)
{
    origin = std::min<long>(origin, kMapSize - visible);
    return static_cast<std::int16_t>(std::max<long>(origin, 0));
}
} // namespace

void clampView(ProgramState &state)
{
    state.viewLeft = clampOrigin(state.viewLeft, state.viewCols);
    state.viewTop = clampOrigin(state.viewTop, state.viewRows);
}

void centreView(ProgramState &state, Platform &platform, int x, int y)
{
    state.viewLeft = clampOrigin(static_cast<long>(x) - state.viewCols / 2, state.viewCols);
    state.viewTop = clampOrigin(static_cast<long>(y) - state.viewRows / 2, state.viewRows);
    platform.redrawMap();
}

} // namespace wayscribe
