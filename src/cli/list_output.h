#pragma once

#include "cli/cli.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {
class ReportTable;
}

namespace wayscribe::cli {

// One cell as the list commands print it: CR as \r, LF as \n, TAB as \t and
// a backslash as \\, so that every row stays on one line and its cells can
// be told apart.
void writeListCell(std::ostream &out, std::string_view cell);

// The rows of a list in display order, one a line, cells TAB-separated.
void writeListRows(std::ostream &out, const ReportTable &table);

// The values of every "--sort" option, in the order given.
std::vector<std::string> sortOptionValues(const ParsedArgs &args);

// Header clicks, one per text, each a column number counted from 1: every
// click inverts that column's direction flag and sorts by its kind, as the
// list windows do. False, after a message, at the first text that is not a
// column of the list; the clicks before it stay made.
bool applySortClicks(ReportTable &table, const std::vector<std::string> &columns, std::ostream &err);

} // namespace wayscribe::cli
