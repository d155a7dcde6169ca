// One right click of the terrain brush on a world with every table full, as
// the map's click handler does it: the brush's rules, the redraw of the one
// tile (terrain, road lines with the neighbours' lines back, note marker,
// minimap pixel), then the border lines and the whole minimap every click
// ends with. The reference is a full Refresh_Map of the same 1920 x 1080
// picture, which a click would cost if it redrew everything.
#include "model/change_history.h"
#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/terrain.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "view/draw/click_drawing.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"
#include "view/draw/tile_sheet.h"
#include "view/map_brush.h"
#include "view/view_navigation.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

using namespace wayscribe;

namespace {

constexpr int kWidth = 1920, kHeight = 1080;
const char *const kReference = "reference: full Refresh_Map, BM_RefreshMap_FullWorld";

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
    QuietPlatform platform{Answer::Yes};
    QImage picture{kWidth, kHeight, kMapPictureFormat};
    std::string error;

    Scene()
    {
        const std::string graphics = graphicsFolder();
        error = sheet.loadTileSet(graphics, "kjc_set1");
        if (error.empty())
            error = sheet.loadMarkers(graphics);
        std::uint8_t game = 0;
        generateWorld(*world, game, {.seed = 1, .fullTables = true});
        state.view.viewCols = kWidth / 16;
        state.view.viewRows = kHeight / 16;
        state.view.viewLeft = 40;
        state.view.viewTop = 60;
        state.view.fullRedraw = 1;
        Refresh_Map(picture, minimap, *world, state, sheet);
    }

    // A sector in the middle of the view with a road and a settlement around
    // it, so that painting Road there draws lines both ways.
    void prepareRoadCrossing(int x, int y)
    {
        world->sector(x, y).terrain = kOpen;
        world->sector(x + 1, y).terrain = kRoad;
        world->sector(x - 1, y + 1).terrain = kRoad;
        world->sector(x, y - 1).terrain = kRoad;
    }

    void click(int x, int y, int brush)
    {
        state.selection.brushTerrain = static_cast<std::int16_t>(brush);
        const BrushResult r = brushClick(*world, state, platform, x, y);
        drawSectorRepaint(picture, minimap, *world, state, sheet, x, y, r.repaint);
        finishMapClick(picture, minimap, *world, state);
    }
};

bool ready(benchmark::State &bench, const Scene &scene)
{
    if (scene.error.empty())
        return true;
    bench.SkipWithError(scene.error.c_str());
    return false;
}

// Road and Open in turn on one sector: every click changes the map.
void BM_BrushClick_RoadAndOpenInTurn(benchmark::State &bench)
{
    Scene scene;
    if (!ready(bench, scene))
        return;
    const int x = 100, y = 90;
    scene.prepareRoadCrossing(x, y);
    bool road = true;
    for (auto _ : bench) {
        scene.click(x, y, road ? kRoad : kOpen);
        road = !road;
    }
    bench.SetLabel(kReference);
}
BENCHMARK(BM_BrushClick_RoadAndOpenInTurn)->Unit(benchmark::kMicrosecond);

// The same click run as one undo step, as the window runs it.
void BM_BrushClick_AsUndoStep(benchmark::State &bench)
{
    Scene scene;
    if (!ready(bench, scene))
        return;
    ChangeHistory history(*scene.world, scene.state.document);
    const int x = 100, y = 90;
    scene.prepareRoadCrossing(x, y);
    bool road = true;
    for (auto _ : bench) {
        history.apply("Paint", [&] { scene.click(x, y, road ? kRoad : kOpen); });
        road = !road;
    }
    bench.SetLabel(kReference);
}
BENCHMARK(BM_BrushClick_AsUndoStep)->Unit(benchmark::kMicrosecond);

// A Town over a Village of a full settlement table: the question, freeing the
// number and taking it again, then the settlement's tile.
void BM_BrushClick_ReplaceSettlement(benchmark::State &bench)
{
    Scene scene;
    if (!ready(bench, scene))
        return;
    const Settlement &s = scene.world->settlement(kMaxSettlements);
    const int x = s.x, y = s.y;
    if (!isSectorIndex(x) || !isSectorIndex(y) || !isSettlementTerrain(scene.world->sector(x, y).terrain)) {
        bench.SkipWithError("the full world has no settlement 160 on the map");
        return;
    }
    scene.state.view.viewLeft =
        clampedViewOrigin(x - scene.state.view.viewCols / 2, scene.state.view.viewCols);
    scene.state.view.viewTop =
        clampedViewOrigin(y - scene.state.view.viewRows / 2, scene.state.view.viewRows);
    bool town = true;
    for (auto _ : bench) {
        scene.click(x, y, town ? kTown : kVillage);
        town = !town;
    }
    bench.SetLabel(kReference);
}
BENCHMARK(BM_BrushClick_ReplaceSettlement)->Unit(benchmark::kMicrosecond);

void BM_RefreshMap_FullWorld(benchmark::State &bench)
{
    Scene scene;
    if (!ready(bench, scene))
        return;
    for (auto _ : bench)
        Refresh_Map(scene.picture, scene.minimap, *scene.world, scene.state, scene.sheet);
}
BENCHMARK(BM_RefreshMap_FullWorld)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
