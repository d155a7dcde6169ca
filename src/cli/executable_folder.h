#pragma once

#include <string>

namespace wayscribe::cli {

// The folder the running program file lies in, without a trailing '/'. Empty
// when it cannot be told.
std::string executableFolder();

// The folder of the program's pictures, found from executableFolder() as the
// desktop program finds its own.
std::string graphicsFolder();

} // namespace wayscribe::cli
