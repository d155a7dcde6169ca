// The shared report list at its largest: a map with every shop full, one row
// per item of all 160 x 111 x 20 = 355 200, in the columns of the objects
// database ("Settlement", "Shop", "Object", "#", "Price").
//
// Measured: building the table, sorting it by a text column and by a number
// column (from the order it was built in), the first screenful of the list
// (40 rows x 5 columns of data() for display) and the table's memory.
// References: a sort has to read every cell of its column once, so it is set
// against just producing those texts; the memory against keeping the cell
// texts themselves. Target for each operation: under 250 ms.
#include "model/text.h"
#include "model/world.h"
#include "sample/world_generator.h"
#include "settlements/objects_database.h"
#include "settlements/report_table.h"
#include "settlements/sort_list.h"
#include "settlements/ui/report_list_model.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

using namespace wayscribe;

namespace {

constexpr double kTargetMs = 250.0;
constexpr int kScreenRows = 40;

void fill(ReportTable &table, const World &world)
{
    for (int n = 1; n <= kMaxSettlements; ++n)
        for (int shop = 0; shop <= kMaxShop; ++shop)
            for (int item = 1; item <= kItemsPerShop; ++item)
                if (!trimBlanks(world.item(n, shop, item, ItemField::Name)).empty())
                    table.addRow(packObjectRow(n, n, shop, item));
}

void build(benchmark::State &bench, const World &world)
{
    for (auto _ : bench) {
        ReportTable table = objectsTable(world);
        fill(table, world);
        benchmark::DoNotOptimize(table.rowCount());
    }
}

// Every iteration sorts the rows from the order they were built in.
void sortColumn(benchmark::State &bench, const ReportTable &built, int column)
{
    ReportTable table = built;
    for (auto _ : bench) {
        bench.PauseTiming();
        table = built;
        bench.ResumeTiming();
        Sort_List(table, column, table.column(column).kind, true);
    }
}

// The reference for a sort: every text of the column produced once.
void readColumn(benchmark::State &bench, const ReportTable &table, int column)
{
    std::string text;
    for (auto _ : bench) {
        std::size_t bytes = 0;
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            text.clear();
            table.appendCellText(row, column, text);
            bytes += text.size();
        }
        benchmark::DoNotOptimize(bytes);
    }
}

void firstScreen(benchmark::State &bench, const ReportListModel &model)
{
    for (auto _ : bench)
        for (int row = 0; row < kScreenRows; ++row)
            for (int column = 0; column < model.columnCount(); ++column)
                benchmark::DoNotOptimize(model.data(model.index(row, column), Qt::DisplayRole));
}

class SummaryReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0)
                cpuMs[run.run_name.function_name] = run.cpu_accumulated_time * 1000.0 / run.iterations;
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> cpuMs;
};

void printLine(const SummaryReporter &reporter, const char *label, const std::string &name,
               const std::string &reference)
{
    const auto run = reporter.cpuMs.find(name);
    if (run == reporter.cpuMs.end())
        return;
    std::printf("  %-30s %9.3f ms", label, run->second);
    const auto ref = reporter.cpuMs.find(reference);
    if (ref != reporter.cpuMs.end())
        std::printf("   reading the column's texts once: %7.1f ms (%.1f x)", ref->second,
                    run->second / ref->second);
    std::printf("   target under %.0f ms: %s\n", kTargetMs, run->second < kTargetMs ? "met" : "NOT MET");
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    GeneratorSettings full;
    full.fullTables = true;
    generateWorld(*world, game, full);

    ReportTable built = objectsTable(*world);
    fill(built, *world);
    std::size_t textBytes = 0;
    for (std::size_t row = 0; row < built.rowCount(); ++row)
        for (int column = 1; column <= built.columnCount(); ++column)
            textBytes += built.cellText(row, column).size();
    ReportListModel model(built);
    // The repeated runs below reuse memory the allocator kept from the run
    // before; the first sort of a process gets fresh pages from the system.
    double firstSortMs = 0;
    {
        ReportTable table = built;
        const auto start = std::chrono::steady_clock::now();
        Sort_List(table, 5, SortKind::Number, true);
        firstSortMs =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    }

    benchmark::RegisterBenchmark("build", build, std::cref(*world))->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("sort_text/Object", sortColumn, std::cref(built), 3)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("read_column/Object", readColumn, std::cref(built), 3)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("sort_text/Settlement", sortColumn, std::cref(built), 1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("read_column/Settlement", readColumn, std::cref(built), 1)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("sort_number/Price", sortColumn, std::cref(built), 5)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("read_column/Price", readColumn, std::cref(built), 5)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("first_screen", firstScreen, std::cref(model))
        ->Unit(benchmark::kMicrosecond);

    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::printf("\nSummary, %zu rows x %d columns (processor time per operation):\n", built.rowCount(),
                built.columnCount());
    printLine(reporter, "build the table", "build", "");
    printLine(reporter, "sort by \"Object\" (text)", "sort_text/Object", "read_column/Object");
    printLine(reporter, "sort by \"Settlement\" (text)", "sort_text/Settlement", "read_column/Settlement");
    printLine(reporter, "sort by \"Price\" (number)", "sort_number/Price", "read_column/Price");
    std::printf("  %-30s %9.3f ms   (wall clock, once, fresh memory)\n", "first sort by \"Price\"",
                firstSortMs);
    printLine(reporter, "first screen, 40 x 5 data()", "first_screen", "");
    std::printf("  table memory %zu bytes (%.1f MB); the cell texts alone would take %zu bytes (%.1f MB)\n",
                built.memoryBytes(), built.memoryBytes() / 1048576.0, textBytes, textBytes / 1048576.0);
    return 0;
}
