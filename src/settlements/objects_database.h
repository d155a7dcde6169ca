#pragma once

#include "settlements/report_table.h"

#include <cstdint>
#include <string_view>

namespace wayscribe {

class World;
class Platform;

// The three listing modes of the objects database, numbered as its option
// buttons.
enum class ObjectsMode { All = 0, Cheapest = 1, Dearest = 2 };

// The filters of the objects database, as the window starts with them.
struct ObjectsFilters {
    ObjectsMode mode = ObjectsMode::Cheapest;
    bool zeroCost = true;  // chkZeroCost: don't list objects with zero cost
    bool oneOfEach = true; // chkOneOfEach: only list each object once
    bool noVillages = false;
    bool noTowns = false;
    bool noCities = false;
};

// The cheapest and dearest modes only look at priced items: in them the
// zero-cost box stays checked, whatever it was.
inline bool zeroCostAlwaysOn(ObjectsMode mode)
{
    return mode != ObjectsMode::All;
}

// A row of the objects list is one shop item: the settlement number n it is
// listed under, the settlement s its shops are filed under (the number in
// n's sector, equal to n unless a file broke the rule), the shop and the
// item slot, a byte each.
std::uint32_t packObjectRow(int n, int s, int shop, int item);

// The objects list's columns ("Settlement", "Shop", "Object", "#", "Price")
// with their widths, alignment and sort kinds; the cells are read from the
// world when asked for.
ReportTable objectsTable(const World &world);

// How a filling ended: stopped by the unknown-error message, the rows added
// before it stay and the list's "Goto" stays disabled.
struct ObjectsFillResult {
    bool completed = true;
};

// List_Update_All of the objects database: empties the list and fills it
// with the items of all shops 1..110 of the settlements the filters keep.
// "List all objects" lists every item (the first of each object number with
// the once-filter); the other two modes list the items whose price is the
// lowest, or highest, of their object number. Object numbers above 9999 are
// reported once per pass over the shops and skipped; a number too large for
// a 32-bit integer stops the filling with the unknown-error message.
//
// Object numbers below 0 have no place in the tables of lowest and highest
// price: "List all objects" lists them, every one of them even with the
// once-filter (there is no entry to mark them listed), and they never count
// for the cheapest and dearest modes.
ObjectsFillResult List_Update_All(ReportTable &table, const World &world, const ObjectsFilters &filters,
                                  Platform &platform);

// "Goto Settlement" of a row: the settlement number is the value of its
// "Settlement" text after the first "(" (a name may itself hold one, and
// then that one counts). The text after that bracket, empty without one.
std::string_view objectRowSettlementNumber(std::string_view settlementText);

} // namespace wayscribe
