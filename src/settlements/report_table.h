#pragma once

#include "settlements/sort_keys.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wayscribe {

enum class ColumnAlignment { Left, Right };

struct ReportColumn {
    std::string title;
    int width = 0; // in 1/1440 inch
    ColumnAlignment alignment = ColumnAlignment::Left;
    SortKind kind = SortKind::Text;
};

// Appends the text of one cell: the row's reference and the column (1-based).
using CellTextFunction = std::function<void(std::uint32_t reference, int column, std::string &out)>;

// The column and direction a list keeps its rows in once it has been sorted.
struct SortOrder {
    int column = 1; // 1-based
    SortKind kind = SortKind::Text;
    bool ascending = true;
};

// The contents of a report-style list: its columns, and its rows in display
// order. A row is a 32-bit reference into the world whose meaning belongs to
// the window that fills the list (settlement, shop and item packed together,
// a sector's X and Y, ...); the cell texts are asked of the window's function
// when needed, so a list of hundreds of thousands of rows holds four bytes a
// row. Besides its text, each cell can carry a tag that is never shown; few
// do, so tags are kept apart.
//
// Rows are numbered 0.. in display order, columns 1.. as the list windows
// number them. Indices out of range are programming errors and throw
// std::out_of_range.
class ReportTable {
public:
    ReportTable(std::vector<ReportColumn> columns, CellTextFunction cellText);

    const std::vector<ReportColumn> &columns() const { return columns_; }
    int columnCount() const { return static_cast<int>(columns_.size()); }
    const ReportColumn &column(int column) const;

    std::size_t rowCount() const { return references_.size(); }
    std::uint32_t reference(std::size_t row) const;
    std::string cellText(std::size_t row, int column) const;
    void appendCellText(std::size_t row, int column, std::string &out) const;

    std::string_view tag(std::size_t row, int column) const;
    void setTag(std::size_t row, int column, std::string_view tag);

    // Removes every row; the sort order and direction flags stay.
    void clear();
    // Appends the row, or, while the list is sorted, places it after the
    // rows whose key sorts before it or equal to it. Returns its position.
    std::size_t addRow(std::uint32_t reference);

    // Set by Sort_List; while set, added rows are placed in order.
    const std::optional<SortOrder> &sortOrder() const { return sortOrder_; }
    void setSortOrder(const SortOrder &order);
    void stopSorting() { sortOrder_.reset(); }

    // One direction flag per column, all false at first; a header click
    // inverts its column's flag and sorts ascending when the flag is then set.
    bool directionFlag(int column) const;
    bool invertDirectionFlag(int column);

    // Puts the rows in a new order: newOrder[p] is the former position of the
    // row that goes to position p. Tags move with their rows.
    void reorder(const std::vector<std::uint32_t> &newOrder);

    // Bytes held by the rows, tags and columns.
    std::size_t memoryBytes() const;

private:
    void checkRow(std::size_t row) const;
    void checkColumn(int column) const;
    static std::uint64_t tagKey(std::size_t row, int column);
    // Moves every tag to the position map(row) gives.
    void moveTags(const std::function<std::size_t(std::size_t)> &map);

    std::vector<ReportColumn> columns_;
    CellTextFunction cellText_;
    std::vector<std::uint32_t> references_;
    std::unordered_map<std::uint64_t, std::string> tags_;
    std::vector<bool> directionFlags_;
    std::optional<SortOrder> sortOrder_;
};

} // namespace wayscribe
