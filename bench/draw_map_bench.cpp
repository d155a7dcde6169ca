// A full redraw of a 1920 x 1080 map picture (120 x 67 sectors) and of the
// minimap, on a generated world and on a worst case where every sector has a
// road, a note and a footprint. The reference is one frame at 60 Hz
// (16.7 ms, shown beside each figure); copying the picture's bytes once is
// the floor.
#include "model/program_state.h"
#include "model/terrain.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/tile_sheet.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>

using namespace wayscribe;

namespace {

constexpr int kWidth = 1920, kHeight = 1080;
const char *const kReference = "one frame at 60 Hz: 16.7 ms";

// The pictures the build copies beside the programs.
std::string graphicsFolder()
{
    std::error_code ec;
    return (std::filesystem::read_symlink("/proc/self/exe", ec).parent_path() / "graphics").string();
}

struct Scene {
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    TileSheet sheet;
    Minimap minimap;
    QImage picture{kWidth, kHeight, kMapPictureFormat};
    std::string error;

    Scene()
    {
        const std::string graphics = graphicsFolder();
        error = sheet.loadTileSet(graphics, "kjc_set1");
        if (error.empty())
            error = sheet.loadMarkers(graphics);
        state.view.viewCols = kWidth / 16;
        state.view.viewRows = kHeight / 16;
        state.view.fullRedraw = 1;
    }
};

void redraw(benchmark::State &bench, Scene &scene)
{
    if (!scene.error.empty()) {
        bench.SkipWithError(scene.error.c_str());
        return;
    }
    for (auto _ : bench)
        Refresh_Map(scene.picture, scene.minimap, *scene.world, scene.state, scene.sheet);
    // Time per tile, the minimap's share included.
    bench.counters["per_tile"] =
        benchmark::Counter(scene.state.view.viewCols * scene.state.view.viewRows,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    bench.SetLabel(kReference);
}

void BM_RefreshMap_GeneratedWorld(benchmark::State &bench)
{
    Scene scene;
    std::uint8_t game = 0;
    generateWorld(*scene.world, game, {});
    // The busiest part of the world: the most roads, notes and settlements.
    int best = -1;
    for (int top = 0; top <= kMapSize - scene.state.view.viewRows; top += 10)
        for (int left = 0; left <= kMapSize - scene.state.view.viewCols; left += 10) {
            int marks = 0;
            for (int y = top + 1; y <= top + scene.state.view.viewRows; ++y)
                for (int x = left + 1; x <= left + scene.state.view.viewCols; ++x) {
                    const Sector &s = scene.world->sector(x, y);
                    marks += (s.terrain >= kRoad && s.terrain <= kCity) + !s.note.empty();
                }
            if (marks > best) {
                best = marks;
                scene.state.view.viewLeft = static_cast<std::int16_t>(left);
                scene.state.view.viewTop = static_cast<std::int16_t>(top);
            }
        }
    redraw(bench, scene);
}
BENCHMARK(BM_RefreshMap_GeneratedWorld)->Unit(benchmark::kMillisecond);

void BM_RefreshMap_EverySectorRoadNoteAndFootprint(benchmark::State &bench)
{
    Scene scene;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &s = scene.world->sector(x, y);
            s.terrain = kRoad;
            s.note = (x + y) % 3 == 0 ? "DUNGEON: Deep" : "a note";
            s.moveMark = 1;
        }
    redraw(bench, scene);
}
BENCHMARK(BM_RefreshMap_EverySectorRoadNoteAndFootprint)->Unit(benchmark::kMillisecond);

void BM_RefreshMiniMap(benchmark::State &bench)
{
    Scene scene;
    std::uint8_t game = 0;
    generateWorld(*scene.world, game, {});
    for (auto _ : bench)
        Refresh_MiniMap(scene.minimap, *scene.world, scene.state);
    bench.SetLabel(kReference);
}
BENCHMARK(BM_RefreshMiniMap)->Unit(benchmark::kMicrosecond);

// The floor: copying the bytes of the map picture once.
void BM_CopyPictureBytesOnly(benchmark::State &bench)
{
    QImage from(kWidth, kHeight, kMapPictureFormat), to(kWidth, kHeight, kMapPictureFormat);
    from.fill(Qt::darkGreen);
    for (auto _ : bench) {
        std::memcpy(to.bits(), from.constBits(), static_cast<std::size_t>(from.sizeInBytes()));
        benchmark::DoNotOptimize(to.constBits());
    }
}
BENCHMARK(BM_CopyPictureBytesOnly)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
