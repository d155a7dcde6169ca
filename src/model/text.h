#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wayscribe {

// Text rules shared by every file format and window. Texts are single-byte
// strings; "blanks" are spaces only: tabs and line breaks are never trimmed.

std::string_view trimBlanks(std::string_view text);
std::string_view trimLeftBlanks(std::string_view text);
std::string_view trimRightBlanks(std::string_view text);

// Cutting texts by 1-based positions, the way the rules are stated. A text
// may lack a phrase that a cut is measured from; a cut that cannot be made
// (a start before the text, a negative length) gives an empty text instead
// of stopping the caller.

// 1-based position of the first `part` in `text` at or after `from` (a
// `from` below 1 searches from the start); 0 when absent.
long positionOf(std::string_view text, std::string_view part, long from = 1);

// `length` characters from 1-based `start` (fewer at the end of the text),
// and everything from `start` on; empty for a start past the end.
std::string_view midChars(std::string_view text, long start, long length);
std::string_view midChars(std::string_view text, long start);

// The first `count` characters: all of a shorter text, none for a negative
// count.
std::string_view leftChars(std::string_view text, long count);

// The text without its last `count` characters.
std::string_view dropLast(std::string_view text, long count);

bool startsWith(std::string_view text, std::string_view prefix);
bool contains(std::string_view text, std::string_view part);
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

// A text for a one-line field (names, item fields): every CR and every LF
// becomes a blank, so that the map file keeps one value per line.
std::string oneLine(std::string_view text);

// The numeric value of a text: blanks are skipped, the number is read up to
// the first character that cannot continue it; no leading number gives 0.
double textValue(std::string_view text);
// The same, except that a number beyond the range of a double gives an
// infinity rather than 0, for a field that must refuse it.
double textValueOrInfinity(std::string_view text);

// Rounds to the nearest integer, halves to the even neighbour. Every place
// that turns a value into an index rounds through here.
double roundHalfEven(double value);

// The value of a text rounded for use as an index; saturates far outside
// the int range so that range checks stay simple.
long long indexValue(std::string_view text);

// The general number format: decimal, one blank before a number that is not
// negative (" 31", "-2", " 1.5").
std::string formatGeneral(double value);

// Plain decimal, no blank.
std::string formatPlain(long long value);

// Proper case (first letter of every word upper case, the rest lower case)
// or lower case of a Windows-1252 text.
std::string changeCase(std::string_view text, bool proper);

// Case folding of one Windows-1252 character.
char toLowerChar(char c);
char toUpperChar(char c);
bool equalsIgnoreCase(std::string_view a, std::string_view b);

// Reads values from a text the way comma-separated input does: blanks
// before a value are skipped; a value that begins with a double quote runs to
// the next double quote and loses the quotes; any other value ends at a comma
// or the end of the line and drops its trailing blanks. The comma or line end
// that ends a value is consumed. Lines end with CR LF, LF or CR.
class CsvReader {
public:
    explicit CsvReader(std::string_view text) : text_(text) {}

    // False at the end of the text.
    bool next(std::string &value);
    // The rest of the current line without its line end, which is consumed:
    // whole-line input mixed with value input on the same text, as a report
    // reader needs. False at the end of the text.
    bool nextLine(std::string &line);
    bool atEnd() const { return pos_ >= text_.size(); }
    // 1-based line number of the next character to read.
    int line() const { return line_; }

private:
    void consumeLineEnd();

    std::string_view text_;
    std::size_t pos_ = 0;
    int line_ = 1;
};

} // namespace wayscribe
