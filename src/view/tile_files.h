#pragma once

#include <string>

namespace wayscribe {

enum class TileSize { Large, Small };

// "l_" or "s_" + the terrain's name in lower case + ".bmp"; Heavy Forest alone
// is "hforest". Code 1..18.
std::string tileFileName(int code, TileSize size);

// graphicsFolder + "/" + setName + "/" + tileFileName(code, size).
std::string tilePath(const std::string &graphicsFolder, const std::string &setName, int code, TileSize size);

// A tile set can be chosen when its "l_barren.bmp" is there; the other tiles of
// the set are not looked at.
bool tileSetAvailable(const std::string &graphicsFolder, const std::string &setName);

} // namespace wayscribe
