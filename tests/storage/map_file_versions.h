#pragma once

#include <string>
#include <vector>

namespace wayscribe::test {

// Rewrites a format 17 map file as an older layout: 11..16 lose the
// city-state lines, 10 also the dungeon block, 0 (no recognised header) also
// shops 0 and 100..110. Used to check the readers of older files.
std::string downgradeMapFile(const std::string &v17, int version);

// Splits a file's text into its CR LF lines.
std::vector<std::string> mapFileLines(const std::string &bytes);

} // namespace wayscribe::test
