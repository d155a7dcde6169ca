#include "import/report_reader.h"

#include "model/input_file.h"

namespace wayscribe {

namespace {
// Turn reports are a few hundred kilobytes; a file far beyond that is not
// a report, and reading it whole would only exhaust memory.
constexpr InputKind kTurnReport{"a turn report", std::uint64_t(256) << 20};
} // namespace

bool ReportReader::open(const std::string &path, FileError &error)
{
    path_ = path;
    content_.clear();
    reader_ = CsvReader(std::string_view{});
    line_ = 0;
    error = {path, 0, {}};

    InputFile file;
    if (!file.open(path, kTurnReport, error.reason) || !file.readAll(content_, error.reason))
        return false;
    reader_ = CsvReader(content_);
    return true;
}

void ReportReader::readLine(std::string &text)
{
    line_ = reader_.line();
    reader_.nextLine(text);
}

void ReportReader::readField(std::string &text)
{
    line_ = reader_.line();
    reader_.next(text);
}

void ReportReader::requireLine(std::string &text, const char *section)
{
    if (atEnd())
        fail(std::string("the report ends inside ") + section);
    readLine(text);
}

void ReportReader::requireField(std::string &text, const char *section)
{
    if (atEnd())
        fail(std::string("the report ends inside ") + section);
    readField(text);
}

void ReportReader::fail(const std::string &reason) const
{
    throw ReportFailure{{path_, line_ > 0 ? line_ : 1, reason}};
}

long ReportReader::wholeNumber(std::string_view text, long min, long max, const char *what) const
{
    const double v = roundHalfEven(textValue(text));
    if (!(v >= static_cast<double>(min) && v <= static_cast<double>(max)))
        fail(std::string("the ") + what + " \"" + std::string(trimBlanks(text).substr(0, 40)) +
             "\" does not fit its field (" + std::to_string(min) + " to " + std::to_string(max) + ")");
    return static_cast<long>(v);
}

} // namespace wayscribe
