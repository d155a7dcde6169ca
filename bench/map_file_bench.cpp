// Loading and saving the map file, for a map with every table full (the
// largest file there can be) and for the example world (a long-played game,
// seed 10, the world of examples/example.om1).
//
// References: loading is set against just reading the file's bytes into
// memory, saving against just writing as many bytes the way the saver does
// (write, sync to the disk, close, rename). Saving always syncs, because the
// writer is atomic; it is measured on the temporary folder's disk and on
// tmpfs (/dev/shm), where the sync costs nothing, so that the figures show
// what the formatting costs apart from the disk. Targets: 250 MB/s of file
// for load and for save; the model of a full map under 64 MB.
#include "model/world.h"
#include "sample/world_generator.h"
#include "storage/map_file.h"

#include <benchmark/benchmark.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

using namespace wayscribe;
namespace fs = std::filesystem;

namespace {

constexpr double kTargetMBps = 250.0;
constexpr double kMemoryTargetMB = 64.0;
constexpr double kMB = 1024.0 * 1024.0;

struct MapCase {
    std::string label;
    GeneratorSettings settings;
    std::string path; // the map file on the disk
    std::uintmax_t bytes = 0;
};

struct Media {
    std::string label;
    fs::path folder;
};

// A line of /proc/self/status in kB ("VmHWM", "VmRSS"); -1 when unreadable.
long statusKb(const std::string &key)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.compare(0, key.size() + 1, key + ":") == 0)
            return std::stol(line.substr(key.size() + 1));
    return -1;
}

// Resets the peak resident size to the current one; false where the kernel
// does not allow it.
bool resetPeakRss()
{
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
    clear.flush();
    return static_cast<bool>(clear);
}

std::string readAll(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

void load(benchmark::State &bench, const MapCase &map)
{
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    for (auto _ : bench) {
        const MapReadResult r = readMapFile(map.path, *world, game);
        if (!r.ok) {
            bench.SkipWithError(r.error.describe().c_str());
            return;
        }
    }
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * map.bytes));
}

// The reference for loading: the whole file into a buffer with fread.
void plainRead(benchmark::State &bench, const MapCase &map)
{
    std::vector<char> buffer(map.bytes);
    for (auto _ : bench) {
        std::FILE *f = std::fopen(map.path.c_str(), "rb");
        if (!f || std::fread(buffer.data(), 1, buffer.size(), f) != buffer.size()) {
            bench.SkipWithError("cannot read the map file");
            if (f)
                std::fclose(f);
            return;
        }
        std::fclose(f);
        benchmark::DoNotOptimize(buffer.data());
    }
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * map.bytes));
}

void save(benchmark::State &bench, const MapCase &map, const Media &media)
{
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!readMapFile(map.path, *world, game).ok) {
        bench.SkipWithError("cannot read the map file");
        return;
    }
    const std::string target = (media.folder / ("saved-" + map.label + ".om1")).string();
    for (auto _ : bench) {
        FileError error;
        if (!writeMapFile(target, *world, game, error)) {
            bench.SkipWithError(error.describe().c_str());
            return;
        }
    }
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * map.bytes));
}

// The reference for saving: the same bytes written in the saver's 1 MB
// pieces to a file beside the target, synced, closed and renamed over it.
void plainWrite(benchmark::State &bench, const MapCase &map, const Media &media)
{
    const std::string bytes = readAll(map.path);
    const std::string target = (media.folder / ("plain-" + map.label + ".om1")).string();
    const std::string temp = target + ".part";
    constexpr std::size_t kPiece = 1 << 20;
    for (auto _ : bench) {
        const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        bool ok = fd >= 0;
        for (std::size_t at = 0; ok && at < bytes.size(); at += kPiece) {
            const std::size_t n = std::min(kPiece, bytes.size() - at);
            ok = ::write(fd, bytes.data() + at, n) == static_cast<ssize_t>(n);
        }
        ok = ok && ::fsync(fd) == 0;
        if (fd >= 0)
            ok = ::close(fd) == 0 && ok;
        if (!ok || std::rename(temp.c_str(), target.c_str()) != 0) {
            bench.SkipWithError(std::strerror(errno));
            return;
        }
    }
    bench.SetBytesProcessed(static_cast<std::int64_t>(bench.iterations() * map.bytes));
}

// Keeps the wall-clock and processor seconds per iteration of every run
// for the summary, by the name the run was registered with.
class SummaryReporter : public benchmark::ConsoleReporter {
public:
    SummaryReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_ColorTabular : OO_Tabular) {}

    struct Seconds {
        double real = 0, cpu = 0;
    };

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
                const auto n = static_cast<double>(run.iterations);
                seconds[run.run_name.function_name] = {run.real_accumulated_time / n,
                                                       run.cpu_accumulated_time / n};
            }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, Seconds> seconds;
};

