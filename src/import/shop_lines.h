#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wayscribe {

struct ReportImport;
class ReportReader;

// One item row of a shop as the report lists it.
struct ItemRow {
    std::string name;
    std::string number;
    long price = 0;
};

// The three kinds of row: a table row "(nnn) name ... price", a named row
// "name (number) ... price", and a quest offer "...: task for amount".
// Empty for a quest offer without a task to cut out.
std::optional<ItemRow> parseItemRow(const ReportReader &in, std::string_view row, bool fromShopLine);

// The shop lines after a settlement heading, up to the next section, stored
// into the shops of `settlement` (when the tables have room for them).
void readShopLines(ReportImport &im, long settlement);

} // namespace wayscribe
