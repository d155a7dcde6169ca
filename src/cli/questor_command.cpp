// questor: imports a QuestOR map into a map file.
#include "cli/cli_platform.h"
#include "cli/command_registry.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "storage/questor_import.h"

#include <memory>

namespace wayscribe::cli {

// A QuestOR map that cannot be read completely writes no output: a map with
// part of an import in it is not what the person asked for, and the other
// commands leave no output behind on bad input either.
static int runQuestor(const Args &args, std::ostream &, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--map", "--out"}, p, err) || p.positional.size() != 1 || !p.option("--out"))
        return kUsageError;
    auto world = std::make_unique<World>();
    ProgramState state;
    if (const std::string *map = p.option("--map")) {
        if (!loadMap(*map, *world, state.document.gameNumber, err))
            return kInputError;
    }
    CliPlatform platform(err);
    const QuestorImportResult result = readQuestorMap(p.positional[0], *world, state, platform);
    if (!result.ok) {
        err << "wayscribe-cli: cannot import QuestOR map " << result.error.describe() << '\n';
        return kInputError;
    }
    FileError error;
    if (!writeMapFile(*p.option("--out"), *world, state.document.gameNumber, error)) {
        err << "wayscribe-cli: cannot save map " << error.describe() << '\n';
        return kInputError;
    }
    return kOk;
}

const CommandRegistration questorCommand("questor", "questor [--map MAP] --out OUT FILE.mp1", runQuestor);

} // namespace wayscribe::cli
