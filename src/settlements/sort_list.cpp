#include "settlements/sort_list.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace wayscribe {
namespace {

// The keys of every row, end to end in one buffer.
struct RowKeys {
    std::string bytes;
    std::vector<std::size_t> starts; // row r's key is [starts[r], starts[r + 1])

    std::string_view key(std::uint32_t row) const
    {
        return std::string_view(bytes).substr(starts[row], starts[row + 1] - starts[row]);
    }
};

RowKeys collectKeys(const ReportTable &table, int column, SortKind kind)
{
    RowKeys keys;
    keys.starts.reserve(table.rowCount() + 1);
    std::string text;
    for (std::size_t row = 0; row < table.rowCount(); ++row) {
        keys.starts.push_back(keys.bytes.size());
        text.clear();
        table.appendCellText(row, column, text);
        appendSortKey(keys.bytes, text, kind);
    }
    keys.starts.push_back(keys.bytes.size());
    return keys;
}

// A row to sort with the first bytes of its key packed into one integer, so
// that most comparisons need neither the key buffer nor a byte loop.
struct SortEntry {
    std::uint64_t head;
    std::uint32_t row;
};

// Bytes [skip, skip + 8) of the key, most significant first, zero past its
// end: comparing heads never contradicts comparing the keys.
std::uint64_t keyHead(std::string_view key, std::size_t skip)
{
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        const std::size_t at = skip + i;
        head = (head << 8) | (at < key.size() ? static_cast<unsigned char>(key[at]) : 0u);
    }
    return head;
}

// The number of leading bytes all keys share (number keys start with a run
// of zeros); the heads are taken after it.
std::size_t sharedPrefix(const RowKeys &keys, std::size_t rows)
{
    if (rows == 0)
        return 0;
    const std::string_view first = keys.key(0);
    std::size_t shared = first.size();
    for (std::uint32_t row = 1; row < rows && shared > 0; ++row) {
        const std::string_view key = keys.key(row);
        const auto [a, b] = std::mismatch(
            first.begin(), first.begin() + static_cast<std::ptrdiff_t>(std::min(shared, key.size())),
            key.begin());
        shared = static_cast<std::size_t>(a - first.begin());
    }
    return shared;
}

} // namespace

std::vector<std::uint32_t> Sort_List(ReportTable &table, int column, SortKind kind, bool ascending)
{
    if (column < 1 || column > table.columnCount())
        return {};
    const std::size_t rows = table.rowCount();
    const RowKeys keys = collectKeys(table, column, kind);
    const std::size_t skip = sharedPrefix(keys, rows);

    std::vector<SortEntry> entries(rows);
    for (std::uint32_t row = 0; row < rows; ++row)
        entries[row] = {keyHead(keys.key(row), skip), row};
    // Ties go by former position in both directions, which makes the sort
    // stable and lets it use an unstable algorithm.
    auto before = [&](const SortEntry &a, const SortEntry &b) {
        if (a.head != b.head)
            return ascending ? a.head < b.head : b.head < a.head;
        const int order = keys.key(a.row).compare(keys.key(b.row));
        if (order != 0)
            return ascending ? order < 0 : order > 0;
        return a.row < b.row;
    };
    std::sort(entries.begin(), entries.end(), before);

    std::vector<std::uint32_t> newOrder(rows);
    for (std::size_t p = 0; p < rows; ++p)
        newOrder[p] = entries[p].row;
    table.reorder(newOrder);
    table.setSortOrder({column, kind, ascending});
    return newOrder;
}

std::vector<std::uint32_t> sortByHeaderClick(ReportTable &table, int column)
{
    if (column < 1 || column > table.columnCount())
        return {};
    const bool ascending = table.invertDirectionFlag(column);
    return Sort_List(table, column, table.column(column).kind, ascending);
}

} // namespace wayscribe
