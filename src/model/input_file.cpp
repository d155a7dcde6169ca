#include "model/input_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wayscribe {

InputFile::~InputFile()
{
    if (fd_ >= 0)
        ::close(fd_);
}

bool InputFile::open(const std::string &path, const InputKind &kind, std::string &reason)
{
    kind_ = kind;
    // Without O_NONBLOCK, opening a pipe waits for a writer that may never
    // come; what was opened is looked at before anything is read.
    fd_ = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd_ < 0) {
        reason = std::strerror(errno);
        return false;
    }
    struct stat info {};
    if (::fstat(fd_, &info) != 0)
        reason = std::strerror(errno);
    else if (S_ISDIR(info.st_mode))
        reason = "it is a folder, not a file";
    else if (!S_ISREG(info.st_mode))
        reason = "it is not an ordinary file";
    else if (static_cast<std::uint64_t>(info.st_size) > kind.maxBytes)
        reason = tooLarge();
    else {
        size_ = static_cast<std::uint64_t>(info.st_size);
        // An ordinary file never blocks; reads go back to the usual mode so
        // that a network file system's slow read is not taken for an error.
        ::fcntl(fd_, F_SETFL, ::fcntl(fd_, F_GETFL) & ~O_NONBLOCK);
        return true;
    }
    ::close(fd_);
    fd_ = -1;
    return false;
}

bool InputFile::read(char *into, std::size_t size, std::size_t &got, std::string &reason)
{
    got = 0;
    if (fd_ < 0) {
        reason = "the file was not opened";
        return false;
    }
    ssize_t n;
    do
        n = ::read(fd_, into, size);
    while (n < 0 && errno == EINTR);
    if (n < 0) {
        reason = std::strerror(errno);
        return false;
    }
    readSoFar_ += static_cast<std::uint64_t>(n);
    if (readSoFar_ > kind_.maxBytes) {
        reason = tooLarge();
        return false;
    }
    got = static_cast<std::size_t>(n);
    return true;
}

std::string InputFile::tooLarge() const
{
    return "it is larger than " + std::to_string(kind_.maxBytes >> 20) + " MB, too large for " + kind_.name;
}

bool InputFile::readAll(std::string &bytes, std::string &reason)
{
    bytes.resize(static_cast<std::size_t>(size_ - std::min(size_, readSoFar_)));
    std::size_t used = 0;
    while (true) {
        // Room for more than the size known at opening tells whether the
        // file has grown since.
        if (used == bytes.size())
            bytes.resize(bytes.size() + (std::size_t(1) << 16));
        std::size_t got;
        if (!read(bytes.data() + used, bytes.size() - used, got, reason)) {
            bytes.clear();
            return false;
        }
        if (got == 0)
            break;
        used += got;
    }
    bytes.resize(used);
    return true;
}

} // namespace wayscribe
