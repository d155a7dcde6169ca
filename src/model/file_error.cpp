#include "model/file_error.h"

namespace wayscribe {

std::string FileError::describe() const
{
    if (line > 0)
        return path + ", line " + std::to_string(line) + ": " + reason;
    return path + ": " + reason;
}

} // namespace wayscribe
