#pragma once

#include <string>

namespace wayscribe {

// Everything up to and including the last folder separator of a path; both
// separators count, as stored options may hold either.
std::string folderPart(const std::string &path);

bool fileExists(const std::string &path);

} // namespace wayscribe
