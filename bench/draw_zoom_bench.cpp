// A full redraw of the map view on a 1920 x 1080 screen at each zoom: the map
// drawn into its picture (the screen's size divided by the zoom), the
// minimap, and the picture painted enlarged onto the screen without
// smoothing, as the map view does. The reference is one frame at 60 Hz
// (16.7 ms); the plain copy at 1x shows what the enlarging costs.
#include "model/program_state.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/screen_painting.h"
#include "view/draw/tile_sheet.h"
#include "view/hit_test.h"
#include "view/view_navigation.h"

#include <QPainter>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;

namespace {

constexpr int kWidth = 1920, kHeight = 1080;

std::string graphicsFolder()
{
    std::error_code ec;
    return (std::filesystem::read_symlink("/proc/self/exe", ec).parent_path() / "graphics").string();
}

void BM_RedrawAndPaintAtZoom(benchmark::State &bench)
{
    const int zoom = static_cast<int>(bench.range(0));
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    generateWorld(*world, game, {});
    ProgramState state;
    TileSheet sheet;
    std::string error = sheet.loadTileSet(graphicsFolder(), "kjc_set1");
    if (error.empty())
        error = sheet.loadMarkers(graphicsFolder());
    if (!error.empty()) {
        bench.SkipWithError(error.c_str());
        return;
    }
    fitView(state.view, kWidth, kHeight, zoom);
    state.view.viewLeft = 40;
    state.view.viewTop = 40;
    state.view.fullRedraw = 1;
    const int side = sectorPixels(zoom);
    QImage picture((kWidth + zoom - 1) / zoom, (kHeight + zoom - 1) / zoom, kMapPictureFormat);
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    Minimap minimap;
    for (auto _ : bench) {
        Refresh_Map(picture, minimap, *world, state, sheet);
        QPainter painter(&screen);
        paintZoomed(painter, picture, zoom, screen.rect());
        paintSectorOutline(painter, QRect(side, side, side, side));
    }
    bench.counters["sectors"] = state.view.viewCols * state.view.viewRows;
    bench.SetLabel("reference: one frame at 60 Hz, 16.7 ms");
}
BENCHMARK(BM_RedrawAndPaintAtZoom)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

// The painting alone: the whole screen from the picture at each zoom; at 1x
// it is a plain copy.
void BM_PaintOnly(benchmark::State &bench)
{
    const int zoom = static_cast<int>(bench.range(0));
    QImage picture((kWidth + zoom - 1) / zoom, (kHeight + zoom - 1) / zoom, kMapPictureFormat);
    picture.fill(Qt::darkGreen);
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    for (auto _ : bench) {
        QPainter painter(&screen);
        paintZoomed(painter, picture, zoom, screen.rect());
    }
    bench.SetLabel(zoom == 1 ? "plain copy" : "enlarged");
}
BENCHMARK(BM_PaintOnly)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
