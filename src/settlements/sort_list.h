#pragma once

#include "settlements/report_table.h"

#include <cstdint>
#include <vector>

namespace wayscribe {

// Sorts the list by one column (1-based) as text or as numbers (see
// appendSortKey for both orders), ascending or descending, and keeps it
// sorted that way for rows added later. Rows with equal keys keep the order
// they had, in either direction. Each row's key is computed once per sort.
// A column out of range changes nothing.
//
// Returns the new order: element p is the former position of the row now at
// position p (empty when nothing was sorted), so that a window can keep its
// selection on the same row.
std::vector<std::uint32_t> Sort_List(ReportTable &table, int column, SortKind kind, bool ascending);

// A click on a column header: the column's direction flag is inverted, then
// the list is sorted by that column with the column's kind, ascending when
// the flag is now set. So the first click sorts ascending, the next one
// descending, each column keeping its own flag.
std::vector<std::uint32_t> sortByHeaderClick(ReportTable &table, int column);

} // namespace wayscribe
