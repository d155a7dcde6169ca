#include "settlements/sort_list.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>
#include <string>
#include <string_view>

namespace wayscribe {
namespace {

// A row to sort with the first sixteen bytes of its key at hand, so that most
// comparisons read neither a buffer elsewhere nor bytes one by one.
struct SortEntry {
    std::uint64_t high, low;
    std::uint32_t row;
    std::uint32_t length; // of the key, at most the largest uint32
};
using Entries = std::vector<SortEntry>::iterator;
constexpr std::size_t kHeld = 16;

// Bytes [offset, offset + 8) of a text, most significant first, zero past
// its end: comparing these never contradicts comparing the texts.
std::uint64_t eightBytes(std::string_view text, std::size_t offset)
{
    if (offset + 8 <= text.size()) {
        std::uint64_t bytes;
        std::memcpy(&bytes, text.data() + offset, 8);
        return std::endian::native == std::endian::little ? __builtin_bswap64(bytes) : bytes;
    }
    std::uint64_t bytes = 0;
    for (std::size_t at = offset; at < offset + 8; ++at)
        bytes = (bytes << 8) | (at < text.size() ? static_cast<unsigned char>(text[at]) : 0u);
    return bytes;
}

// A number key holds only blanks, "&", "." and digits: two to a byte, coded
// 1 to 13 in that order, it keeps its order in half the room. Below 1e20 it
// then fits its entry whole.
void packNumberKey(std::string &key)
{
    auto code = [](char c) -> unsigned {
        switch (c) {
        case ' ':
            return 1;
        case '&':
            return 2;
        case '.':
            return 3;
        default:
            return 4 + static_cast<unsigned>(c - '0');
        }
    };
    std::size_t out = 0;
    for (std::size_t i = 0; i < key.size(); i += 2) {
        const unsigned second = i + 1 < key.size() ? code(key[i + 1]) : 0;
        key[out++] = static_cast<char>(code(key[i]) << 4 | second);
    }
    key.resize(out);
}

// Every row's entry, and the key bytes past the first sixteen end to end in
// one buffer (few keys have any).
struct RowKeys {
    std::vector<SortEntry> entries;
    std::string tails;
    std::vector<std::size_t> tailStarts; // empty while no key has a tail

    std::string_view tail(std::uint32_t row) const
    {
        if (tailStarts.empty())
            return {};
        return std::string_view(tails).substr(tailStarts[row], tailStarts[row + 1] - tailStarts[row]);
    }
};

RowKeys collectKeys(const ReportTable &table, int column, SortKind kind)
{
    RowKeys keys;
    keys.entries.resize(table.rowCount());
    std::string text, key;
    for (std::uint32_t row = 0; row < table.rowCount(); ++row) {
        text.clear();
        table.appendCellText(row, column, text);
        key.clear();
        appendSortKey(key, text, kind);
        if (kind == SortKind::Number)
            packNumberKey(key);
        keys.entries[row] = {eightBytes(key, 0), eightBytes(key, 8), row,
                             static_cast<std::uint32_t>(std::min<std::size_t>(key.size(), UINT32_MAX))};
        if (key.size() > kHeld && keys.tailStarts.empty())
            keys.tailStarts.assign(row, 0); // the rows before have no tail
        if (!keys.tailStarts.empty()) {
            keys.tailStarts.push_back(keys.tails.size());
            if (key.size() > kHeld)
                keys.tails.append(key, kHeld);
        }
    }
    if (!keys.tailStarts.empty())
        keys.tailStarts.push_back(keys.tails.size());
    return keys;
}

void sortRange(Entries first, Entries last, bool ascending)
{
    std::sort(first, last, [ascending](const SortEntry &a, const SortEntry &b) {
        if (a.high != b.high)
            return ascending ? a.high < b.high : b.high < a.high;
        if (a.low != b.low)
            return ascending ? a.low < b.low : b.low < a.low;
        return a.row < b.row;
    });
}

// Sorts by key, sixteen bytes at a time: the entries are sorted by their
// first sixteen; every run of equal bytes whose keys go on is sorted by the
// next sixteen, until no key of a run has more. Ties go by former position
// in both directions, which keeps equal keys in their order with a fast
// unstable sort.
void sortEntries(RowKeys &keys, bool ascending)
{
    struct Range {
        Entries first, last;
        std::size_t offset; // of the bytes the range is sorted by
    };
    sortRange(keys.entries.begin(), keys.entries.end(), ascending);
    std::vector<Range> pending = {{keys.entries.begin(), keys.entries.end(), 0}};
    while (!pending.empty()) {
        const Range range = pending.back();
        pending.pop_back();
        const std::size_t next = range.offset + kHeld;
        for (Entries run = range.first; run != range.last;) {
            Entries end = run + 1;
            bool goesOn = run->length > next, lengthsDiffer = false;
            for (; end != range.last && end->high == run->high && end->low == run->low; ++end) {
                goesOn = goesOn || end->length > next;
                lengthsDiffer = lengthsDiffer || end->length != run->length;
            }
            if (end - run > 1 && goesOn) {
                for (Entries e = run; e != end; ++e) {
                    const std::string_view tail = keys.tail(e->row);
                    e->high = eightBytes(tail, next - kHeld);
                    e->low = eightBytes(tail, next - kHeld + 8);
                }
                sortRange(run, end, ascending);
                pending.push_back({run, end, next});
            } else if (end - run > 1 && lengthsDiffer) {
                // Equal but for zero bytes at the end: the shorter key first.
                std::stable_sort(run, end, [ascending](const SortEntry &a, const SortEntry &b) {
                    return ascending ? a.length < b.length : b.length < a.length;
                });
            }
            run = end;
        }
    }
}

} // namespace

std::vector<std::uint32_t> Sort_List(ReportTable &table, int column, SortKind kind, bool ascending)
{
    if (column < 1 || column > table.columnCount())
        return {};
    RowKeys keys = collectKeys(table, column, kind);
    sortEntries(keys, ascending);
    std::vector<std::uint32_t> newOrder(keys.entries.size());
    for (std::size_t p = 0; p < newOrder.size(); ++p)
        newOrder[p] = keys.entries[p].row;
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
