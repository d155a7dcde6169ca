#pragma once

#include "model/file_error.h"
#include "model/text.h"

#include <string>
#include <string_view>

namespace wayscribe {

// Why a report's import stopped before its end: where, and what was wrong.
// Thrown inside the importer only; the import catches it, keeps what was
// read and tells the person.
struct ReportFailure {
    FileError error;
};

// One turn report, read either as whole lines or as comma-separated fields
// from the same position, as the importer's read modes require.
class ReportReader {
public:
    // Loads the report; false with `error` filled when it cannot be read.
    bool open(const std::string &path, FileError &error);

    bool atEnd() const { return reader_.atEnd(); }

    // The next whole line or field; the main loop tests atEnd() first.
    void readLine(std::string &text);
    void readField(std::string &text);

    // Inside a section the report must go on; a report that ends there was
    // cut off, which stops its import. `section` names the place for the
    // person ("the map table").
    void requireLine(std::string &text, const char *section);
    void requireField(std::string &text, const char *section);

    // Stops the import at the text last read.
    [[noreturn]] void fail(const std::string &reason) const;

    // The value of a text rounded to a whole number, which must fit the
    // field it is stored in (min..max); otherwise the import stops.
    long wholeNumber(std::string_view text, long min, long max, const char *what) const;

    const std::string &path() const { return path_; }
    // The line on which the text last read began.
    long line() const { return line_; }

private:
    std::string path_;
    std::string content_;
    CsvReader reader_{std::string_view{}};
    long line_ = 0;
};

} // namespace wayscribe
