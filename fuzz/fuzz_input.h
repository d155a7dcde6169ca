#pragma once

// What every fuzz target does with libFuzzer's bytes: hands them to a reader
// as a file, and checks what the reader reports about them.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace wayscribe {
struct FileError;
}

namespace wayscribe::fuzz {

// Stands between the two parts of an input that feeds two texts: the two
// files of a QuestOR map, the two boxes of the route finder.
inline constexpr std::string_view kPartSeparator = "=NEXT=";

inline std::string_view inputBytes(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

// The parts before and after the first separator; without one, all of the
// input is the first part and the second is empty.
std::pair<std::string_view, std::string_view> splitInput(std::string_view input);

// Writes `bytes` as the file `name` in this process's own temporary folder,
// which is removed when the process ends, and returns its path. Each run
// writes its files afresh, so nothing of one run reaches the next.
std::string writeInputFile(const std::string &name, std::string_view bytes);

// Stops the run as a finding (libFuzzer keeps the input) unless `holds`.
void expect(bool holds, const char *what);

// A reader's complaint must name the file it read and a line the file has
// (or the line just after the last, where a file that ends early stops).
void expectNamedLine(const FileError &error, const std::string &path, std::string_view bytes);

} // namespace wayscribe::fuzz
