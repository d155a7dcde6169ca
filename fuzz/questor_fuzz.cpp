// The QuestOR import on any pair of files: the input is the .mp1 file, the
// separator, then the .mp2 file. A fresh map each run, since the import
// keeps name indexes in the map that a new map does not clear.
#include "fuzz/fuzz_input.h"

#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/world.h"
#include "storage/questor_import.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace wayscribe;
    const auto [mapBytes, namesBytes] = fuzz::splitInput(fuzz::inputBytes(data, size));
    const std::string mapPath = fuzz::writeInputFile("map.mp1", mapBytes);
    const std::string namesPath = fuzz::writeInputFile("map.mp2", namesBytes);
    auto world = std::make_unique<World>();
    ProgramState state;
    QuietPlatform platform;
    const QuestorImportResult result = readQuestorMap(mapPath, *world, state, platform);
    if (!result.ok) {
        const QuestorError &e = result.error;
        fuzz::expect(e.path == mapPath || e.path == namesPath, "the complaint names another file");
        fuzz::expect(!e.place.empty(), "the complaint names no place in the file");
        fuzz::expect(!e.reason.empty(), "the complaint gives no reason");
    }
    return 0;
}
