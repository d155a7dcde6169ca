// objects: the objects database's list from the command line.
#include "cli/cli_platform.h"
#include "cli/command_registry.h"
#include "cli/list_output.h"

#include "model/world.h"
#include "settlements/objects_database.h"
#include "storage/map_file.h"

#include <memory>
#include <optional>

namespace wayscribe::cli {

namespace {

std::optional<bool> yesNo(const std::string &text)
{
    if (text == "yes")
        return true;
    if (text == "no")
        return false;
    return std::nullopt;
}

std::optional<ObjectsMode> mode(const std::string &text)
{
    if (text == "all")
        return ObjectsMode::All;
    if (text == "cheapest")
        return ObjectsMode::Cheapest;
    if (text == "dearest")
        return ObjectsMode::Dearest;
    return std::nullopt;
}

} // namespace

// The window's filters as options, starting as the window does (cheapest,
// zero cost and once checked); the cheapest and dearest modes keep zero cost
// whatever --zero-cost says, as the window's box does. --sort clicks a
// column header after the fill. The messages of the fill go to standard
// error; a fill the unknown error stopped prints the rows it made.
static int runObjects(const Args &args, std::ostream &out, std::ostream &err)
{
    ObjectsFilters filters;
    std::vector<std::string> positional, sorts;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string &a = args[i];
        const std::string *value = i + 1 < args.size() ? &args[i + 1] : nullptr;
        std::optional<bool> flag;
        std::optional<ObjectsMode> chosen;
        if (a == "--no-villages") {
            filters.noVillages = true;
        } else if (a == "--no-towns") {
            filters.noTowns = true;
        } else if (a == "--no-cities") {
            filters.noCities = true;
        } else if (a == "--mode" && value && (chosen = mode(*value))) {
            filters.mode = *chosen;
            ++i;
        } else if (a == "--zero-cost" && value && (flag = yesNo(*value))) {
            filters.zeroCost = *flag;
            ++i;
        } else if (a == "--once" && value && (flag = yesNo(*value))) {
            filters.oneOfEach = *flag;
            ++i;
        } else if (a == "--sort" && value) {
            sorts.push_back(*value);
            ++i;
        } else if (a.size() > 2 && a.compare(0, 2, "--") == 0) {
            err << "wayscribe-cli: unknown option, or missing or wrong value: " << a << '\n';
            return kUsageError;
        } else {
            positional.push_back(a);
        }
    }
    if (positional.size() != 1)
        return kUsageError;

    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(positional[0], *world, game, err))
        return kInputError;
    CliPlatform platform(err);
    ReportTable table = objectsTable(*world);
    List_Update_All(table, *world, filters, platform);
    if (!applySortClicks(table, sorts, err))
        return kUsageError;
    writeListRows(out, table);
    return kOk;
}

const CommandRegistration objectsCommand("objects",
                                         "objects MAP [--mode all|cheapest|dearest] [--zero-cost yes|no] "
                                         "[--once yes|no] [--no-villages] [--no-towns] [--no-cities] "
                                         "[--sort C]...",
                                         runObjects);

} // namespace wayscribe::cli
