// generate: writes a made-up world of a long-played game, for trying the
// program out and for measuring it.
#include "cli/command_registry.h"

#include "model/world.h"
#include "sample/world_generator.h"
#include "storage/map_file.h"

#include <memory>

namespace wayscribe::cli {

namespace {

// A seed is a plain decimal number; anything else is a usage error.
bool parseSeed(const std::string &text, std::uint64_t &seed)
{
    if (text.empty() || text.size() > 19 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    seed = std::stoull(text);
    return true;
}

} // namespace

static int runGenerate(const Args &args, std::ostream &, std::ostream &err)
{
    // "--full" is a flag without a value; the shared parser takes only
    // options with values, so it is taken out first.
    Args rest;
    GeneratorSettings settings;
    for (const std::string &a : args) {
        if (a == "--full")
            settings.fullTables = true;
        else
            rest.push_back(a);
    }
    ParsedArgs p;
    if (!parseArgs(rest, {"--seed", "--out"}, p, err) || !p.positional.empty() || !p.option("--out"))
        return kUsageError;
    if (const std::string *seed = p.option("--seed"); seed && !parseSeed(*seed, settings.seed)) {
        err << "wayscribe-cli: the seed \"" << *seed << "\" is not a whole number\n";
        return kUsageError;
    }
    auto world = std::make_unique<World>();
    std::uint8_t gameNumber = 0;
    generateWorld(*world, gameNumber, settings);
    FileError error;
    if (!writeMapFile(*p.option("--out"), *world, gameNumber, error)) {
        err << "wayscribe-cli: cannot save map " << error.describe() << '\n';
        return kInputError;
    }
    return kOk;
}

const CommandRegistration generateCommand("generate", "generate [--seed N] [--full] --out OUT", runGenerate);

} // namespace wayscribe::cli
