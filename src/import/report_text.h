#pragma once

#include <string_view>

namespace wayscribe {

// Cutting texts by 1-based positions, the way the report rules are stated.
// A report may lack a phrase that a cut is measured from; a cut that cannot
// be made (start before the text, negative length) gives an empty text
// instead of stopping the import.

// 1-based position of the first `part` in `text` at or after `from`; 0 when absent.
inline long positionOf(std::string_view text, std::string_view part, long from = 1)
{
    if (from < 1)
        from = 1;
    if (static_cast<std::size_t>(from) > text.size() + 1)
        return 0;
    const std::size_t hit = text.find(part, static_cast<std::size_t>(from - 1));
    return hit == std::string_view::npos ? 0 : static_cast<long>(hit) + 1;
}

// `length` characters from 1-based `start` (fewer at the end of the text).
inline std::string_view midChars(std::string_view text, long start, long length)
{
    if (start < 1 || length < 0 || static_cast<std::size_t>(start) > text.size())
        return {};
    return text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length));
}

// Everything from 1-based `start` on.
inline std::string_view midChars(std::string_view text, long start)
{
    if (start < 1 || static_cast<std::size_t>(start) > text.size())
        return {};
    return text.substr(static_cast<std::size_t>(start - 1));
}

// The first `count` characters; a negative count gives an empty text.
inline std::string_view firstChars(std::string_view text, long count)
{
    return count < 0 ? std::string_view{} : text.substr(0, static_cast<std::size_t>(count));
}

// The text without its last `count` characters.
inline std::string_view dropLast(std::string_view text, long count)
{
    return firstChars(text, static_cast<long>(text.size()) - count);
}

} // namespace wayscribe
