#include "model/text.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace wayscribe {

std::string_view trimLeftBlanks(std::string_view text)
{
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    return text.substr(i);
}

std::string_view trimRightBlanks(std::string_view text)
{
    std::size_t n = text.size();
    while (n > 0 && text[n - 1] == ' ')
        --n;
    return text.substr(0, n);
}

std::string_view trimBlanks(std::string_view text)
{
    return trimRightBlanks(trimLeftBlanks(text));
}

long positionOf(std::string_view text, std::string_view part, long from)
{
    if (from < 1)
        from = 1;
    if (static_cast<std::size_t>(from) > text.size() + 1)
        return 0;
    const std::size_t hit = text.find(part, static_cast<std::size_t>(from - 1));
    return hit == std::string_view::npos ? 0 : static_cast<long>(hit) + 1;
}

std::string_view midChars(std::string_view text, long start, long length)
{
    if (length < 0)
        return {};
    return midChars(text, start).substr(0, static_cast<std::size_t>(length));
}

std::string_view midChars(std::string_view text, long start)
{
    if (start < 1 || static_cast<std::size_t>(start) > text.size())
        return {};
    return text.substr(static_cast<std::size_t>(start - 1));
}

std::string_view leftChars(std::string_view text, long count)
{
    return count < 0 ? std::string_view{} : text.substr(0, static_cast<std::size_t>(count));
}

std::string_view dropLast(std::string_view text, long count)
{
    return leftChars(text, static_cast<long>(text.size()) - count);
}

bool startsWith(std::string_view text, std::string_view prefix)
{
    return text.substr(0, prefix.size()) == prefix;
}

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

std::string oneLine(std::string_view text)
{
    std::string out(text);
    for (char &c : out)
        if (c == '\r' || c == '\n')
            c = ' ';
    return out;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string out;
    out.reserve(text.size());
    std::size_t at = 0;
    while (true) {
        const std::size_t hit = text.find(from, at);
        if (hit == std::string_view::npos || from.empty())
            break;
        out.append(text.substr(at, hit - at));
        out.append(to);
        at = hit + from.size();
    }
    out.append(text.substr(at));
    return out;
}

double textValueOrInfinity(std::string_view text)
{
    // Gather the characters that can form a number, skipping blanks anywhere
    // ("1 2" is 12), as map files and reports have always been read.
    std::string number;
    std::size_t i = 0;
    auto skip = [&] {
        while (i < text.size() && text[i] == ' ')
            ++i;
    };
    auto digits = [&] {
        bool any = false;
        for (skip(); i < text.size() && text[i] >= '0' && text[i] <= '9'; skip()) {
            number.push_back(text[i++]);
            any = true;
        }
        return any;
    };
    skip();
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        number.push_back(text[i++]);
    bool mantissa = digits();
    if (i < text.size() && text[i] == '.') {
        number.push_back(text[i++]);
        mantissa = digits() || mantissa;
    }
    if (!mantissa)
        return 0.0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        std::string exponent = "e";
        std::size_t save = i++;
        skip();
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            exponent.push_back(text[i++]);
        std::string before = number;
        number.clear();
        if (digits())
            number = before + exponent + number;
        else {
            number = before;
            i = save;
        }
    }
    return std::strtod(number.c_str(), nullptr);
}

double textValue(std::string_view text)
{
    const double v = textValueOrInfinity(text);
    return std::isfinite(v) ? v : 0.0;
}

double roundHalfEven(double value)
{
    return std::nearbyint(value); // the default rounding mode rounds halves to even
}

long long indexValue(std::string_view text)
{
    const double v = roundHalfEven(textValue(text));
    constexpr double limit = 1e15;
    if (v > limit)
        return static_cast<long long>(limit);
    if (v < -limit)
        return static_cast<long long>(-limit);
    return static_cast<long long>(v);
}

std::string formatPlain(long long value)
{
    return std::to_string(value);
}

