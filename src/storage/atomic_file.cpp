#include "storage/atomic_file.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wayscribe {

namespace {
constexpr std::size_t kBufferSize = 1 << 20;

bool writeAll(int fd, const char *data, std::size_t size, std::string &failure)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            failure = std::strerror(errno);
            return false;
        }
        data += n;
        size -= static_cast<std::size_t>(n);
    }
    return true;
}
} // namespace

BufferedFileWriter::~BufferedFileWriter()
{
    abandon();
}

void BufferedFileWriter::abandon()
{
    if (fd_ >= 0) {
        ::close(fd_);
        fd_ = -1;
    }
    if (!temp_.empty()) {
        ::unlink(temp_.c_str());
        temp_.clear();
    }
}

bool BufferedFileWriter::open(const std::string &target, std::string &reason)
{
    struct stat info {};
    if (::stat(target.c_str(), &info) == 0 && S_ISDIR(info.st_mode)) {
        reason = "it is a folder, not a file";
        return false;
    }
    // Renaming over a device or a pipe would replace it with a plain file.
    if (::stat(target.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) {
        reason = "it is not an ordinary file";
        return false;
    }
    target_ = target;
    const std::size_t slash = target.find_last_of('/');
    const std::string folder = slash == std::string::npos ? std::string() : target.substr(0, slash + 1);
    const std::string name = slash == std::string::npos ? target : target.substr(slash + 1);
    std::string pattern = folder + "." + name + ".saving-XXXXXX";
    fd_ = ::mkstemp(pattern.data());
    if (fd_ < 0) {
        reason = "cannot be created: " + std::string(std::strerror(errno));
        return false;
    }
    temp_ = pattern;
    // Keep the permissions of the file being replaced; a new file gets the
    // usual ones.
    mode_t mode;
    if (::stat(target.c_str(), &info) == 0)
        mode = info.st_mode & 07777;
    else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        mode = 0666 & ~mask;
    }
    ::fchmod(fd_, mode);
    buffer_.resize(kBufferSize);
    used_ = 0;
    return true;
}

void BufferedFileWriter::flushBuffer(std::string_view more)
{
    if (fd_ < 0 || !failure_.empty())
        return;
    if (!writeAll(fd_, buffer_.data(), used_, failure_))
        return;
    used_ = 0;
    if (more.size() >= buffer_.size())
        writeAll(fd_, more.data(), more.size(), failure_);
    else {
        more.copy(buffer_.data(), more.size());
        used_ = more.size();
    }
}

bool BufferedFileWriter::commit(std::string &reason)
{
    if (fd_ < 0) {
        reason = "the file was not opened";
        return false;
    }
    flushBuffer({});
    if (failure_.empty() && ::fsync(fd_) != 0)
        failure_ = std::strerror(errno);
    if (failure_.empty()) {
        const int fd = fd_;
        fd_ = -1;
        if (::close(fd) != 0)
            failure_ = std::strerror(errno);
    }
    if (failure_.empty() && ::rename(temp_.c_str(), target_.c_str()) != 0)
        failure_ = std::strerror(errno);
    if (!failure_.empty()) {
        reason = "cannot be written: " + failure_;
        abandon();
        return false;
    }
    temp_.clear();
    return true;
}

} // namespace wayscribe
