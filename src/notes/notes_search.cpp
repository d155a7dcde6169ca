#include "notes/notes_search.h"

#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

std::vector<std::string> searchTerms(std::string_view text)
{
    std::vector<std::string> terms;
    if (text.find('+') == std::string_view::npos)
        return terms;
    std::string_view rest = text;
    for (;;) {
        const std::size_t plus = rest.find('+');
        const std::string_view term = plus == std::string_view::npos ? rest : rest.substr(0, plus);
        if (static_cast<int>(terms.size()) < kMaxSearchTerms)
            terms.push_back(changeCase(trimBlanks(term), false));
        if (plus == std::string_view::npos)
            break;
        rest = trimBlanks(rest.substr(plus + 1));
    }
    return terms;
}

ReportTable notesListTable(const World &world)
{
    return ReportTable({{"Note", 6800, ColumnAlignment::Left, SortKind::Text},
                        {"X Pos", 600, ColumnAlignment::Right, SortKind::Number},
                        {"Y Pos", 600, ColumnAlignment::Right, SortKind::Number}},
                       [&world](std::uint32_t reference, int column, std::string &out) {
                           const int x = noteRowX(reference), y = noteRowY(reference);
                           if (column == 1)
                               out += world.sector(x, y).note;
                           else
                               out += formatGeneral(column == 2 ? x : y);
                       });
}

int noteRowX(std::uint32_t reference)
{
    return static_cast<int>(reference % 256);
}

int noteRowY(std::uint32_t reference)
{
    return static_cast<int>(reference / 256);
}

bool fillNotesList(ReportTable &table, const World &world, const NotesFilter &filter)
{
    table.clear();
    const std::vector<std::string> terms =
        filter.search ? searchTerms(filter.searchText) : std::vector<std::string>{};
    const bool plainSearch = filter.search && filter.searchText.find('+') == std::string::npos;
    const std::string plainText = plainSearch ? changeCase(filter.searchText, false) : std::string{};
    std::string lower;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &sector = world.sector(x, y);
            if (sector.note.empty() || (filter.skipSettlements && !sector.settlementName.empty()))
                continue;
            const auto reference = static_cast<std::uint32_t>(x + 256 * y);
            if (!filter.search) {
                table.addRow(reference);
                continue;
            }
            // One buffer for every note: the search runs over the whole map.
            lower.assign(sector.note);
            for (char &c : lower)
                c = toLowerChar(c);
            if (plainSearch) {
                if (contains(lower, plainText))
                    table.addRow(reference);
            } else if (filter.plus == PlusMeans::And) {
                bool all = true;
                for (const std::string &term : terms)
                    all = all && contains(lower, term);
                if (all)
                    table.addRow(reference);
            } else {
                for (const std::string &term : terms)
                    if (contains(lower, term))
                        table.addRow(reference);
            }
        }
    return table.rowCount() > 0;
}

std::string noteRemovalQuestion(int x, int y)
{
    return "Really remove note at " + formatGeneral(x) + ", " + formatGeneral(y) + "?";
}

} // namespace wayscribe
