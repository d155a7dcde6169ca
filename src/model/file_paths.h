#pragma once

#include <string>

namespace wayscribe {

// Everything up to and including the last folder separator of a path; both
// separators count, as stored options may hold either.
std::string folderPart(const std::string &path);

// Whether anything of that name is there, of whatever kind: the readers
// say when it is no file they can read.
bool fileExists(const std::string &path);

} // namespace wayscribe
