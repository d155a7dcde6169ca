#pragma once

namespace wayscribe {

struct ReportImport;

// The scouts report and the initial-explorations paragraph: each names a
// dungeon and its distance from the party. Run on the paragraph accumulator
// after every text it takes in; the dungeons are stored later, at the
// settlement heading.
void checkDungeonParagraphs(ReportImport &im);

} // namespace wayscribe
