// settlements: the settlement list from the command line.
#include "cli/command_registry.h"
#include "cli/list_output.h"

#include "model/world.h"
#include "settlements/settlement_list.h"
#include "storage/map_file.h"

#include <memory>

namespace wayscribe::cli {

// Every settlement in use: name as stored, number, shops, X and Y; --sort
// clicks a column header after the fill.
static int runSettlements(const Args &args, std::ostream &out, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--sort"}, p, err) || p.positional.size() != 1)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(p.positional[0], *world, game, err))
        return kInputError;
    ReportTable table = settlementListTable(*world);
    List_Update_All(table, *world);
    if (!applySortClicks(table, sortOptionValues(p), err))
        return kUsageError;
    writeListRows(out, table);
    return kOk;
}

const CommandRegistration settlementsCommand("settlements", "settlements MAP [--sort C]...", runSettlements);

} // namespace wayscribe::cli
