#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {

// Writes a file beside its target and renames it over the target only when
// every byte has reached the disk: a failed write leaves the old file as it
// was. Output is buffered; nothing of the file is kept in memory beyond it.
class BufferedFileWriter {
public:
    BufferedFileWriter() = default;
    ~BufferedFileWriter();
    BufferedFileWriter(const BufferedFileWriter &) = delete;
    BufferedFileWriter &operator=(const BufferedFileWriter &) = delete;

    bool open(const std::string &target, std::string &reason);
    void write(std::string_view bytes)
    {
        if (buffer_.size() - used_ < bytes.size())
            flushBuffer(bytes);
        else {
            bytes.copy(buffer_.data() + used_, bytes.size());
            used_ += bytes.size();
        }
    }
    // Flushes, syncs and renames; false with a reason on any failure.
    bool commit(std::string &reason);

private:
    void flushBuffer(std::string_view more);
    void abandon();

    int fd_ = -1;
    std::string target_;
    std::string temp_;
    std::vector<char> buffer_;
    std::size_t used_ = 0;
    std::string failure_;
};

} // namespace wayscribe
