#include "cli/cli.h"

#include "storage/map_file.h"

namespace wayscribe::cli {

bool loadMap(const std::string &path, World &world, std::uint8_t &gameNumber, std::ostream &err, int *version)
{
    const MapReadResult r = readMapFile(path, world, gameNumber);
    if (!r.ok) {
        err << "wayscribe-cli: cannot read map " << r.error.describe() << '\n';
        return false;
    }
    if (version)
        *version = r.version;
    return true;
}

} // namespace wayscribe::cli
