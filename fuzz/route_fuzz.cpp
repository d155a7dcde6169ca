// The travel agency on any two box texts (the input is the From text, the
// separator, then the To text) over a small fixed map.
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_maps.h"

#include "model/program_state.h"
#include "model/quiet_platform.h"
#include "model/world.h"
#include "travel/route_finder.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace wayscribe;
    // The search only reads the map, so one map serves every run.
    static const std::unique_ptr<World> map = [] {
        auto world = std::make_unique<World>();
        fuzz::buildSmallMap(*world);
        return world;
    }();
    const auto [from, to] = fuzz::splitInput(fuzz::inputBytes(data, size));
    ProgramState state;
    QuietPlatform platform;
    findRoutes(*map, state, platform, std::string(from), std::string(to));
    fuzz::expect(state.document.fileBusy == 0, "the search left the map busy");
    return 0;
}
