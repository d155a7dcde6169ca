// path: the movement point counter and its "M" orders from the command line.
#include "cli/cli_platform.h"
#include "cli/command_registry.h"

#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "view/movement_counter.h"
#include "view/movement_orders.h"

#include <array>
#include <charconv>
#include <memory>
#include <optional>
#include <string_view>

namespace wayscribe::cli {

namespace {

// A map click of the counter: a left click on a sector, or a right click.
struct PathStep {
    bool back = false;
    int x = 0, y = 0;
};

std::optional<int> sectorNumber(std::string_view text)
{
    int v = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || end != text.data() + text.size() || !isSectorIndex(v))
        return std::nullopt;
    return v;
}

// "X,Y" or "back".
std::optional<PathStep> parseStep(std::string_view text)
{
    if (text == "back")
        return PathStep{true};
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    const auto x = sectorNumber(text.substr(0, comma)), y = sectorNumber(text.substr(comma + 1));
    if (!x || !y)
        return std::nullopt;
    return PathStep{false, *x, *y};
}

// The counter's mode for each way of travelling, walking first.
constexpr std::array<std::string_view, 5> kMounts = {"walk", "arabians", "mules", "drafts", "flying"};

std::optional<std::int16_t> parseMount(const std::string *name)
{
    if (!name)
        return 0;
    for (std::size_t mode = 0; mode < kMounts.size(); ++mode)
        if (*name == kMounts[mode])
            return static_cast<std::int16_t>(mode);
    return std::nullopt;
}

} // namespace

static int runPath(const Args &args, std::ostream &out, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--mount"}, p, err) || p.positional.empty())
        return kUsageError;
    const std::optional<std::int16_t> mode = parseMount(p.option("--mount"));
    if (!mode)
        return kUsageError;
    std::vector<PathStep> steps;
    for (std::size_t i = 1; i < p.positional.size(); ++i) {
        const std::optional<PathStep> step = parseStep(p.positional[i]);
        if (!step)
            return kUsageError;
        steps.push_back(*step);
    }

    auto world = std::make_unique<World>();
    ProgramState state;
    if (!loadMap(p.positional[0], *world, state.document.gameNumber, err))
        return kInputError;
    setMovementCounter(*world, state.movement, true);
    state.movement.moveMode = *mode;
    for (const PathStep &step : steps) {
        if (step.back)
            takeBackPathSquare(*world, state);
        else
            addPathSquare(*world, state, step.x, step.y);
    }

    CliPlatform platform(err);
    const std::optional<std::string> orders = copyMovementOrders(state.movement, platform);
    out << "Movement points: " << formatPlain(state.movement.moveTotal) << '\n'
        << "Squares: " << formatPlain(state.movement.moveSteps) << '\n';
    if (orders && !orders->empty()) {
        writeWithUnixLineEnds(out, *orders);
        out << '\n';
    }
    return kOk;
}

const CommandRegistration pathCommand("path", "path MAP [--mount walk|arabians|mules|drafts|flying] STEP...",
                                      runPath);

} // namespace wayscribe::cli
