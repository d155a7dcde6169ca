#include "storage/map_file.h"

#include "model/text.h"
#include "model/world.h"
#include "storage/atomic_file.h"
#include "storage/line_reader.h"
#include "storage/map_fields.h"

namespace wayscribe {

namespace {

// A map with every table full takes 14 MB.
constexpr InputKind kMapFile{"a map file", std::uint64_t(256) << 20};

// Loading: every field of the file replaces the model's own.
class LoadFields {
public:
    explicit LoadFields(World &world) : world_(world) {}

    bool terrain(MapLineReader &in, std::uint8_t &current) { return in.readByte(current); }
    bool number(MapLineReader &in, std::uint8_t &current) { return in.readByte(current); }
    bool text(MapLineReader &in, std::string &current, bool escaped)
    {
        return escaped ? in.readEscapedText(current) : in.readText(current);
    }
    bool settlementName(MapLineReader &in, std::string &current) { return in.readText(current); }
    bool levels(MapLineReader &in, std::int16_t &current) { return in.readInt16(current); }

    // On a failure the fields read so far are stored and the rest keep
    // their previous contents.
    bool shop(MapLineReader &in, int n, int s)
    {
        draft_.clear();
        std::string_view text;
        while (draft_.count() < PackedShop::kFieldCount && in.readTextView(text))
            draft_.add(text);
        if (draft_.count() == PackedShop::kFieldCount) {
            world_.setShop(n, s, draft_);
            return true;
        }
        if (draft_.count() > 0)
            world_.setShopName(n, s, draft_.field(0));
        for (int k = 1; k < draft_.count(); ++k) {
            const int i = (k - 1) / 3 + 1;
            const auto f = static_cast<ItemField>((k - 1) % 3);
            world_.setItem(n, s, i, f, draft_.field(k));
        }
        return false;
    }

private:
    World &world_;
    JoinedShopTexts draft_; // scratch space reused from shop to shop
};

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

// Runs for every text of the file, so a plain loop rather than
// find_first_of's general character set search.
bool hasLineBreak(std::string_view text)
{
    for (const char c : text)
        if (c == '\n' || c == '\r')
            return true;
    return false;
}

// A one-line field, trimmed. A line break that got past the importers would
// end the line early and shift every value after it, so it goes out as a
// blank; blanks made that way are trimmed like any other, so that the text
// read back saves to the same line.
void writeTrimmedLine(BufferedFileWriter &out, std::string_view text)
{
    if (!hasLineBreak(text))
        writeText(out, trimBlanks(text));
    else
        writeText(out, trimBlanks(oneLine(text)));
}

void writeLine(BufferedFileWriter &out, std::string_view text)
{
    if (!hasLineBreak(text))
        writeText(out, text);
    else
        writeText(out, oneLine(text));
}

// A multi-line field: every line break goes out as "@/@", a lone CR or a
// lone LF as well as CR LF, and reads back as CR LF.
void writeEscaped(BufferedFileWriter &out, std::string_view text)
{
    out.write("\"");
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n')
            continue;
        out.write(text.substr(start, i - start));
        out.write("@/@");
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        start = i + 1;
    }
    out.write(text.substr(start));
    out.write("\"\r\n");
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
            writeTrimmedLine(out, sec.settlementName);
        }
    for (int n = 1; n <= kMaxSettlements; ++n) {
        const Settlement &st = world.settlement(n);
        writeNumber(out, st.inUse);
        writeNumber(out, st.x);
        writeNumber(out, st.y);
        writeLine(out, st.cityState);
        for (int s = 0; s <= kMaxShop; ++s) {
            // Fields in file order: the name, then name, number and price of
            // items 1..20.
            const PackedShop &shop = world.packed(n, s);
            if (shop.empty()) {
                out.write(emptyShopLines());
                continue;
            }
            for (int k = 0; k < PackedShop::kFieldCount; ++k)
                writeTrimmedLine(out, shop.field(k));
        }
    }
    for (int d = 1; d <= kMaxDungeons; ++d) {
        const Dungeon &dg = world.dungeon(d);
        writeLine(out, dg.name);
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
    if (!lines.open(path, kMapFile)) {
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
    return readMapFileWith(path, [&](MapLineReader &in, int version) {
        LoadFields fields(world);
        return walkMapFields(in, version, world, gameNumber, fields);
    });
}

bool writeMapFile(const std::string &path, const World &world, std::uint8_t gameNumber, FileError &error,
                  ReadOnlyTarget readOnly)
{
    BufferedFileWriter out;
    std::string reason;
    if (!out.open(path, reason, readOnly)) {
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
