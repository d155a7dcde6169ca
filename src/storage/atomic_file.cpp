#include "storage/atomic_file.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wayscribe {

namespace {
constexpr std::size_t kBufferSize = 1 << 20;
// The temporary file is ".NAME" + kTempMark + six characters mkstemp picks.
constexpr std::string_view kTempMark = ".saving-";
constexpr std::size_t kTempRandomPart = 6;
// As many links as the system itself follows before it gives up.
constexpr int kMaxLinkHops = 40;

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

std::string folderOf(const std::string &path)
{
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// The folder for the person to read: without its trailing '/', except for
// the root folder.
std::string folderForMessage(const std::string &folder)
{
    if (folder.empty())
        return "the current folder";
    return "the folder " + (folder.size() > 1 ? folder.substr(0, folder.size() - 1) : folder);
}

// The path of the file a target finally names: saving over a link must
// write the file it points to, and leave the link a link.
bool resolveLinks(std::string path, std::string &resolved, std::string &reason)
{
    for (int hop = 0; hop < kMaxLinkHops; ++hop) {
        struct stat info {};
        if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) {
            resolved = path;
            return true;
        }
        std::string link(PATH_MAX, '\0');
        const ssize_t n = ::readlink(path.c_str(), link.data(), link.size());
        if (n < 0 || static_cast<std::size_t>(n) >= link.size()) {
            reason = "its symbolic link cannot be followed: " +
                     std::string(n < 0 ? std::strerror(errno) : "the link is too long");
            return false;
        }
        link.resize(static_cast<std::size_t>(n));
        path = !link.empty() && link.front() == '/' ? link : folderOf(path) + link;
    }
    reason = "its symbolic links lead round in a circle";
    return false;
}

bool isLeftoverOf(std::string_view file, std::string_view name)
{
    if (file.size() != 1 + name.size() + kTempMark.size() + kTempRandomPart || file[0] != '.' ||
        file.substr(1, name.size()) != name || file.substr(1 + name.size(), kTempMark.size()) != kTempMark)
        return false;
    for (const char c : file.substr(file.size() - kTempRandomPart))
        if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')))
            return false;
    return true;
}

// Temporary files of this target that a killed save left behind: each
// could hold a whole map.
void removeLeftovers(const std::string &folder, const std::string &name)
{
    DIR *dir = ::opendir(folder.empty() ? "." : folder.c_str());
    if (!dir)
        return;
    while (const dirent *entry = ::readdir(dir)) {
        struct stat info {};
        if (isLeftoverOf(entry->d_name, name) &&
            ::fstatat(::dirfd(dir), entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(info.st_mode))
            ::unlinkat(::dirfd(dir), entry->d_name, 0);
    }
    ::closedir(dir);
}

// No write permission for anyone, whoever asks.
bool isReadOnly(const struct stat &info)
{
    return S_ISREG(info.st_mode) && (info.st_mode & 0222) == 0;
}

// The rename is an entry of the folder: without this a power cut could
// still bring back the old file.
void syncFolder(const std::string &folder)
{
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}
} // namespace

bool isReadOnlyFile(const std::string &path)
{
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 && isReadOnly(info);
}

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

bool BufferedFileWriter::open(const std::string &target, std::string &reason, ReadOnlyTarget readOnly)
{
    std::string real;
    if (!resolveLinks(target, real, reason))
        return false;
    struct stat info {};
    const bool exists = ::stat(real.c_str(), &info) == 0;
    if (exists && S_ISDIR(info.st_mode)) {
        reason = "it is a folder, not a file";
        return false;
    }
    // Renaming over a device or a pipe would replace it with a plain file.
    if (exists && !S_ISREG(info.st_mode)) {
        reason = "it is not an ordinary file";
        return false;
    }
    if (exists && isReadOnly(info) && readOnly == ReadOnlyTarget::Refuse) {
        reason = "it is read-only";
        return false;
    }
    folder_ = folderOf(real);
    name_ = real.substr(folder_.size());
    std::string pattern = folder_ + "." + name_ + std::string(kTempMark) + std::string(kTempRandomPart, 'X');
    fd_ = ::mkstemp(pattern.data());
    if (fd_ < 0) {
        reason = folderForMessage(folder_) + " cannot take a new file: " + std::strerror(errno);
        return false;
    }
    temp_ = pattern;
    // Keep the permissions of the file being replaced (a read-only file that
    // the person agreed to replace stays read-only); a new file gets the
    // usual ones.
    mode_t mode;
    if (exists)
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
    if (failure_.empty() && ::rename(temp_.c_str(), (folder_ + name_).c_str()) != 0)
        failure_ = std::strerror(errno);
    if (!failure_.empty()) {
        reason = "cannot be written: " + failure_;
        abandon();
        return false;
    }
    temp_.clear();
    syncFolder(folder_);
    removeLeftovers(folder_, name_);
    return true;
}

} // namespace wayscribe
