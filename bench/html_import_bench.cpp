// Throughput of the HTML turn import: one large report, and a folder of 200
// ordinary reports imported as File, Batch Import does. The reference is the
// cost of only reading the same bytes line by line; the goal for the folder
// is well under a second for 200 reports.
#include "support/report_writer.h"

#include "import/batch_import.h"
#include "import/report_import.h"
#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/text.h"
#include "model/world.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <random>
#include <sstream>

namespace {

using namespace wayscribe;
using wayscribe::test::ReportShape;

// The benchmark measures the import, not the writing of an options file.
bool keepOptionsInMemory(const ProgramState &, Platform &)
{
    return true;
}

// Answers every question Yes and counts how often the import lets the
// interface process events.
class CountingPlatform : public QuietPlatform {
public:
    long events = 0;
    void processEvents() override { ++events; }
};

const char *const kTerrains[] = {"Water",        "Open",   "Fields", "Rough",    "Forest",
                                 "Heavy Forest", "Jungle", "Barren", "Desert",   "Hills",
                                 "Marsh",        "Swamp",  "Road",   "Mountain", "Blank"};

// A report of the usual shape: prose, a square map around the party, a
// settlement with `shops` shops of `rows` rows each.
std::string report(std::mt19937 &random, long x, long y, int size, int prose, int shops, int rows)
{
    ReportShape shape;
    for (int i = 0; i < prose; ++i)
        shape.prose.push_back("The party marches on through the wilderness, turn " + std::to_string(i) +
                              ", and sees nothing of note along the way.");
    shape.prose.push_back(
        "Scouts reckon that a unit of creatures is holed up in the Old Mine , 3 sectors north and "
        "2 sectors east of here.");
    shape.prose.push_back("We're in the town of Benchford.");
    shape.prose.push_back("Hides (@ 11 gp): Hides sell here for 11 gp.");
    shape.startX = x;
    shape.startY = y;
    shape.map.assign(size, {});
    for (auto &row : shape.map)
        for (int c = 0; c < size; ++c)
            row.push_back(kTerrains[random() % std::size(kTerrains)]);
    shape.map[size / 2][size / 2] = "Party and Town";
    shape.heading = "TOWN OF BENCHFORD (42)";
    shape.afterHeading = {"City-state: Bench", "Population: 4000"};
    for (int s = 1; s <= shops; ++s) {
        for (int r = 1; r <= rows; ++r) {
            const std::string row = wayscribe::test::tableRow(
                std::to_string(100 + r), "Goods " + std::to_string(r), std::to_string(r * 7));
            shape.shops.push_back(r == 1 ? wayscribe::test::shopHeader(std::to_string(s % 100), "SHOP", row)
                                         : row);
        }
    }
    return wayscribe::test::reportText(shape);
}

std::filesystem::path benchFolder()
{
    static const std::filesystem::path folder = [] {
        auto p =
            std::filesystem::temp_directory_path() / ("wayscribe-import-bench-" + std::to_string(::getpid()));
        std::filesystem::remove_all(p);
        std::filesystem::create_directories(p / "folder");
        std::mt19937 random(42);
        std::ofstream(p / "large.htm", std::ios::binary) << report(random, 1, 1, 200, 20000, 99, 20);
        for (int i = 0; i < 200; ++i) {
            char name[32];
            std::snprintf(name, sizeof name, "turn%03d.htm", i);
            std::ofstream(p / "folder" / name, std::ios::binary)
                << report(random, 20 + i % 150, 30 + i / 2, 11, 60, 12, 10);
        }
        return p;
    }();
    return folder;
}

std::string fileBytes(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void BM_LargeReport(benchmark::State &st)
{
    const std::string path = (benchFolder() / "large.htm").string();
    const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(path));
    auto world = std::make_unique<World>();
    ProgramState state;
    CountingPlatform platform;
    for (auto _ : st) {
        const ReportOutcome outcome = readReport(*world, state, platform, path, ImportSettings{false});
        benchmark::DoNotOptimize(outcome.result);
    }
    st.SetBytesProcessed(bytes * st.iterations());
    st.counters["MB"] = static_cast<double>(bytes) / 1e6;
    st.counters["events/report"] =
        static_cast<double>(platform.events) / static_cast<double>(st.iterations());
}
BENCHMARK(BM_LargeReport)->Unit(benchmark::kMillisecond);

// Reference: reading the same file and splitting it into lines, nothing more.
void BM_LargeReportReadOnly(benchmark::State &st)
{
    const std::filesystem::path path = benchFolder() / "large.htm";
    const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(path));
    for (auto _ : st) {
        const std::string text = fileBytes(path);
        CsvReader reader(text);
        std::string line;
        long lines = 0;
        while (reader.nextLine(line))
            ++lines;
        benchmark::DoNotOptimize(lines);
    }
    st.SetBytesProcessed(bytes * st.iterations());
}
BENCHMARK(BM_LargeReportReadOnly)->Unit(benchmark::kMillisecond);

void BM_BatchFolder200(benchmark::State &st)
{
    const std::string folder = (benchFolder() / "folder").string() + "/";
    std::int64_t bytes = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        bytes += static_cast<std::int64_t>(entry.file_size());
    auto world = std::make_unique<World>();
    ProgramState state;
    CountingPlatform platform;
    int reports = 0;
    for (auto _ : st)
        reports = importHtmlFolder(*world, state, platform, folder, keepOptionsInMemory).imported;
    if (reports != 200)
        st.SkipWithError("not every report was imported");
    st.SetItemsProcessed(st.iterations() * reports);
    st.SetBytesProcessed(bytes * st.iterations());
    st.counters["reports/s"] =
        benchmark::Counter(static_cast<double>(reports), benchmark::Counter::kIsIterationInvariantRate);
    st.counters["events/batch"] = static_cast<double>(platform.events) / static_cast<double>(st.iterations());
}
BENCHMARK(BM_BatchFolder200)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    std::cout
        << "HTML turn import: a large report (20 000 prose lines, a 200 x 200 map table, 99 shops of 20 "
           "rows)\n"
           "against only reading its bytes line by line; and a folder of 200 ordinary reports (goal: well\n"
           "under a second). events = calls to let the interface process events (the desktop throttles\n"
           "them to one every ~20 ms).\n";
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::filesystem::remove_all(benchFolder());
    return 0;
}
