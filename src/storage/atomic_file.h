#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wayscribe {

// Whether a file that is read-only (no write permission for anyone, as a
// file manager shows it) may be replaced: only once the person agreed.
enum class ReadOnlyTarget { Refuse, Replace };

// True for an ordinary file without write permission, also behind a
// symbolic link. Decided by the permission bits alone, so that it holds for
// every user, the administrator too.
bool isReadOnlyFile(const std::string &path);

// Writes a file beside its target and renames it over the target only when
// every byte has reached the disk: a failed write leaves the old file as it
// was. A target that is a symbolic link stays one: the file it points to is
// the one replaced. Output is buffered; nothing of the file is kept in
// memory beyond it. Temporary files that a killed save left beside the
// target go with the next save that succeeds.
class BufferedFileWriter {
public:
    BufferedFileWriter() = default;
    ~BufferedFileWriter();
    BufferedFileWriter(const BufferedFileWriter &) = delete;
    BufferedFileWriter &operator=(const BufferedFileWriter &) = delete;

    bool open(const std::string &target, std::string &reason,
              ReadOnlyTarget readOnly = ReadOnlyTarget::Refuse);
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
    std::string folder_; // the real target's folder, with its '/'; empty for the current folder
    std::string name_;   // the real target's own name
    std::string temp_;
    std::vector<char> buffer_;
    std::size_t used_ = 0;
    std::string failure_;
};

} // namespace wayscribe
