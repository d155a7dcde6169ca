// The map file reader on any bytes, into an empty map.
#include "fuzz/fuzz_input.h"
#include "fuzz/fuzz_maps.h"

#include "storage/map_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace wayscribe;
    const std::string_view bytes = fuzz::inputBytes(data, size);
    const std::string path = fuzz::writeInputFile("map.om1", bytes);
    std::uint8_t gameNumber = 0;
    const MapReadResult result = readMapFile(path, fuzz::emptiedMap(), gameNumber);
    if (!result.ok)
        fuzz::expectNamedLine(result.error, path, bytes);
    return 0;
}
