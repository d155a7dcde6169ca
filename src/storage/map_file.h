#pragma once

#include "model/file_error.h"
#include "storage/atomic_file.h"

#include <cstdint>
#include <functional>
#include <string>

namespace wayscribe {

class World;
class MapLineReader;

inline constexpr const char *kMapFileHeader =
    "v017 - This is a saved map file for the Wayscribe. Do *not* edit this file yourself!";
inline constexpr int kWrittenMapVersion = 17;

struct MapReadResult {
    bool ok = true;
    int version = 0;
    FileError error;
};

// Reads a map file of any format version into the model without clearing it
// first: every field the file's version carries is overwritten, the rest
// keep their contents. Reading stops at the first bad line; what was read
// before it stays.
MapReadResult readMapFile(const std::string &path, World &world, std::uint8_t &gameNumber);

// Opens a map file, recognises its format version from the header and hands
// the rest of the file to `body`, which returns false where it had to stop.
MapReadResult readMapFileWith(const std::string &path,
                              const std::function<bool(MapLineReader &in, int version)> &body);

// Writes the model as a format 17 map file. The file is written beside the
// target and renamed over it, so a failed save leaves the old file as it was.
// A read-only target is refused unless the person agreed to replace it.
bool writeMapFile(const std::string &path, const World &world, std::uint8_t gameNumber, FileError &error,
                  ReadOnlyTarget readOnly = ReadOnlyTarget::Refuse);

} // namespace wayscribe
