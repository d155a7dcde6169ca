#include "import/report_reader.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sys/stat.h>

namespace wayscribe {

namespace {
// Turn reports are a few hundred kilobytes; a file far beyond that is not
// a report, and reading it whole would only exhaust memory.
constexpr long long kMaxReportBytes = 256ll << 20;

struct FileCloser {
    void operator()(std::FILE *f) const { std::fclose(f); }
};
} // namespace

bool ReportReader::open(const std::string &path, FileError &error)
{
    path_ = path;
    content_.clear();
    reader_ = CsvReader(std::string_view{});
    line_ = 0;
    error = {path, 0, {}};

    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        error.reason = std::strerror(errno);
        return false;
    }
    if (S_ISDIR(info.st_mode)) {
        error.reason = "it is a folder, not a file";
        return false;
    }
    if (info.st_size > kMaxReportBytes) {
        error.reason = "the file is too large to be a turn report";
        return false;
    }
    std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "rb"));
    if (!file) {
        error.reason = std::strerror(errno);
        return false;
    }
    content_.reserve(static_cast<std::size_t>(info.st_size));
    char buffer[1 << 16];
    std::size_t got;
    while ((got = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) {
        if (static_cast<long long>(content_.size() + got) > kMaxReportBytes) {
            error.reason = "the file is too large to be a turn report";
            return false;
        }
        content_.append(buffer, got);
    }
    if (std::ferror(file.get())) {
        error.reason = std::strerror(errno);
        return false;
    }
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
