#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace wayscribe {

// What a reader expects to find, for its messages and its size limit: no
// file of that kind comes anywhere near the limit, and one beyond it would
// only fill the memory.
struct InputKind {
    const char *name; // with its article: "a map file", "a turn report"
    std::uint64_t maxBytes;
};

// A file opened for reading only when it is an ordinary file within its
// kind's size limit. Opening never waits: a pipe or a device is refused
// before a byte of it is read, so a reader can neither hang on one nor read
// one without end. Every reader of outside files opens them here.
class InputFile {
public:
    InputFile() = default;
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    // False with a reason for the person: the system's, "it is a folder, not
    // a file", "it is not an ordinary file" or "it is larger than 256 MB, too
    // large for a map file".
    bool open(const std::string &path, const InputKind &kind, std::string &reason);
    // Up to `size` bytes into `into`; `got` is 0 at the end of the file.
    // False with a reason on a read error, or when a file that grows while it
    // is read passes its limit.
    bool read(char *into, std::size_t size, std::size_t &got, std::string &reason);
    // The rest of the file, in place of what `bytes` held; false as read().
    bool readAll(std::string &bytes, std::string &reason);
    // The size when the file was opened.
    std::uint64_t size() const { return size_; }

private:
    std::string tooLarge() const;

    int fd_ = -1;
    InputKind kind_{"", 0};
    std::uint64_t size_ = 0;
    std::uint64_t readSoFar_ = 0;
};

} // namespace wayscribe
