// render: the whole world as the map view draws it, in one picture file.
#include "cli/command_registry.h"
#include "cli/executable_folder.h"

#include "model/program_state.h"
#include "model/world.h"
#include "storage/map_file.h"
#include "view/draw/map_drawing.h"
#include "view/draw/png_file.h"
#include "view/draw/tile_sheet.h"

#include <QImage>

#include <memory>

namespace wayscribe::cli {

static int runRender(const Args &args, std::ostream &, std::ostream &err)
{
    ParsedArgs p;
    if (!parseArgs(args, {"--out", "--set", "--graphics"}, p, err) || p.positional.size() != 1 ||
        !p.option("--out"))
        return kUsageError;
    const std::string &out = *p.option("--out");
    ProgramState state; // Extra on, no movement path: what a freshly opened map shows
    if (const std::string *set = p.option("--set"))
        state.options.graphicsSetName = *set;
    const std::string graphics = p.option("--graphics") ? *p.option("--graphics") : graphicsFolder();

    auto world = std::make_unique<World>();
    if (!loadMap(p.positional[0], *world, state.document.gameNumber, err))
        return kInputError;
    TileSheet sheet;
    for (const std::string &error :
         {sheet.loadTileSet(graphics, state.options.graphicsSetName), sheet.loadMarkers(graphics)})
        if (!error.empty()) {
            err << "wayscribe-cli: " << error << '\n';
            return kInputError;
        }

    std::string reason;
    if (!writePngFile(areaPicture(*world, state, sheet, {1, 1, kMapSize, kMapSize}), out, reason)) {
        err << "wayscribe-cli: cannot write picture " << out << ": " << reason << '\n';
        return kInputError;
    }
    return kOk;
}

const CommandRegistration renderCommand("render", "render MAP --out PNG [--set NAME] [--graphics DIR]",
                                        runRender);

} // namespace wayscribe::cli
