#include "model/graphics_folder.h"

#include <filesystem>

// WAYSCRIBE_GRAPHICS_FROM_BIN (the installed graphics folder as seen from the
// installed executables) and WAYSCRIBE_INSTALLED_GRAPHICS (its full path) come
// from the build's install folders.

namespace wayscribe {

GraphicsFolder findGraphicsFolder(const std::string &programFolder)
{
    namespace fs = std::filesystem;
    const fs::path program(programFolder);
    const fs::path beside = program / "graphics";
    std::error_code ec;
    if (fs::is_directory(beside, ec))
        return {beside.string(), true};
    for (const fs::path &installed :
         {(program / WAYSCRIBE_GRAPHICS_FROM_BIN).lexically_normal(), fs::path(WAYSCRIBE_INSTALLED_GRAPHICS)})
        if (fs::is_directory(installed, ec))
            return {installed.string(), false};
    return {beside.string(), true};
}

} // namespace wayscribe
