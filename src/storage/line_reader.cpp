#include "storage/line_reader.h"

#include "model/text.h"
#include "storage/field_number.h"

#include <cstring>

namespace wayscribe {

namespace {
constexpr std::size_t kChunk = 1 << 20;
// A line longer than this is not a map file line; stops runaway memory on junk.
constexpr std::size_t kMaxLine = std::size_t(256) << 20;
} // namespace

bool LineReader::open(const std::string &path, const InputKind &kind)
{
    if (!file_.open(path, kind, error_))
        return false;
    opened_ = true;
    buffer_.resize(kChunk);
    return true;
}

bool LineReader::fill()
{
    if (eof_)
        return false;
    if (begin_ > 0) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= begin_;
        begin_ = 0;
    }
    if (end_ == buffer_.size()) {
        if (buffer_.size() >= kMaxLine) {
            error_ = "a line is too long";
            eof_ = true;
            return false;
        }
        buffer_.resize(buffer_.size() * 2);
    }
    std::size_t got = 0;
    const bool ok = file_.read(buffer_.data() + end_, buffer_.size() - end_, got, error_);
    end_ += got;
    if (!ok || got == 0) {
        eof_ = true;
        return false;
    }
    return true;
}

bool LineReader::nextAfterFill(std::string_view &line)
{
    if (!opened_)
        return false;
    std::size_t searched = begin_;
    while (true) {
        const char *start = buffer_.data() + searched;
        const void *hit = std::memchr(start, '\n', end_ - searched);
        if (hit) {
            const std::size_t at = static_cast<const char *>(hit) - buffer_.data();
            std::size_t stop = at;
            if (stop > begin_ && buffer_[stop - 1] == '\r')
                --stop;
            line = std::string_view(buffer_.data() + begin_, stop - begin_);
            begin_ = at + 1;
            ++lineNumber_;
            return true;
        }
        const std::size_t scanned = end_ - begin_;
        if (!fill()) {
            if (!error_.empty() || end_ == begin_)
                return false;
            std::size_t stop = end_;
            if (buffer_[stop - 1] == '\r')
                --stop;
            line = std::string_view(buffer_.data() + begin_, stop - begin_);
            begin_ = end_;
            ++lineNumber_;
            return true;
        }
        searched = begin_ + scanned;
    }
}

bool MapLineReader::readRaw(std::string_view &line)
{
    if (lines_.next(line))
        return true;
    error_ = lines_.error().empty() ? "the file ends early" : lines_.error();
    return false;
}

bool MapLineReader::readNumber(long min, long max, long &value)
{
    std::string_view line;
    if (!readRaw(line))
        return false;
    const std::string_view digits = trimBlanks(line);
    // Plain digits are by far the common case; anything else, and a number
    // that does not fit, goes through the lenient conversion.
    if (!digits.empty() && digits.size() <= 9 &&
        digits.find_first_not_of("0123456789") == std::string_view::npos) {
        long v = 0;
        for (char c : digits)
            v = v * 10 + (c - '0');
        if (v >= min && v <= max) {
            value = v;
            return true;
        }
    }
    return fieldNumber(digits, min, max, value, error_);
}

bool MapLineReader::readByte(std::uint8_t &value)
{
    long v;
    if (!readNumber(0, 255, v))
        return false;
    value = static_cast<std::uint8_t>(v);
    return true;
}

bool MapLineReader::readInt16(std::int16_t &value)
{
    long v;
    if (!readNumber(-32768, 32767, v))
        return false;
    value = static_cast<std::int16_t>(v);
    return true;
}

bool MapLineReader::readTextView(std::string_view &inner)
{
    std::string_view line;
    if (!readRaw(line))
        return false;
    if (line.size() < 2) {
        error_ = "a text line is shorter than two characters";
        return false;
    }
    inner = line.substr(1, line.size() - 2);
    return true;
}

bool MapLineReader::readText(std::string &value)
{
    std::string_view inner;
    if (!readTextView(inner))
        return false;
    value.assign(inner);
    return true;
}

bool MapLineReader::readEscapedText(std::string &value)
{
    std::string_view inner;
    if (!readTextView(inner))
        return false;
    if (inner.find("@/@") == std::string_view::npos)
        value.assign(inner);
    else
        value = replaceAll(inner, "@/@", "\r\n");
    return true;
}

bool MapLineReader::skipText()
{
    std::string_view inner;
    return readTextView(inner);
}

int mapFormatVersion(std::string_view headerLine)
{
    const std::string_view tag = headerLine.substr(std::min<std::size_t>(1, headerLine.size()), 4);
    if (tag.size() == 4 && tag[0] == 'v' && tag[1] == '0' && tag[2] == '1' && tag[3] >= '0' && tag[3] <= '8')
        return 10 + (tag[3] - '0');
    return 0;
}

} // namespace wayscribe
