// route: the travel agency's search from the command line.
#include "cli/cli_platform.h"
#include "cli/command_registry.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "travel/route_finder.h"

#include <memory>

namespace wayscribe::cli {

// FROM and TO are the texts of the window's two boxes, such as "Oakvale (12)".
static int runRoute(const Args &args, std::ostream &out, std::ostream &err)
{
    if (args.size() != 3)
        return kUsageError;
    auto world = std::make_unique<World>();
    std::uint8_t game = 0;
    if (!loadMap(args[0], *world, game, err))
        return kInputError;
    ProgramState state;
    CliPlatform platform(err);
    const std::optional<std::string> text = findRoutes(*world, state, platform, args[1], args[2]);
    // No search: an empty box, which the window ignores without a word, or a
    // malformed one, whose message is on standard error.
    if (!text)
        return platform.messageCount() == 0 ? kOk : kInputError;
    writeWithUnixLineEnds(out, *text);
    if (text->empty() || text->back() != '\n')
        out << '\n';
    return kOk;
}

const CommandRegistration routeCommand("route", "route MAP FROM TO", runRoute);

} // namespace wayscribe::cli
