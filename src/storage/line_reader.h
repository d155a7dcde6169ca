#pragma once

#include "model/input_file.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {

// Reads a text file line by line in one pass through a fixed buffer. Lines
// end with LF or CR LF; the last line may lack its end.
class LineReader {
public:
    // False (with error()) when the file cannot be opened or is no
    // ordinary file of that kind.
    bool open(const std::string &path, const InputKind &kind);
    // The next line without its line end, valid until the next call; false
    // at the end of the file or on a read error (error() tells which).
    bool next(std::string_view &line)
    {
        // Most map file lines are a few characters long, and this runs once
        // for each of more than a million of them: the line end is looked
        // for here, and only a line that runs past the buffered bytes goes
        // the long way.
        const char *start = buffer_.data() + begin_;
        const char *hit = findLineEnd(start, end_ - begin_);
        if (!hit)
            return nextAfterFill(line);
        std::size_t length = static_cast<std::size_t>(hit - start);
        begin_ += length + 1;
        if (length > 0 && start[length - 1] == '\r')
            --length;
        line = std::string_view(start, length);
        ++lineNumber_;
        return true;
    }
    // Number of the line last returned, counting from 1.
    long lineNumber() const { return lineNumber_; }
    const std::string &error() const { return error_; }

private:
    bool fill();
    bool nextAfterFill(std::string_view &line);

    static const char *findLineEnd(const char *from, std::size_t size)
    {
        // A plain loop beats memchr's setup on short lines.
        const std::size_t quick = size < 16 ? size : 16;
        for (std::size_t i = 0; i < quick; ++i)
            if (from[i] == '\n')
                return from + i;
        return size > quick ? static_cast<const char *>(std::memchr(from + quick, '\n', size - quick))
                            : nullptr;
    }

    InputFile file_;
    bool opened_ = false;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    bool eof_ = false;
    long lineNumber_ = 0;
    std::string error_;
};

// The map file's value lines, read through a LineReader. Every read either
// delivers its value or fails with a reason; the caller stops at the first
// failure and keeps what it has.
class MapLineReader {
public:
    explicit MapLineReader(LineReader &lines) : lines_(lines) {}

    bool readRaw(std::string_view &line);
    bool readByte(std::uint8_t &value);
    bool readInt16(std::int16_t &value);
    // A quoted text: everything between the first and the last character.
    bool readText(std::string &value);
    // The same without copying: the view is valid until the next read.
    bool readTextView(std::string_view &inner);
    // The same, with every "@/@" turned back into CR LF.
    bool readEscapedText(std::string &value);
    // Skips one text line, checking only its form.
    bool skipText();

    const std::string &error() const { return error_; }
    long lineNumber() const { return lines_.lineNumber(); }

private:
    bool readNumber(long min, long max, long &value);

    LineReader &lines_;
    std::string error_;
};

// The format version a map file's first line announces: 10..18, or 0 for
// a file without a recognised header.
int mapFormatVersion(std::string_view headerLine);

} // namespace wayscribe
