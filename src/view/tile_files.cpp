#include "view/tile_files.h"

#include "model/terrain.h"
#include "model/text.h"

#include <filesystem>

namespace wayscribe {

std::string tileFileName(int code, TileSize size)
{
    const std::string name =
        code == kHeavyForest ? std::string("hforest") : changeCase(terrainName(code), false);
    return (size == TileSize::Large ? "l_" : "s_") + name + ".bmp";
}

std::string tilePath(const std::string &graphicsFolder, const std::string &setName, int code, TileSize size)
{
    return graphicsFolder + "/" + setName + "/" + tileFileName(code, size);
}

bool tileSetAvailable(const std::string &graphicsFolder, const std::string &setName)
{
    std::error_code ec;
    return std::filesystem::is_regular_file(tilePath(graphicsFolder, setName, kBarren, TileSize::Large), ec);
}

} // namespace wayscribe
