// The QuestOR import of a full map (160 settlements with 15 shops of 20
// items each, every tenth item special), against just reading its two files.
#include "support/questor_writer.h"

#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/world.h"
#include "storage/questor_import.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

using namespace wayscribe;

namespace {

constexpr int kShopsPerSettlement = 15;

struct FullQuestorMap {
    std::string mp1Path, mp2Path;

    FullQuestorMap()
    {
        test::QuestorMapWriter mp1;
        for (int x = 1; x <= kMapSize; ++x)
            mp1.run(kMapSize / 2, 1).run(kMapSize / 2, x % 18);
        mp1.value(0).value(0);
        test::QuestorNamesWriter mp2;
        mp2.specialSection = true;
        int special = 0;
        for (int n = 1; n <= kMaxSettlements; ++n) {
            mp1.nameIndex(n).at(n, n).settlement(n);
            mp2.settlementNames.push_back("Settlement " + std::to_string(n));
            mp2.notes.push_back({n, n, "Note of settlement " + std::to_string(n)});
            for (int s = 0; s < kShopsPerSettlement; ++s) {
                mp1.shop(20 + s).shopNameIndex(static_cast<int>(mp2.shopNames.size()) + 1);
                mp2.shopNames.push_back("Shop " + std::to_string(mp2.shopNames.size() + 1));
                for (int i = 1; i <= kItemsPerShop; ++i) {
                    if (i % 10 == 0) {
                        mp1.item(310 + i % 8, 1000 + i, ++special);
                        mp2.specialNames.push_back("Special " + std::to_string(special));
                    } else {
                        mp1.item(101 + (n * i) % 200, 10 * i); // below the special numbers
                    }
                }
            }
        }
        for (int k = kQuestorFirstItem; k <= kQuestorLastItem; ++k)
            mp2.itemNames[k] = "Item " + std::to_string(k);
        const auto dir = std::filesystem::temp_directory_path();
        mp1Path = (dir / "wayscribe-bench-questor.mp1").string();
        mp2Path = (dir / "wayscribe-bench-questor.mp2").string();
        std::ofstream(mp1Path, std::ios::binary) << mp1.bytes();
        std::ofstream(mp2Path, std::ios::binary) << mp2.text();
    }
    ~FullQuestorMap()
    {
        std::filesystem::remove(mp1Path);
        std::filesystem::remove(mp2Path);
    }
};

const FullQuestorMap &fullMap()
{
    static const FullQuestorMap map;
    return map;
}

void BM_ImportFullQuestorMap(benchmark::State &bench)
{
    const FullQuestorMap &files = fullMap();
    auto world = std::make_unique<World>();
    ProgramState state;
    QuietPlatform platform;
    for (auto _ : bench) {
        const QuestorImportResult result = readQuestorMap(files.mp1Path, *world, state, platform);
        if (!result.ok)
            bench.SkipWithError(result.error.describe().c_str());
    }
}
BENCHMARK(BM_ImportFullQuestorMap)->Unit(benchmark::kMillisecond);

// The reference: reading the same two files into memory and nothing more.
void BM_ReadQuestorFilesOnly(benchmark::State &bench)
{
    const FullQuestorMap &files = fullMap();
    for (auto _ : bench) {
        for (const std::string &path : {files.mp1Path, files.mp2Path}) {
            std::ifstream in(path, std::ios::binary);
            std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            benchmark::DoNotOptimize(bytes.data());
        }
    }
}
BENCHMARK(BM_ReadQuestorFilesOnly)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
