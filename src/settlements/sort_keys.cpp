#include "settlements/sort_keys.h"

#include "model/text.h"

#include <array>
#include <charconv>
#include <optional>

namespace wayscribe {
namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Checks the shape of a decimal number (sign, digits, fraction, exponent) so
// that nothing else the number reader might accept counts as numeric.
bool hasNumberShape(std::string_view t)
{
    std::size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    std::size_t digits = 0;
    while (i < t.size() && isDigit(t[i]))
        ++i, ++digits;
    if (i < t.size() && t[i] == '.') {
        ++i;
        while (i < t.size() && isDigit(t[i]))
            ++i, ++digits;
    }
    if (digits == 0)
        return false;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        ++i;
        if (i < t.size() && (t[i] == '+' || t[i] == '-'))
            ++i;
        const std::size_t exponentStart = i;
        while (i < t.size() && isDigit(t[i]))
            ++i;
        if (i == exponentStart)
            return false;
    }
    return i == t.size();
}

std::optional<double> numericValue(std::string_view text)
{
    std::string_view t = trimBlanks(text);
    if (!hasNumberShape(t))
        return std::nullopt;
    if (t.front() == '+') // the reader takes a minus sign only
        t.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), value);
    if (error != std::errc() || end != t.data() + t.size())
        return std::nullopt;
    return value == 0 ? 0.0 : value; // -0 is not negative
}

// The magnitude with at least 20 integer digits, a point and 10 decimals.
void appendFixed(std::string &out, double magnitude)
{
    // The widest double written in full: 309 integer digits, point, decimals.
    std::array<char, 330> digits;
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, std::chars_format::fixed, 10);
    const std::string_view written(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()));
    constexpr std::size_t kIntegerDigits = 20;
    const std::size_t integerDigits = written.find('.');
    if (integerDigits < kIntegerDigits)
        out.append(kIntegerDigits - integerDigits, '0');
    out.append(written);
}

void appendNumberKey(std::string &out, std::string_view text)
{
    const std::optional<double> value = numericValue(text);
    if (!value)
        return;
    if (*value >= 0) {
        appendFixed(out, *value);
        return;
    }
    // "&" sorts before the digits; inverting the digits turns the largest
    // magnitude into the smallest text.
    out += '&';
    const std::size_t start = out.size();
    appendFixed(out, -*value);
    out.replace(start, std::string::npos, Invert_Digits(std::string_view(out).substr(start)));
}

const std::array<char, 256> &foldTable()
{
    static const std::array<char, 256> table = [] {
        std::array<char, 256> t{};
        for (int c = 0; c < 256; ++c)
            t[c] = toLowerChar(static_cast<char>(c));
        return t;
    }();
    return table;
}

} // namespace

std::string Invert_Digits(std::string_view text)
{
    std::string out(text);
    for (char &c : out) {
        if (c == '-')
            c = ' ';
        else if (isDigit(c))
            c = static_cast<char>('9' - (c - '0'));
    }
    return out;
}

void appendSortKey(std::string &out, std::string_view text, SortKind kind)
{
    if (kind == SortKind::Number) {
        appendNumberKey(out, text);
        return;
    }
    const std::array<char, 256> &fold = foldTable();
    const std::size_t start = out.size();
    out.append(text);
    for (std::size_t i = start; i < out.size(); ++i)
        out[i] = fold[static_cast<unsigned char>(out[i])];
}

} // namespace wayscribe