void printMemory(const MapCase &full)
{
    // The generator's world is gone; give its memory back so that the peak
    // below is the load's own.
    malloc_trim(0);
    const bool reset = resetPeakRss();
    const long rssBefore = statusKb("VmRSS");
    const long peakBefore = statusKb("VmHWM");
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    const MapReadResult r = readMapFile(full.path, *world, game);
    const long peakAfter = statusKb("VmHWM");
    const double model = static_cast<double>(world->memoryBytes()) / kMB;
    std::printf("Memory of the model with every table full (loaded from a %.1f MB file%s):\n",
                static_cast<double>(full.bytes) / kMB, r.ok ? "" : ", LOAD FAILED");
    std::printf("  World::memoryBytes()      %7.1f MB   target under %.0f MB: %s\n", model, kMemoryTargetMB,
                model < kMemoryTargetMB ? "met" : "NOT MET");
    std::printf("  process resident before   %7.1f MB   (VmRSS)\n", rssBefore / 1024.0);
    std::printf("  peak resident before      %7.1f MB   (VmHWM%s)\n", peakBefore / 1024.0,
                reset ? ", reset after generating the map" : ", includes generating the map");
    std::printf("  peak resident after load  %7.1f MB   (VmHWM), %.1f MB above the resident size before\n\n",
                peakAfter / 1024.0, (peakAfter - rssBefore) / 1024.0);
}

// One line of the summary: the operation's speed against its reference's,
// by wall clock and (in brackets) by processor time. On a busy machine the
// two part, and the processor figure is then the fairer one. Runs left out
// by a filter are not shown.
void printComparison(const SummaryReporter &reporter, const std::string &label, const std::string &name,
                     const std::string &referenceLabel, const std::string &referenceName,
                     std::uintmax_t bytes)
{
    const auto run = reporter.seconds.find(name);
    const auto reference = reporter.seconds.find(referenceName);
    if (run == reporter.seconds.end() || reference == reporter.seconds.end())
        return;
    const double mb = static_cast<double>(bytes) / kMB;
    const double wall = mb / run->second.real, cpu = mb / run->second.cpu;
    const char *verdict = wall >= kTargetMBps  ? "met"
                          : cpu >= kTargetMBps ? "met by processor time only"
                                               : "NOT MET";
    std::printf("  %-18s %7.1f MB/s (%7.1f)  %-17s %8.1f MB/s (%8.1f)  takes %5.1f x as long   target: %s\n",
                label.c_str(), wall, cpu, referenceLabel.c_str(), mb / reference->second.real,
                mb / reference->second.cpu, run->second.real / reference->second.real, verdict);
}

void printSummary(const SummaryReporter &reporter, const std::vector<MapCase> &maps,
                  const std::vector<Media> &media)
{
    std::printf("\nSummary: MB/s of map file by wall clock (by processor time); target %.0f MB/s.\n"
                "Every save syncs the file to its disk before renaming it over the old one.\n",
                kTargetMBps);
    for (const MapCase &map : maps) {
        std::printf("%s, %.1f MB:\n", map.label.c_str(), static_cast<double>(map.bytes) / kMB);
        printComparison(reporter, "load", "load/" + map.label, "plain fread", "plain_read/" + map.label,
                        map.bytes);
        for (const Media &m : media)
            printComparison(reporter, "save on " + m.label, "save/" + map.label + "/" + m.label,
                            "plain write+sync", "plain_write/" + map.label + "/" + m.label, map.bytes);
    }
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    std::vector<Media> media = {
        {"disk", fs::temp_directory_path() / ("wayscribe-map-bench-" + std::to_string(getpid()))}};
    if (fs::is_directory("/dev/shm"))
        media.push_back(
            {"tmpfs", fs::path("/dev/shm") / ("wayscribe-map-bench-" + std::to_string(getpid()))});
    for (const Media &m : media)
        fs::create_directories(m.folder);

    GeneratorSettings full;
    full.seed = 1;
    full.fullTables = true;
    GeneratorSettings example;
    example.seed = 10;
    std::vector<MapCase> maps = {{"full_tables", full, {}, 0}, {"example", example, {}, 0}};
    for (MapCase &map : maps) {
        auto world = std::make_unique<World>();
        std::uint8_t game = 0;
        generateWorld(*world, game, map.settings);
        map.path = (media.front().folder / (map.label + ".om1")).string();
        FileError error;
        if (!writeMapFile(map.path, *world, game, error)) {
            std::fprintf(stderr, "map_file_bench: %s\n", error.describe().c_str());
            return 1;
        }
        map.bytes = fs::file_size(map.path);
    }
    printMemory(maps.front());

    for (const MapCase &map : maps) {
        benchmark::RegisterBenchmark(("load/" + map.label).c_str(), load, map)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
        benchmark::RegisterBenchmark(("plain_read/" + map.label).c_str(), plainRead, map)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
        for (const Media &m : media) {
            benchmark::RegisterBenchmark(("save/" + map.label + "/" + m.label).c_str(), save, map, m)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
            benchmark::RegisterBenchmark(("plain_write/" + map.label + "/" + m.label).c_str(), plainWrite,
                                         map, m)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        }
    }
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    printSummary(reporter, maps, media);

    for (const Media &m : media) {
        std::error_code ec;
        fs::remove_all(m.folder, ec);
    }
    return 0;
}
