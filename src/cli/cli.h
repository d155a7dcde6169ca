#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace wayscribe {
class World;
}

namespace wayscribe::cli {

inline constexpr int kOk = 0;
inline constexpr int kInputError = 1;
inline constexpr int kUsageError = 2;

using Args = std::vector<std::string>;

// Splits "--name value" options from the positional arguments. Returns false
// (after a message) on an unknown option or one without its value.
struct ParsedArgs {
    std::vector<std::string> positional;
    std::vector<std::pair<std::string, std::string>> options;
    const std::string *option(const std::string &name) const;
};
bool parseArgs(const Args &args, const std::vector<std::string> &known, ParsedArgs &out, std::ostream &err);

// Reads a map file into `world`; says which file and line when it cannot
// (the command then exits with kInputError). `version` receives the file's
// format version when asked for.
bool loadMap(const std::string &path, World &world, std::uint8_t &gameNumber, std::ostream &err,
             int *version = nullptr);

// Writes a text with its CR LF line breaks as LF.
void writeWithUnixLineEnds(std::ostream &out, const std::string &text);

} // namespace wayscribe::cli
