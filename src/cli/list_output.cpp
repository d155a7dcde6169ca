#include "cli/list_output.h"

#include "settlements/report_table.h"
#include "settlements/sort_list.h"

#include <charconv>

namespace wayscribe::cli {

void writeListCell(std::ostream &out, std::string_view cell)
{
    for (const char c : cell) {
        switch (c) {
        case '\r':
            out << "\\r";
            break;
        case '\n':
            out << "\\n";
            break;
        case '\t':
            out << "\\t";
            break;
        case '\\':
            out << "\\\\";
            break;
        default:
            out << c;
        }
    }
}

void writeListRows(std::ostream &out, const ReportTable &table)
{
    std::string cell;
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        for (int column = 1; column <= table.columnCount(); ++column) {
            if (column > 1)
                out << '\t';
            cell.clear();
            table.appendCellText(row, column, cell);
            writeListCell(out, cell);
        }
        out << '\n';
    }
}

std::vector<std::string> sortOptionValues(const ParsedArgs &args)
{
    std::vector<std::string> values;
    for (const auto &[name, value] : args.options)
        if (name == "--sort")
            values.push_back(value);
    return values;
}

bool applySortClicks(ReportTable &table, const std::vector<std::string> &columns, std::ostream &err)
{
    for (const std::string &text : columns) {
        int column = 0;
        const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), column);
        if (ec != std::errc() || end != text.data() + text.size() || column < 1 ||
            column > table.columnCount()) {
            err << "wayscribe-cli: --sort " << text << ": the list has columns 1 to " << table.columnCount()
                << '\n';
            return false;
        }
        sortByHeaderClick(table, column);
    }
    return true;
}

} // namespace wayscribe::cli
