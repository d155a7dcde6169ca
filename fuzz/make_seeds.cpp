// Writes the seed corpus of every fuzz target into CORPUS/<target>/ from the
// test data, the example world and the small fixed map:
//   make_fuzz_seeds SOURCE_FOLDER CORPUS_FOLDER
// Seeds are rewritten on each call; what the fuzzers added stays.
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_maps.h"

#include "model/file_error.h"
#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/options_file.h"
#include "travel/route_finder.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>

namespace {

using namespace wayscribe;
namespace fs = std::filesystem;

// A map file's first rows of sectors: what a fuzz input of the map targets'
// size holds.
constexpr std::size_t kMapSeedBytes = 12000;

std::string fileBytes(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (!in) {
        std::cerr << "make_fuzz_seeds: cannot read " << path << '\n';
        std::exit(1);
    }
    return bytes.str();
}

class Corpus {
public:
    explicit Corpus(fs::path folder) : folder_(std::move(folder)) {}

    void add(const std::string &target, const std::string &name, std::string_view bytes)
    {
        const fs::path dir = folder_ / target;
        fs::create_directories(dir);
        std::ofstream out(dir / ("seed-" + name), std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out) {
            std::cerr << "make_fuzz_seeds: cannot write " << (dir / name) << '\n';
            std::exit(1);
        }
    }

private:
    fs::path folder_;
};

// The head of a map file, cut at a line end, under the headers of the
// newest format, the first with dungeons and a file from before headers.
void addMapSeeds(Corpus &corpus, const std::string &name, const std::string &map)
{
    const std::size_t headerEnd = map.find("\r\n");
    std::string head = map.substr(0, map.rfind("\r\n", kMapSeedBytes) + 2);
    const std::string body = head.substr(headerEnd);
    const std::pair<const char *, std::string> headers[] = {
        {"v017", head.substr(0, headerEnd)}, {"v011", "\"v011 - an older map\""}, {"old", "\"an old map\""}};
    for (const auto &[version, header] : headers)
        for (const char *target : {"map_load_fuzz", "map_merge_fuzz"})
            corpus.add(target, name + "-" + version, header + body);
}

std::string smallMapFile(const fs::path &scratch)
{
    auto world = std::make_unique<World>();
    fuzz::buildSmallMap(*world);
    FileError error;
    if (!writeMapFile(scratch.string(), *world, 7, error)) {
        std::cerr << "make_fuzz_seeds: " << error.describe() << '\n';
        std::exit(1);
    }
    std::string bytes = fileBytes(scratch);
    fs::remove(scratch);
    return bytes;
}

void addOptionsSeeds(Corpus &corpus)
{
    ProgramState state;
    corpus.add("options_fuzz", "defaults", optionsFileText(state));
    Options &o = state.options;
    o.importMap = o.importShops = o.importHides = o.importDungeons = o.extra = false;
    o.loadLock = o.lmol = true;
    o.graphicsSetName = "winter";
    o.wmol = "/home/player/maps/game 7.om1";
    o.lastImp = "/home/player/turns/";
    o.lastFile = "/home/player/maps/";
    state.view.viewLeft = 120;
    state.view.viewTop = 35;
    corpus.add("options_fuzz", "changed", optionsFileText(state));
}

void addRouteSeeds(Corpus &corpus)
{
    auto world = std::make_unique<World>();
    fuzz::buildSmallMap(*world);
    const std::vector<std::string> boxes = routeBoxItems(*world);
    for (std::size_t a = 0; a < boxes.size(); ++a)
        for (std::size_t b = 0; b < boxes.size(); ++b)
            corpus.add("route_fuzz", std::to_string(a + 1) + "-" + std::to_string(b + 1),
                       boxes[a] + std::string(fuzz::kPartSeparator) + boxes[b]);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "usage: make_fuzz_seeds SOURCE_FOLDER CORPUS_FOLDER\n";
        return 2;
    }
    const fs::path source = argv[1];
    Corpus corpus(argv[2]);

    addMapSeeds(corpus, "example", fileBytes(source / "examples" / "example.om1"));
    addMapSeeds(corpus, "small", smallMapFile(fs::path(argv[2]) / "small.om1"));
    addOptionsSeeds(corpus);
    for (const fs::directory_entry &report : fs::directory_iterator(source / "tests" / "data" / "reports"))
        corpus.add("report_fuzz", report.path().filename().string(), fileBytes(report.path()));
    const fs::path questor = source / "tests" / "data" / "questor";
    corpus.add("questor_fuzz", "sample",
               fileBytes(questor / "sample.mp1") + std::string(fuzz::kPartSeparator) +
                   fileBytes(questor / "sample.mp2"));
    addRouteSeeds(corpus);
    return 0;
}
