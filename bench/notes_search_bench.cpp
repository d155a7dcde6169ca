// The notes database on a map with a note on every sector: 40 000 notes,
// every tenth a long one (some 2 KB of text over many lines).
//
// Measured: the database's fill (the same core fill its window runs, into
// the list's table) with no search, a plain search, and a search of 20 "+"
// terms with "+" meaning "And" and meaning "Or". Reference: just scanning
// the notes, every byte of every note read once. Target for each fill:
// well under 250 ms.
#include "model/world.h"
#include "notes/notes_search.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

using namespace wayscribe;

namespace {

constexpr double kTargetMs = 250.0;

const char *const kWords[] = {"Dungeon", "level",  "goblins", "bridge", "Ford",  "market",  "Old",
                              "mine",    "tower",  "ruins",   "Road",   "swamp", "wolves",  "camp",
                              "shrine",  "guards", "river",   "Hills",  "cave",  "treasure"};
constexpr int kWordCount = sizeof(kWords) / sizeof(kWords[0]);

void fillWorld(World &world)
{
    std::size_t n = 0;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x, ++n) {
            std::string note = std::string(kWords[n % kWordCount]) + " near " + kWords[(n / 7) % kWordCount] +
                               " " + std::to_string(n % 97);
            if (n % 10 == 0)
                for (int line = 0; line < 40; ++line)
                    note.append("\r\nA long report line about the ").append(kWords[(n + line) % kWordCount]);
            world.sector(x, y).note = std::move(note);
            if (n % 50 == 0)
                world.sector(x, y).settlementName = "Town";
        }
}

std::string twentyTerms()
{
    std::string text = kWords[0];
    for (int i = 1; i < kWordCount; ++i)
        text.append(" + ").append(kWords[i]);
    return text;
}

void fill(benchmark::State &bench, const World &world, NotesFilter filter)
{
    ReportTable table = notesListTable(world);
    for (auto _ : bench) {
        fillNotesList(table, world, filter);
        benchmark::DoNotOptimize(table.rowCount());
    }
    bench.counters["rows"] = static_cast<double>(table.rowCount());
}

// Every byte of every note read once.
void scanNotes(benchmark::State &bench, const World &world)
{
    for (auto _ : bench) {
        std::size_t pluses = 0;
        for (int y = 1; y <= kMapSize; ++y)
            for (int x = 1; x <= kMapSize; ++x) {
                const std::string &note = world.sector(x, y).note;
                pluses += static_cast<std::size_t>(std::count(note.begin(), note.end(), '+'));
            }
        benchmark::DoNotOptimize(pluses);
    }
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

void printLine(const SummaryReporter &reporter, const char *label, const std::string &name)
{
    const auto run = reporter.cpuMs.find(name);
    const auto ref = reporter.cpuMs.find("scan_notes");
    if (run == reporter.cpuMs.end() || ref == reporter.cpuMs.end())
        return;
    std::printf("  %-32s %8.2f ms   scanning the notes: %6.2f ms (%.1f x)   target under %.0f ms: %s\n",
                label, run->second, ref->second, run->second / ref->second, kTargetMs,
                run->second < kTargetMs ? "met" : "NOT MET");
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    auto world = std::make_unique<World>();
    fillWorld(*world);
    std::size_t bytes = 0;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x)
            bytes += world->sector(x, y).note.size();

    const std::string terms = twentyTerms();
    benchmark::RegisterBenchmark("scan_notes", scanNotes, std::cref(*world))->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fill/no_search", fill, std::cref(*world), NotesFilter{})
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fill/plain_search", fill, std::cref(*world),
                                 NotesFilter{false, true, "OLD NEAR", PlusMeans::And})
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fill/20_terms_and", fill, std::cref(*world),
                                 NotesFilter{false, true, terms, PlusMeans::And})
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fill/20_terms_or", fill, std::cref(*world),
                                 NotesFilter{false, true, terms, PlusMeans::Or})
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("fill/20_terms_or_no_settlements", fill, std::cref(*world),
                                 NotesFilter{true, true, terms, PlusMeans::Or})
        ->Unit(benchmark::kMillisecond);

    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::printf("\nSummary, %d notes, %.1f MB of note text (processor time per fill):\n", kMapSize * kMapSize,
                bytes / 1048576.0);
    printLine(reporter, "no search", "fill/no_search");
    printLine(reporter, "plain search", "fill/plain_search");
    printLine(reporter, "20 terms, \"+\" means \"And\"", "fill/20_terms_and");
    printLine(reporter, "20 terms, \"+\" means \"Or\"", "fill/20_terms_or");
    printLine(reporter, "20 terms, Or, no settlements", "fill/20_terms_or_no_settlements");
    return 0;
}