std::string formatGeneral(double value)
{
    std::string digits;
    if (value == std::floor(value) && std::fabs(value) < 1e15) {
        digits = std::to_string(static_cast<long long>(value));
    } else {
        // Up to 15 significant digits, no trailing zeros, and no zero before
        // the decimal point of a fraction (" .5"), as messages have always
        // shown them.
        char buf[64];
        std::snprintf(buf, sizeof buf, "%.15g", value);
        digits = buf;
        if (digits.find('e') == std::string::npos) {
            if (startsWith(digits, "0."))
                digits.erase(0, 1);
            else if (startsWith(digits, "-0."))
                digits.erase(1, 1);
        }
    }
    if (value >= 0)
        digits.insert(digits.begin(), ' ');
    return digits;
}

char toLowerChar(char c)
{
    const unsigned char u = static_cast<unsigned char>(c);
    if (u >= 'A' && u <= 'Z')
        return static_cast<char>(u + 32);
    if ((u >= 0xC0 && u <= 0xDE && u != 0xD7))
        return static_cast<char>(u + 32);
    switch (u) {
    case 0x8A:
        return static_cast<char>(0x9A);
    case 0x8C:
        return static_cast<char>(0x9C);
    case 0x8E:
        return static_cast<char>(0x9E);
    case 0x9F:
        return static_cast<char>(0xFF);
    default:
        return c;
    }
}

char toUpperChar(char c)
{
    const unsigned char u = static_cast<unsigned char>(c);
    if (u >= 'a' && u <= 'z')
        return static_cast<char>(u - 32);
    if ((u >= 0xE0 && u <= 0xFE && u != 0xF7))
        return static_cast<char>(u - 32);
    switch (u) {
    case 0x9A:
        return static_cast<char>(0x8A);
    case 0x9C:
        return static_cast<char>(0x8C);
    case 0x9E:
        return static_cast<char>(0x8E);
    case 0xFF:
        return static_cast<char>(0x9F);
    default:
        return c;
    }
}

bool equalsIgnoreCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (toLowerChar(a[i]) != toLowerChar(b[i]))
            return false;
    return true;
}

std::string changeCase(std::string_view text, bool proper)
{
    std::string out(text);
    bool wordStart = true;
    for (char &c : out) {
        if (proper && wordStart)
            c = toUpperChar(c);
        else
            c = toLowerChar(c);
        // Words are separated by blanks, NULs, tabs, line feeds, vertical
        // tabs, form feeds and carriage returns.
        wordStart = c == ' ' || c == '\0' || (c >= '\t' && c <= '\r');
    }
    return out;
}

void CsvReader::consumeLineEnd()
{
    if (pos_ < text_.size() && text_[pos_] == '\r')
        ++pos_;
    if (pos_ < text_.size() && text_[pos_] == '\n')
        ++pos_;
    ++line_;
}

bool CsvReader::nextLine(std::string &line)
{
    line.clear();
    if (atEnd())
        return false;
    const std::size_t start = pos_;
    while (pos_ < text_.size() && text_[pos_] != '\r' && text_[pos_] != '\n')
        ++pos_;
    line.assign(text_.substr(start, pos_ - start));
    if (pos_ < text_.size())
        consumeLineEnd();
    return true;
}

bool CsvReader::next(std::string &value)
{
    value.clear();
    if (atEnd())
        return false;
    while (pos_ < text_.size() && text_[pos_] == ' ')
        ++pos_;
    if (pos_ < text_.size() && text_[pos_] == '"') {
        ++pos_;
        const std::size_t close = text_.find('"', pos_);
        const std::size_t end = close == std::string_view::npos ? text_.size() : close;
        value.assign(text_.substr(pos_, end - pos_));
        for (char c : value)
            if (c == '\n')
                ++line_;
        pos_ = close == std::string_view::npos ? text_.size() : close + 1;
        // Whatever follows the closing quote up to the delimiter is dropped.
        while (pos_ < text_.size() && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n')
            ++pos_;
    } else {
        const std::size_t start = pos_;
        while (pos_ < text_.size() && text_[pos_] != ',' && text_[pos_] != '\r' && text_[pos_] != '\n')
            ++pos_;
        value.assign(trimRightBlanks(text_.substr(start, pos_ - start)));
    }
    if (pos_ < text_.size()) {
        if (text_[pos_] == ',')
            ++pos_;
        else
            consumeLineEnd();
    }
    return true;
}

} // namespace wayscribe
