#include "storage/map_merge.h"

#include "model/terrain.h"
#include "model/world.h"
#include "storage/line_reader.h"
#include "storage/map_fields.h"

namespace wayscribe {

namespace {

// Reads a value and takes it where `unknown` says the model's own tells
// nothing yet.
template <class T, class Unknown>
bool mergeValue(MapLineReader &in, T &current, bool (MapLineReader::*read)(T &), Unknown unknown)
{
    T value{};
    if (!(in.*read)(value))
        return false;
    if (unknown(current, value))
        current = std::move(value);
    return true;
}

// Merging: a value of the file is taken only where the model knows nothing
// yet.
class MergeFields {
public:
    explicit MergeFields(World &world) : world_(world) {}

    bool terrain(MapLineReader &in, std::uint8_t &current)
    {
        return mergeValue(in, current, &MapLineReader::readByte, [](auto c, auto) { return c == kUnknown; });
    }
    bool number(MapLineReader &in, std::uint8_t &current)
    {
        return mergeValue(in, current, &MapLineReader::readByte, [](auto c, auto) { return c == 0; });
    }
    bool text(MapLineReader &in, std::string &current, bool escaped)
    {
        return mergeValue(in, current, escaped ? &MapLineReader::readEscapedText : &MapLineReader::readText,
                          [](const std::string &c, const std::string &) { return c.empty(); });
    }
    bool settlementName(MapLineReader &in, std::string &current)
    {
        return mergeValue(
            in, current, &MapLineReader::readText,
            [](const std::string &c, const std::string &) { return c.empty() || c == "Unknown"; });
    }
    // A larger level count wins.
    bool levels(MapLineReader &in, std::int16_t &current)
    {
        return mergeValue(in, current, &MapLineReader::readInt16,
                          [](auto c, auto v) { return c == 0 || c < v; });
    }
    bool shop(MapLineReader &in, int n, int s)
    {
        ShopTexts shop = world_.shop(n, s);
        bool ok = text(in, shop.name, false);
        for (int i = 1; ok && i <= kItemsPerShop; ++i)
            for (int f = 0; ok && f < 3; ++f)
                ok = text(in, shop.items[i][f], false);
        // Also on failure: what was merged up to the bad line stays.
        world_.setShop(n, s, shop);
        return ok;
    }

private:
    World &world_;
};

} // namespace

MapReadResult mergeMapFile(const std::string &path, World &world, std::uint8_t &gameNumber)
{
    return readMapFileWith(path, [&](MapLineReader &in, int version) {
        MergeFields fields(world);
        return walkMapFields(in, version, world, gameNumber, fields);
    });
}

} // namespace wayscribe
