#include "import/report_import.h"

#include "import/dungeon_paragraphs.h"
#include "import/dungeon_section.h"
#include "import/map_table.h"
#include "import/report_reader.h"
#include "import/settlement_section.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"

namespace wayscribe {

namespace {

constexpr std::string_view kBanner = "</PRE><H2 ALIGN=center>* * * QUEST - THE 2ND AGE * * *</H2><PRE>";
constexpr std::string_view kPlainHeading = "<center><table><tr><td align=";

bool isStandingOrders(const ReportState &r, std::string_view text)
{
    return r.bannerSeen ? text == "</PRE><H2 ALIGN=center>STANDING ORDERS</H2><PRE>"
                        : startsWith(text, kPlainHeading) && contains(text, "standing");
}

bool isPartySection(const ReportState &r, std::string_view text)
{
    return r.bannerSeen ? text == "</PRE><H2 ALIGN=center>OUR PARTY</H2><PRE>"
                        : startsWith(text, kPlainHeading) && contains(text, "WILDERNESS MAP");
}

void followParagraph(ReportImport &im)
{
    ReportState &r = im.report;
    if (r.standingOrdersReached || r.dungeonLocated)
        return;
    r.paragraph.append(r.text);
    if (contains(r.text, "Scouts"))
        r.paragraph.clear();
    checkDungeonParagraphs(im);
}

void findSections(ReportState &r)
{
    if (r.specialSectionEntered)
        return;
    if (isStandingOrders(r, r.text)) {
        r.paragraph.clear();
        r.standingOrdersReached = true;
    }
    if (isPartySection(r, r.text))
        r.readMode = kPartySectionSeen;
    if (r.readMode == kReadLines) {
        // Texts before the party section stand in the paragraph twice.
        r.paragraph.append(r.text);
        if (contains(r.text, "We're in"))
            r.paragraph.clear();
    }
}

// The party's hide prices: "...: <text>." in the paragraph before the party section.
void captureHideText(ReportState &r)
{
    if (r.readMode != kPartySectionSeen)
        return;
    r.readMode = kHideHandled;
    ParagraphAccumulator &acc = r.paragraph;
    if (!acc.contains(":") || !acc.contains(")") || !acc.contains("@"))
        return;
    const std::string_view text = midChars(acc.text(), acc.position(":") + 2);
    r.hideText = std::string(leftChars(text, positionOf(text, ".")));
    r.readMode = kHideCaptured;
}

void checkGameNumber(ReportImport &im)
{
    const std::string_view trimmed = trimBlanks(im.report.text);
    if (!startsWith(trimmed, "Party#"))
        return;
    const auto game =
        static_cast<std::uint8_t>(im.in.wholeNumber(midChars(trimmed, 23, 2), 0, 255, "game number"));
    ProgramState &state = im.state;
    if (state.document.gameNumber == 0) {
        state.document.gameNumber = game;
    } else if (game != state.document.gameNumber) {
        if (!im.settings.batch)
            im.platform.message("You tried importing from G" + formatPlain(game) + "\r\n" +
                                    "But this map is for G" + formatPlain(state.document.gameNumber) +
                                    "\r\n" + "Aborting Import.",
                                kProgramTitle, MessageButtons::Ok, MessageIcon::None);
        im.report.aborted = true;
    }
}

void readSections(ReportImport &im)
{
    // The sections read on into texts of their own; the current text stays.
    const std::string &text = im.report.text;
    if (isDungeonMapHeading(text))
        readDungeonSection(im);
    if (isMapInfoLine(text))
        readMapTable(im, text);
    if (isSettlementHeading(text))
        readSettlementSection(im, text);
}

void readAll(ReportImport &im)
{
    ReportState &r = im.report;
    while (!im.in.atEnd()) {
        if (r.readMode == kReadLines)
            im.in.readLine(r.text);
        else
            im.in.readField(r.text);
        followParagraph(im);
        findSections(r);
        captureHideText(r);
        checkGameNumber(im);
        if (contains(r.text, kBanner))
            r.bannerSeen = true;
        // A report of another game is read to its end without effect.
        if (!r.aborted)
            readSections(im);
        im.platform.processEvents();
    }
}

} // namespace

ReportOutcome readReport(World &world, ProgramState &state, Platform &platform, const std::string &path,
                         const ImportSettings &settings)
{
    ReportOutcome outcome;
    ReportReader in;
    if (!in.open(path, outcome.error)) {
        platform.message("The HTML turn could not be opened.", kProgramTitle, MessageButtons::Ok,
                         MessageIcon::Exclamation, outcome.error.describe());
        return outcome;
    }
    ReportState report;
    ReportImport im{world, state, platform, in, report, settings};
    try {
        readAll(im);
        outcome.result = ReportResult::Imported;
    } catch (const ReportFailure &failure) {
        outcome.result = ReportResult::Stopped;
        outcome.error = failure.error;
        platform.message(
            "The HTML turn could not be read to its end. Everything imported before the faulty line "
            "has been kept.",
            kProgramTitle, MessageButtons::Ok, MessageIcon::Exclamation, outcome.error.describe());
    }
    outcome.mapSeen = report.mapSeen;
    outcome.aborted = report.aborted;
    outcome.mapStartX = report.mapStartX;
    outcome.mapStartY = report.mapStartY;
    return outcome;
}

} // namespace wayscribe
