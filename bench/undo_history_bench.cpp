// The undo history: the memory it holds after a full-map import made as one
// step and then 10 000 brush clicks (one sector's terrain each, each its own
// step), against the memory of the world itself; and the time to make, undo
// and redo the big step, against making the same change with no history.
//
// The full-map import is the sample generator with every table filled,
// written into a map that already holds another full map, so the step keeps
// a complete earlier map: the largest single step there can be. Loading a
// map file under replace() (New and Open) is set against loading it plainly:
// it records nothing, so the two should match.
#include "model/change_history.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "storage/map_file.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>

using namespace wayscribe;

namespace {

constexpr int kBrushClicks = 10000;
constexpr double kMB = 1024.0 * 1024.0;

GeneratorSettings fullMap(std::uint64_t seed)
{
    GeneratorSettings settings;
    settings.seed = seed;
    settings.fullTables = true;
    return settings;
}

// The sector of brush click i, sweeping the map, and a terrain it does not
// have yet, so that every click is a step.
void brush(World &world, int i)
{
    Sector &s = world.sector(i % kMapSize + 1, (i / kMapSize) % kMapSize + 1);
    s.terrain = static_cast<std::uint8_t>(s.terrain % 18 + 1);
}

void printMemory()
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    generateWorld(*world, doc.gameNumber, fullMap(1));
    ChangeHistory history(*world, doc);
    const std::size_t empty = history.memoryBytes();
    history.apply("Import", [&] { generateWorld(*world, doc.gameNumber, fullMap(2)); });
    const std::size_t afterImport = history.memoryBytes();
    for (int i = 0; i < kBrushClicks; ++i)
        history.apply("Brush", [&] { brush(*world, i); });
    const std::size_t afterBrush = history.memoryBytes();

    std::printf("Memory held by the undo history (reference: the world it records, World::memoryBytes()):\n");
    std::printf("  world with every table full         %8.1f MB\n", world->memoryBytes() / kMB);
    std::printf("  history, empty                      %8.1f kB\n", empty / 1024.0);
    std::printf("  after a full-map import (one step)  %8.1f MB   (%.2f x the world)\n", afterImport / kMB,
                static_cast<double>(afterImport) / world->memoryBytes());
    std::printf("  after %d brush clicks as steps    %8.1f MB   (%.0f bytes a click)\n", kBrushClicks,
                afterBrush / kMB, static_cast<double>(afterBrush - afterImport) / kBrushClicks);
    std::printf("  budget                              %8.1f MB\n\n", kDefaultHistoryBudget / kMB);
}

// The reference for the big step: the same import with no history.
void BM_ImportFullMap_NoHistory(benchmark::State &bench)
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    std::uint64_t seed = 1;
    generateWorld(*world, doc.gameNumber, fullMap(seed));
    for (auto _ : bench)
        generateWorld(*world, doc.gameNumber, fullMap(++seed));
}
BENCHMARK(BM_ImportFullMap_NoHistory)->Unit(benchmark::kMillisecond);

void BM_ImportFullMap_AsStep(benchmark::State &bench)
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    std::uint64_t seed = 1;
    generateWorld(*world, doc.gameNumber, fullMap(seed));
    ChangeHistory history(*world, doc);
    for (auto _ : bench) {
        history.apply("Import", [&] { generateWorld(*world, doc.gameNumber, fullMap(++seed)); });
        bench.PauseTiming();
        history.clear();
        bench.ResumeTiming();
    }
}
BENCHMARK(BM_ImportFullMap_AsStep)->Unit(benchmark::kMillisecond);

// Undo or redo of the big step alone, timed by hand so that the opposite
// move between two timings is left out.
void undoRedo(benchmark::State &bench, bool timeUndo)
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    generateWorld(*world, doc.gameNumber, fullMap(1));
    ChangeHistory history(*world, doc);
    history.apply("Import", [&] { generateWorld(*world, doc.gameNumber, fullMap(2)); });
    using Clock = std::chrono::steady_clock;
    for (auto _ : bench) {
        if (!timeUndo)
            history.undo();
        const auto start = Clock::now();
        if (timeUndo)
            history.undo();
        else
            history.redo();
        bench.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        if (timeUndo)
            history.redo();
    }
}
void BM_UndoFullMapImport(benchmark::State &bench)
{
    undoRedo(bench, true);
}
void BM_RedoFullMapImport(benchmark::State &bench)
{
    undoRedo(bench, false);
}
BENCHMARK(BM_UndoFullMapImport)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RedoFullMapImport)->UseManualTime()->Unit(benchmark::kMillisecond);

// One brush click as a step, against the bare write.
void BM_BrushClick_NoHistory(benchmark::State &bench)
{
    auto world = std::make_unique<World>();
    int i = 0;
    for (auto _ : bench)
        brush(*world, i++);
}
BENCHMARK(BM_BrushClick_NoHistory);

void BM_BrushClick_AsStep(benchmark::State &bench)
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    ChangeHistory history(*world, doc);
    int i = 0;
    for (auto _ : bench) {
        history.apply("Brush", [&] { brush(*world, i); });
        if (++i % kBrushClicks == 0) {
            bench.PauseTiming();
            history.clear();
            bench.ResumeTiming();
        }
    }
}
BENCHMARK(BM_BrushClick_AsStep);

// Opening a full map file, plainly and under replace().
struct MapFile {
    std::string path = (std::filesystem::temp_directory_path() / "wayscribe-bench-undo.om1").string();
    MapFile()
    {
        auto world = std::make_unique<World>();
        std::uint8_t gameNumber = 0;
        generateWorld(*world, gameNumber, fullMap(3));
        FileError error;
        writeMapFile(path, *world, gameNumber, error);
    }
    ~MapFile() { std::filesystem::remove(path); }
};

const MapFile &mapFile()
{
    static const MapFile file;
    return file;
}

void openMap(benchmark::State &bench, bool underReplace)
{
    auto world = std::make_unique<World>();
    DocumentState doc;
    ChangeHistory history(*world, doc);
    for (auto _ : bench) {
        auto load = [&] {
            if (!readMapFile(mapFile().path, *world, doc.gameNumber).ok)
                bench.SkipWithError("the map file does not load");
        };
        if (underReplace)
            history.replace(load);
        else
            load();
    }
}
void BM_OpenFullMap_Plain(benchmark::State &bench)
{
    openMap(bench, false);
}
void BM_OpenFullMap_UnderReplace(benchmark::State &bench)
{
    openMap(bench, true);
}
BENCHMARK(BM_OpenFullMap_Plain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenFullMap_UnderReplace)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    printMemory();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
