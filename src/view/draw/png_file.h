#pragma once

#include <string>

class QImage;

namespace wayscribe {

// Writes `picture` as a PNG file at `path`. The picture is encoded in memory
// and written beside the target, which it replaces only once every byte is
// on the disk: a failed write leaves an older file as it was. False with the
// reason on failure.
bool writePngFile(const QImage &picture, const std::string &path, std::string &reason);

} // namespace wayscribe
