// convert, merge, stats and info: the map file commands.
#include "cli/command_registry.h"

#include "model/terrain.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/map_merge.h"
#include "view/map_statistics.h"

#include <memory>

namespace wayscribe::cli {

namespace {

bool save(const std::string &path, const World &world, std::uint8_t gameNumber, std::ostream &err)
{
    FileError error;
    if (writeMapFile(path, world, gameNumber, error))
        return true;
    err << "wayscribe-cli: cannot save map " << error.describe() << '\n';
    return false;
}

} // namespace

static int runConvert(const Args &args, std::ostream &, std::ostream &err)
{
    if (args.size() != 2)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(args[0], *world, game, err))
        return kInputError;
    return save(args[1], *world, game, err) ? kOk : kInputError;
}

static int runMerge(const Args &args, std::ostream &, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--out"}, p, err) || p.positional.size() != 2 || !p.option("--out"))
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(p.positional[0], *world, game, err))
        return kInputError;
    const MapReadResult r = mergeMapFile(p.positional[1], *world, game);
    if (!r.ok) {
        err << "There was an unknown error merging the map.\n" << r.error.describe() << '\n';
        return kInputError;
    }
    return save(*p.option("--out"), *world, game, err) ? kOk : kInputError;
}

static int runStats(const Args &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 1)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(args[0], *world, game, err))
        return kInputError;
    writeWithUnixLineEnds(out, mapStatisticsText(*world));
    out << '\n';
    return kOk;
}

static int runInfo(const Args &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 1)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    int version = 0;
    if (!loadMap(args[0], *world, game, err, &version))
        return kInputError;
    int known = 0, notes = 0, settlements = 0, shops = 0, items = 0, dungeons = 0;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            known += world->sector(x, y).terrain != kUnknown;
            notes += !world->sector(x, y).note.empty();
        }
    for (int n = 1; n <= kMaxSettlements; ++n) {
        settlements += world->settlement(n).inUse == 1;
        for (int s = 0; s <= kMaxShop; ++s) {
            // A shop exists when its name holds more than blanks.
            shops += world->shopName(n, s).find_first_not_of(' ') != std::string_view::npos;
            for (int i = 1; i <= kItemsPerShop; ++i)
                items += !world->item(n, s, i, ItemField::Name).empty();
        }
    }
    for (int d = 1; d <= kMaxDungeons; ++d)
        dungeons += !world->dungeon(d).name.empty();
    out << "format version: " << version << '\n'
        << "game number: " << int(game) << '\n'
        << "known sectors: " << known << '\n'
        << "settlements: " << settlements << '\n'
        << "shops: " << shops << '\n'
        << "items: " << items << '\n'
        << "notes: " << notes << '\n'
        << "dungeons: " << dungeons << '\n';
    return kOk;
}

const CommandRegistration convertCommand("convert", "convert MAP OUT", runConvert);
const CommandRegistration mergeCommand("merge", "merge MAP OTHER --out OUT", runMerge);
const CommandRegistration statsCommand("stats", "stats MAP", runStats);
const CommandRegistration infoCommand("info", "info MAP", runInfo);

} // namespace wayscribe::cli
