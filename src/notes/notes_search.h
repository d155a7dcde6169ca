#pragma once

#include "settlements/report_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {

class World;

// The search box holds at most this many "+" terms; later ones are ignored.
inline constexpr int kMaxSearchTerms = 20;

// What "+" between terms means.
enum class PlusMeans { And, Or };

// The notes database's filters as its window shows them.
struct NotesFilter {
    bool skipSettlements = false; // chkSettlements: "Don't list notes in settlements"
    bool search = false;          // chkSearch
    std::string searchText;       // txtSearch
    PlusMeans plus = PlusMeans::And;
};

// The terms of a search text with "+" in it: the parts between the "+"
// signs, blanks trimmed, in lower case, at most kMaxSearchTerms. A text
// without "+" has no terms (it is searched for as a whole).
std::vector<std::string> searchTerms(std::string_view text);

// The notes database's columns: "Note" as text, "X Pos" and "Y Pos" as
// numbers. Each row is a sector, x + 256 * y; its cells are read from the
// world when shown: the note as stored, X and Y each with a leading blank.
ReportTable notesListTable(const World &world);

// The sector of a notes list row.
int noteRowX(std::uint32_t reference);
int noteRowY(std::uint32_t reference);

// List_Update_All: the notes that pass the filter, rows from the top and
// each row from the left; with "+" meaning "Or", a note is listed once for
// each term it contains. Searches ignore case. Returns whether there is a
// row (the list's rows-present flag).
bool fillNotesList(ReportTable &table, const World &world, const NotesFilter &filter);

// The question asked before removing the note of (x, y).
std::string noteRemovalQuestion(int x, int y);

} // namespace wayscribe
