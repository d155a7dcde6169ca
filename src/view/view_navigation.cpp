#include "view/view_navigation.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
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
    state.view.viewLeft = clampOrigin(state.view.viewLeft, state.view.viewCols);
    state.view.viewTop = clampOrigin(state.view.viewTop, state.view.viewRows);
}

void centreView(ProgramState &state, Platform &platform, int x, int y)
{
    state.view.viewLeft = clampOrigin(static_cast<long>(x) - state.view.viewCols / 2, state.view.viewCols);
    state.view.viewTop = clampOrigin(static_cast<long>(y) - state.view.viewRows / 2, state.view.viewRows);
    platform.redrawMap();
}

void gotoXYCommand(ProgramState &state, Platform &platform)
{
    const std::string answer = platform.inputBox(
        "Please enter X and Y co-ordinates in the format 'X, Y' (eg '3, 78')", "Goto X:Y", "");
    const std::size_t comma = answer.find(',');
    if (comma == std::string::npos)
        return;
    const long long x = indexValue(std::string_view(answer).substr(0, comma));
    const long long y = indexValue(std::string_view(answer).substr(comma + 1));
    // Far-off numbers only need to stay far off: the clamp does the rest.
    auto fit = [](long long v) { return static_cast<int>(std::clamp<long long>(v, -100000, 100000)); };
    centreView(state, platform, fit(x), fit(y));
}

} // namespace wayscribe
