#include "storage/map_file_versions.h"

#include "model/world.h"

#include <cstdio>

namespace wayscribe::test {

std::vector<std::string> mapFileLines(const std::string &bytes)
{
    std::vector<std::string> lines;
    std::size_t at = 0;
    while (at < bytes.size()) {
        std::size_t end = bytes.find("\r\n", at);
        if (end == std::string::npos)
            end = bytes.size();
        lines.push_back(bytes.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

std::string downgradeMapFile(const std::string &v17, int version)
{
    const std::vector<std::string> in = mapFileLines(v17);
    std::vector<std::string> out;
    std::size_t i = 0;
    char header[16];
    std::snprintf(header, sizeof header, "\"v%03d", version);
    out.push_back(version == 0 ? std::string("\"an old map\"") : header + in[i].substr(5));
    ++i;
    out.push_back(in[i++]);
    for (int s = 0; s < kMapSize * kMapSize * 4; ++s)
        out.push_back(in[i++]);
    const int shopLines = 1 + 3 * kItemsPerShop;
    for (int n = 1; n <= kMaxSettlements; ++n) {
        for (int k = 0; k < 3; ++k)
            out.push_back(in[i++]);
        if (version >= 17)
            out.push_back(in[i]);
        ++i;
        for (int s = 0; s <= kMaxShop; ++s)
            for (int k = 0; k < shopLines; ++k, ++i)
                if (version >= 10 || (s >= 1 && s <= 99))
                    out.push_back(in[i]);
    }
    if (version >= 11)
        for (; i < in.size(); ++i)
            out.push_back(in[i]);
    std::string bytes;
    for (const std::string &line : out)
        bytes += line + "\r\n";
    return bytes;
}

} // namespace wayscribe::test
