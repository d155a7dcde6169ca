#pragma once

#include <string>
#include <string_view>

namespace wayscribe {

// How a list column sorts when its header is clicked.
enum class SortKind { Text = 0, Number = 1 };

// Every "-" becomes a blank and every digit d becomes 9 - d; all other
// characters stay.
std::string Invert_Digits(std::string_view text);

// Appends to `out` the key under which a cell text sorts; keys are compared
// byte by byte (as unsigned characters).
//
// Text: the text with Windows-1252 case folding applied, so that the order is
// case-insensitive ("apple" < "Banana" < "cherry") and otherwise follows the
// character codes: blanks and most punctuation before digits, digits before
// letters, accented letters after "z". Texts that differ only in case have
// equal keys.
//
// Number: a fixed-width text that sorts alphabetically in numeric order. A
// value v >= 0 is written with 20 integer digits, a point and 10 decimals
// ("00000000000000001234.5000000000"); a negative one is "&" followed by
// Invert_Digits of its magnitude so written, so that the most negative sorts
// first. A text that is not numeric gets an empty key and sorts before every
// number. Values of 1e20 and more take more than 20 digits and then no longer
// sort in numeric order against shorter ones; decimals past the tenth are
// rounded away, so values closer than that are equal.
//
// A text is numeric when, with leading and trailing blanks removed, it is a
// decimal number: an optional sign, digits with an optional fraction (at
// least one digit in all), an optional exponent ("e" or "E", optional sign,
// digits), and its value is within the range of a double. "12", "-3.5",
// "+.5", " 1e3 " are numeric; "", "abc", "1,000", "12abc", "1e999" are not.
void appendSortKey(std::string &out, std::string_view text, SortKind kind);

inline std::string sortKey(std::string_view text, SortKind kind)
{
    std::string key;
    appendSortKey(key, text, kind);
    return key;
}

} // namespace wayscribe
