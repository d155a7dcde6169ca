#pragma once

#include <string>

namespace wayscribe::cli {

// The folder the running program file lies in, without a trailing '/'; the
// program's pictures are in its "graphics" folder. Empty when it cannot be told.
std::string executableFolder();

} // namespace wayscribe::cli
