#include "model/file_paths.h"

#include <sys/stat.h>

namespace wayscribe {

std::string folderPart(const std::string &path)
{
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

bool fileExists(const std::string &path)
{
    // Looked up, never opened: opening a pipe would wait for a writer.
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0;
}

} // namespace wayscribe
