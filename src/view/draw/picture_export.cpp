#include "view/draw/picture_export.h"

#include "model/file_paths.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/world.h"
#include "view/draw/png_file.h"

#include <algorithm>
#include <cctype>

namespace wayscribe {

namespace {

constexpr const char *kTitle = "Export Map Picture";

bool endsWithPng(const std::string &path)
{
    std::string end = path.size() >= 4 ? path.substr(path.size() - 4) : std::string();
    std::transform(end.begin(), end.end(), end.begin(), [](unsigned char c) { return std::tolower(c); });
    return end == ".png";
}

// The map's own name with the picture's extension, beside the map.
FileDialogRequest pictureRequest(const std::string &mapFile)
{
    const std::string folder = folderPart(mapFile);
    std::string name = mapFile.substr(folder.size());
    name = name.substr(0, name.rfind('.'));
    if (name.empty())
        name = "map";
    return {kTitle, "PNG Pictures (*.png)|*.png", folder, name + ".png"};
}

} // namespace

SectorArea exportArea(const ViewState &view, ExportPart part)
{
    if (part == ExportPart::WholeWorld)
        return {1, 1, kMapSize, kMapSize};
    return {view.viewLeft + 1, view.viewTop + 1, std::min<int>(view.viewCols, kMapSize - view.viewLeft),
            std::min<int>(view.viewRows, kMapSize - view.viewTop)};
}

void exportMapPicture(const World &world, const ProgramState &state, const TileSheet &sheet,
                      Platform &platform, ExportPart part)
{
    std::string path = platform.chooseSaveFile(pictureRequest(state.document.mapFileName));
    if (path.empty())
        return;
    if (!endsWithPng(path))
        path += ".png";
    if (fileExists(path) && platform.message(path + " already exists. Do you want to replace it?", kTitle,
                                             MessageButtons::YesNo, MessageIcon::Question) != Answer::Yes)
        return;
    platform.setWaitCursor(true);
    std::string reason;
    const bool written =
        writePngFile(areaPicture(world, state, sheet, exportArea(state.view, part)), path, reason);
    platform.setWaitCursor(false);
    if (written)
        platform.setStatus("Map picture written to " + path);
    else
        platform.message("The map picture could not be written to " + path + ".", kTitle, MessageButtons::Ok,
                         MessageIcon::Exclamation, reason);
}

} // namespace wayscribe
