// dungeons: the dungeon list from the command line.
#include "cli/command_registry.h"
#include "cli/list_output.h"

#include "dungeons/dungeon_list.h"
#include "model/world.h"
#include "storage/map_file.h"

#include <memory>

namespace wayscribe::cli {

static int runDungeons(const Args &args, std::ostream &out, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--sort"}, p, err) || p.positional.size() != 1)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(p.positional[0], *world, game, err))
        return kInputError;
    ReportTable table = dungeonListTable(*world);
    fillDungeonList(table, *world);
    if (!applySortClicks(table, sortOptionValues(p), err))
        return kUsageError;
    writeListRows(out, table);
    return kOk;
}

const CommandRegistration dungeonsCommand("dungeons", "dungeons MAP [--sort C]...", runDungeons);

} // namespace wayscribe::cli
