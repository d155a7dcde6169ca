#include "storage/map_file.h"

#include "model/text.h"
#include "model/world.h"
#include "storage/atomic_file.h"
#include "storage/line_reader.h"

namespace wayscribe {

std::string FileError::describe() const
{
    if (line > 0)
        return path + ", line " + std::to_string(line) + ": " + reason;
    return path + ": " + reason;
}

namespace {

struct ShopRange {
    int first, last;
};

ShopRange shopRange(int version)
{
    return version < 10 ? ShopRange{1, 99} : ShopRange{0, kMaxShop};
}

// Reads one shop. On a failure the fields read so far are stored and the
// rest keep their previous contents. `draft` is scratch space reused from
// shop to shop.
bool readShop(MapLineReader &in, World &world, int n, int s, JoinedShopTexts &draft)
{
    draft.clear();
    std::string_view text;
    while (draft.count() < PackedShop::kFieldCount && in.readTextView(text))
        draft.add(text);
    if (draft.count() == PackedShop::kFieldCount) {
        world.setShop(n, s, draft);
        return true;
    }
    if (draft.count() > 0)
        world.setShopName(n, s, draft.field(0));
    for (int k = 1; k < draft.count(); ++k) {
        const int i = (k - 1) / 3 + 1;
        const auto f = static_cast<ItemField>((k - 1) % 3);
        world.setItem(n, s, i, f, draft.field(k));
    }
    return false;
}

bool readBody(MapLineReader &in, World &world, std::uint8_t &gameNumber, int version)
{
    if (!in.readByte(gameNumber))
        return false;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            Sector &sec = world.sector(x, y);
            if (!in.readByte(sec.terrain) || !in.readEscapedText(sec.note) ||
                !in.readByte(sec.settlementNumber) || !in.readText(sec.settlementName))
                return false;
        }
    const ShopRange shops = shopRange(version);
    JoinedShopTexts draft;
    for (int n = 1; n <= kMaxSettlements; ++n) {
        Settlement &st = world.settlement(n);
        if (!in.readByte(st.inUse) || !in.readByte(st.x) || !in.readByte(st.y))
            return false;
        if (version >= 17 && !in.readText(st.cityState))
            return false;
        for (int s = shops.first; s <= shops.last; ++s)
            if (!readShop(in, world, n, s, draft))
                return false;
    }
    if (version < 11)
        return true;
    for (int d = 1; d <= kMaxDungeons; ++d) {
        Dungeon &dg = world.dungeon(d);
        if (!in.readText(dg.name) || !in.readInt16(dg.levels))
            return false;
        for (int l = 1; l <= kLevelsPerDungeon; ++l)
            if (!in.readEscapedText(dg.level[l].map) || !in.readEscapedText(dg.level[l].roomData))
                return false;
    }
    return true;
}

void writeNumber(BufferedFileWriter &out, unsigned value)
{
    char digits[12];
    int n = 0;
    do {
        digits[n++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value > 0);
    char line[14];
    for (int i = 0; i < n; ++i)
        line[i] = digits[n - 1 - i];
    line[n] = '\r';
    line[n + 1] = '\n';
    out.write(std::string_view(line, n + 2));
}

void writeSigned(BufferedFileWriter &out, int value)
{
    if (value < 0)
        out.write("-");
    writeNumber(out, static_cast<unsigned>(value < 0 ? -value : value));
}

void writeText(BufferedFileWriter &out, std::string_view text)
{
    out.write("\"");
    out.write(text);
    out.write("\"\r\n");
}

void writeEscaped(BufferedFileWriter &out, std::string_view text)
{
    if (text.find("\r\n") == std::string_view::npos)
        writeText(out, text);
    else
        writeText(out, replaceAll(text, "\r\n", "@/@"));
}

// The lines of a shop without any text; most shops of a map are such.
std::string_view emptyShopLines()
{
    static const std::string lines = [] {
        std::string all;
        for (int k = 0; k < PackedShop::kFieldCount; ++k)
            all += "\"\"\r\n";
        return all;
    }();
    return lines;
}

void writeBody(BufferedFileWriter &out, const World &world, std::uint8_t gameNumber)
{
    writeText(out, kMapFileHeader);
    writeNumber(out, gameNumber);
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &sec = world.sector(x, y);
            writeNumber(out, sec.terrain);
            writeEscaped(out, trimBlanks(sec.note));
            writeNumber(out, sec.settlementNumber);
            writeText(out, trimBlanks(sec.settlementName));
        }
    for (int n = 1; n <= kMaxSettlements; ++n) {
        const Settlement &st = world.settlement(n);
        writeNumber(out, st.inUse);
        writeNumber(out, st.x);
        writeNumber(out, st.y);
        writeText(out, st.cityState);
        for (int s = 0; s <= kMaxShop; ++s) {
            // Fields in file order: the name, then name, number and price of
            // items 1..20.
            const PackedShop &shop = world.packed(n, s);
            if (shop.empty()) {
                out.write(emptyShopLines());
                continue;
            }
            for (int k = 0; k < PackedShop::kFieldCount; ++k)
                writeText(out, trimBlanks(shop.field(k)));
        }
    }
    for (int d = 1; d <= kMaxDungeons; ++d) {
        const Dungeon &dg = world.dungeon(d);
        writeText(out, dg.name);
        writeSigned(out, dg.levels);
        for (int l = 1; l <= kLevelsPerDungeon; ++l) {
            writeEscaped(out, dg.level[l].map);
            writeEscaped(out, dg.level[l].roomData);
        }
    }
}

} // namespace

MapReadResult readMapFileWith(const std::string &path,
                              const std::function<bool(MapLineReader &in, int version)> &body)
{
    MapReadResult result;
    LineReader lines;
    if (!lines.open(path)) {
        result.ok = false;
        result.error = {path, 0, "cannot be opened: " + lines.error()};
        return result;
    }
    MapLineReader in(lines);
    std::string_view header;
    if (!in.readRaw(header)) {
        result.ok = false;
        result.error = {path, 1, lines.error().empty() ? "the file is empty" : lines.error()};
        return result;
    }
    result.version = mapFormatVersion(header);
    if (!body(in, result.version)) {
        result.ok = false;
        // A file that ends early is missing the line after the last one read.
        const bool endedEarly = lines.error().empty() && in.error() == "the file ends early";
        result.error = {path, in.lineNumber() + (endedEarly ? 1 : 0), in.error()};
    }
    return result;
}

MapReadResult readMapFile(const std::string &path, World &world, std::uint8_t &gameNumber)
{
    return readMapFileWith(
        path, [&](MapLineReader &in, int version) { return readBody(in, world, gameNumber, version); });
}

bool writeMapFile(const std::string &path, const World &world, std::uint8_t gameNumber, FileError &error)
{
    BufferedFileWriter out;
    std::string reason;
    if (!out.open(path, reason)) {
        error = {path, 0, reason};
        return false;
    }
    writeBody(out, world, gameNumber);
    if (!out.commit(reason)) {
        error = {path, 0, reason};
        return false;
    }
    return true;
}

} // namespace wayscribe
