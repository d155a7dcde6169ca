#pragma once

#include <string>

namespace wayscribe {

// Where and why reading or writing a file failed, for the person to read.
struct FileError {
    std::string path;
    long line = 0; // 0 when the failure has no line (cannot open, cannot write)
    std::string reason;

    // "<path>, line <n>: <reason>" or "<path>: <reason>"
    std::string describe() const;
};

} // namespace wayscribe
