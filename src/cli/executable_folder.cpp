#include "cli/executable_folder.h"

#include "model/graphics_folder.h"

#include <filesystem>

namespace wayscribe::cli {

std::string executableFolder()
{
    std::error_code ec;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::string() : program.parent_path().string();
}

std::string graphicsFolder()
{
    return findGraphicsFolder(executableFolder()).path;
}

} // namespace wayscribe::cli
