#include "view/view_navigation.h"

#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "view/hit_test.h"

#include <algorithm>
#include <cmath>

namespace wayscribe {

int largestViewOrigin(int visible)
{
    return std::max(0, kMapSize - visible);
}

std::int16_t clampedViewOrigin(long long origin, int visible)
{
    return static_cast<std::int16_t>(std::clamp<long long>(origin, 0, largestViewOrigin(visible)));
}

void clampView(ViewState &view)
{
    view.viewLeft = clampedViewOrigin(view.viewLeft, view.viewCols);
    view.viewTop = clampedViewOrigin(view.viewTop, view.viewRows);
}

void fitView(ViewState &view, int width, int height, int zoom)
{
    view.viewCols = static_cast<std::int16_t>(std::clamp(width, 0, 32767) / sectorPixels(zoom));
    view.viewRows = static_cast<std::int16_t>(std::clamp(height, 0, 32767) / sectorPixels(zoom));
    clampView(view);
}

void zoomView(ViewState &view, int width, int height, int oldZoom, int newZoom, double anchorX,
              double anchorY)
{
    // The sector under the anchor, counted from 0, and the column and row of
    // the anchor at the new zoom, also from 0.
    const double sectorX = std::floor(view.viewLeft + anchorX / sectorPixels(oldZoom));
    const double sectorY = std::floor(view.viewTop + anchorY / sectorPixels(oldZoom));
    const double column = std::floor(anchorX / sectorPixels(newZoom));
    const double row = std::floor(anchorY / sectorPixels(newZoom));
    fitView(view, width, height, newZoom);
    view.viewLeft = clampedViewOrigin(static_cast<long long>(sectorX - column), view.viewCols);
    view.viewTop = clampedViewOrigin(static_cast<long long>(sectorY - row), view.viewRows);
}

void centreView(ViewState &view, Platform &platform, int x, int y)
{
    view.viewLeft = clampedViewOrigin(static_cast<long long>(x) - view.viewCols / 2, view.viewCols);
    view.viewTop = clampedViewOrigin(static_cast<long long>(y) - view.viewRows / 2, view.viewRows);
    platform.redrawMap();
}

void gotoXYCommand(ViewState &view, Platform &platform)
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
    centreView(view, platform, fit(x), fit(y));
}

} // namespace wayscribe
