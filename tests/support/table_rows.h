#pragma once

#include "settlements/report_table.h"

#include <string>
#include <vector>

namespace wayscribe::test {

// Each row of a list as its cells joined by '|'.
inline std::vector<std::string> tableRows(const ReportTable &table)
{
    std::vector<std::string> rows;
    for (std::size_t r = 0; r < table.rowCount(); ++r) {
        std::string row = table.cellText(r, 1);
        for (int c = 2; c <= table.columnCount(); ++c)
            row.append("|").append(table.cellText(r, c));
        rows.push_back(row);
    }
    return rows;
}

} // namespace wayscribe::test
