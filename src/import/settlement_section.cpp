#include "import/settlement_section.h"

#include "import/dungeon_notes.h"
#include "import/report_reader.h"
#include "import/report_state.h"
#include "import/shop_lines.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/settlement_lookup.h"
#include "model/text.h"
#include "model/world.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace wayscribe {

namespace {

struct SettlementHeading {
    std::string name;
    long number = 0;
};

// "... OF NAME (number)...": the name keeps its first character and the
// rest goes to lower case; the blank before "(" stays part of it.
bool parseHeading(const ReportReader &in, std::string_view heading, SettlementHeading &out)
{
    const long ofAt = positionOf(heading, "OF");
    const long openAt = ofAt == 0 ? 0 : positionOf(heading, "(", ofAt + 3);
    if (openAt == 0)
        return false;
    const std::string_view name = midChars(heading, ofAt + 3, openAt - (ofAt + 3));
    out.name = oneLine(std::string(leftChars(name, 1)) + changeCase(midChars(name, 2), false));
    const long closeAt = positionOf(heading, ")", openAt + 1);
    const std::string_view number =
        closeAt == 0 ? midChars(heading, openAt + 1) : midChars(heading, openAt + 1, closeAt - openAt - 1);
    out.number = in.wholeNumber(number, std::numeric_limits<std::int16_t>::min(),
                                std::numeric_limits<std::int16_t>::max(), "settlement number");
    return true;
}

// Another settlement of this number stands elsewhere, or under another
// name: the person decides.
bool confirmPlacement(ReportImport &im, const SettlementHeading &s, const SectorPosition &party)
{
    const SettlementLookup placed = lookUpSettlement(im.world, s.number);
    if (!placed.onMap)
        return true;
    const Settlement &record = *placed.record;
    const std::string &stored = placed.sector->settlementName;
    if (stored.empty() || (record.x == party.x && record.y == party.y && stored == s.name))
        return true;
    const std::string number = formatPlain(s.number);
    const std::string text = "Settlement " + stored + " (" + number + ") already exists in sector " +
                             formatPlain(record.x) + "," + formatPlain(record.y) + "." + "\r\n" +
                             "Overwrite with imported settlement " + s.name + " (" + number + ") in sector " +
                             formatPlain(party.x) + "," + formatPlain(party.y) + "?";
    return im.platform.message(text, "Overwrite settlement?", MessageButtons::YesNo, MessageIcon::Question) ==
           Answer::Yes;
}

void placeSettlement(ReportImport &im, const SettlementHeading &s, const SectorPosition &party)
{
    Settlement &record = im.world.settlement(static_cast<int>(s.number));
    if (inSectorTable({record.x, record.y})) {
        Sector &old = im.world.sector(record.x, record.y);
        old.settlementName.clear();
        old.settlementNumber = 0;
    }
    Sector &here = im.world.sector(static_cast<int>(party.x), static_cast<int>(party.y));
    here.settlementName = s.name;
    here.settlementNumber = static_cast<std::uint8_t>(s.number);
    record.inUse = 1;
    record.x = static_cast<std::uint8_t>(party.x);
    record.y = static_cast<std::uint8_t>(party.y);
}

} // namespace

bool isSettlementHeading(std::string_view text)
{
    if (!startsWith(text, "</PRE><H2 ALIGN=center>THE"))
        return false;
    const std::string lower = changeCase(text, false);
    return contains(lower, "city") || contains(lower, "village") || contains(lower, "town");
}

void readSettlementSection(ReportImport &im, std::string_view heading)
{
    if (!im.state.options.importShops)
        return;
    ReportState &r = im.report;
    // Only the heading's lower-case kind words move the party to another
    // cell; the game writes the kind itself in capitals, so normally the
    // party stays on the last settlement cell it was seen on.
    if (contains(heading, "town"))
        r.party = r.town;
    if (contains(heading, "village"))
        r.party = r.village;
    if (contains(heading, "city"))
        r.party = r.city;
    // Only a party cell past the world's edge has no sector at all.
    const bool placed = inSectorTable(r.party);

    if (im.state.options.importDungeons && placed)
        storeSightedDungeons(im);

    // A heading without "OF name (number)" names no settlement.
    SettlementHeading s;
    if (!parseHeading(im.in, heading, s))
        return;
    const bool numbered = isSettlementIndex(s.number);
    if (numbered && placed && confirmPlacement(im, s, r.party))
        placeSettlement(im, s, r.party);

    if (r.readMode == kHideCaptured && im.state.options.importHides) {
        r.readMode = kHideHandled;
        if (placed) {
            std::string &note =
                im.world.sector(static_cast<int>(r.party.x), static_cast<int>(r.party.y)).note;
            if (note.empty())
                note = r.hideText;
        }
    }

    std::string line;
    for (int skip = s.number < 21 ? 3 : 2; skip > 0; --skip)
        im.in.requireLine(line, "the settlement heading");
    readShopLines(im, s.number);
}

} // namespace wayscribe
