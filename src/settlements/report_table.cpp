#include "settlements/report_table.h"

#include <stdexcept>

namespace wayscribe {

ReportTable::ReportTable(std::vector<ReportColumn> columns, CellTextFunction cellText)
    : columns_(std::move(columns)), cellText_(std::move(cellText)), directionFlags_(columns_.size(), false)
{
}

void ReportTable::checkRow(std::size_t row) const
{
    if (row >= references_.size())
        throw std::out_of_range("list row out of range");
}

void ReportTable::checkColumn(int column) const
{
    if (column < 1 || column > columnCount())
        throw std::out_of_range("list column out of range");
}

const ReportColumn &ReportTable::column(int column) const
{
    checkColumn(column);
    return columns_[column - 1];
}

std::uint32_t ReportTable::reference(std::size_t row) const
{
    checkRow(row);
    return references_[row];
}

std::string ReportTable::cellText(std::size_t row, int column) const
{
    std::string text;
    appendCellText(row, column, text);
    return text;
}

void ReportTable::appendCellText(std::size_t row, int column, std::string &out) const
{
    checkRow(row);
    checkColumn(column);
    cellText_(references_[row], column, out);
}

std::uint64_t ReportTable::tagKey(std::size_t row, int column)
{
    return (static_cast<std::uint64_t>(row) << 16) | static_cast<std::uint16_t>(column);
}

std::string_view ReportTable::tag(std::size_t row, int column) const
{
    checkRow(row);
    checkColumn(column);
    const auto found = tags_.find(tagKey(row, column));
    return found == tags_.end() ? std::string_view() : std::string_view(found->second);
}

void ReportTable::setTag(std::size_t row, int column, std::string_view tag)
{
    checkRow(row);
    checkColumn(column);
    if (tag.empty())
        tags_.erase(tagKey(row, column));
    else
        tags_[tagKey(row, column)] = std::string(tag);
}

void ReportTable::clear()
{
    references_.clear();
    tags_.clear();
}

std::size_t ReportTable::addRow(std::uint32_t reference)
{
    std::size_t position = references_.size();
    if (sortOrder_) {
        const SortOrder order = *sortOrder_;
        auto keyOf = [&](std::uint32_t ref) {
            std::string text;
            cellText_(ref, order.column, text);
            return sortKey(text, order.kind);
        };
        const std::string key = keyOf(reference);
        // Binary search for the first row that must come after the new one.
        std::size_t low = 0, high = references_.size();
        while (low < high) {
            const std::size_t middle = low + (high - low) / 2;
            const std::string other = keyOf(references_[middle]);
            const bool after = order.ascending ? key < other : other < key;
            if (after)
                high = middle;
            else
                low = middle + 1;
        }
        position = low;
        if (!tags_.empty())
            moveTags([position](std::size_t row) { return row >= position ? row + 1 : row; });
    }
    references_.insert(references_.begin() + static_cast<std::ptrdiff_t>(position), reference);
    return position;
}

void ReportTable::setSortOrder(const SortOrder &order)
{
    checkColumn(order.column);
    sortOrder_ = order;
}

bool ReportTable::directionFlag(int column) const
{
    checkColumn(column);
    return directionFlags_[column - 1];
}

bool ReportTable::invertDirectionFlag(int column)
{
    checkColumn(column);
    directionFlags_[column - 1] = !directionFlags_[column - 1];
    return directionFlags_[column - 1];
}

void ReportTable::moveTags(const std::function<std::size_t(std::size_t)> &map)
{
    std::unordered_map<std::uint64_t, std::string> moved;
    for (auto &[key, text] : tags_)
        moved.emplace(tagKey(map(key >> 16), static_cast<int>(key & 0xFFFF)), std::move(text));
    tags_ = std::move(moved);
}

void ReportTable::reorder(const std::vector<std::uint32_t> &newOrder)
{
    if (newOrder.size() != references_.size())
        throw std::invalid_argument("list reorder of the wrong size");
    std::vector<std::uint32_t> references(references_.size());
    for (std::size_t p = 0; p < newOrder.size(); ++p)
        references[p] = references_.at(newOrder[p]);
    references_ = std::move(references);
    if (!tags_.empty()) {
        std::vector<std::uint32_t> newPosition(newOrder.size());
        for (std::size_t p = 0; p < newOrder.size(); ++p)
            newPosition[newOrder[p]] = static_cast<std::uint32_t>(p);
        moveTags([&newPosition](std::size_t row) { return newPosition[row]; });
    }
}

std::size_t ReportTable::memoryBytes() const
{
    std::size_t bytes = sizeof(*this) + references_.capacity() * sizeof(std::uint32_t) +
                        directionFlags_.capacity() / 8 + tags_.bucket_count() * sizeof(void *);
    for (const ReportColumn &c : columns_)
        bytes += sizeof(c) + (c.title.capacity() > 15 ? c.title.capacity() : 0);
    for (const auto &[key, text] : tags_)
        bytes +=
            sizeof(key) + sizeof(text) + 2 * sizeof(void *) + (text.capacity() > 15 ? text.capacity() : 0);
    return bytes;
}

} // namespace wayscribe
