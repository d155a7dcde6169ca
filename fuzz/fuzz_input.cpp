#include "fuzz/fuzz_input.h"

#include "model/file_error.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace wayscribe::fuzz {

namespace {

// TMPDIR, else the shared-memory file system: rewriting a file on a disk
// file system can make the kernel flush it on every close, which would be
// most of the time a run takes.
std::string temporaryRoot()
{
    if (const char *tmp = std::getenv("TMPDIR"); tmp && *tmp)
        return tmp;
    std::error_code ignored;
    return std::filesystem::is_directory("/dev/shm", ignored) ? "/dev/shm" : "/tmp";
}

// The temporary folder of this process, made on first use. A run that
// crashes leaves it behind, with the input that crashed in it.
class InputFolder {
public:
    InputFolder()
    {
        std::string pattern = temporaryRoot() + "/wayscribe-fuzz-XXXXXX";
        if (!::mkdtemp(pattern.data())) {
            std::perror("wayscribe fuzz: cannot make a temporary folder");
            std::abort();
        }
        path_ = pattern;
    }
    ~InputFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    InputFolder(const InputFolder &) = delete;
    InputFolder &operator=(const InputFolder &) = delete;

    const std::string &path() const { return path_; }

private:
    std::string path_;
};

// Line breaks of any kind (CR LF, a lone CR, a lone LF) each end a line:
// the readers count them differently, and none counts more.
long lineCount(std::string_view bytes)
{
    long lines = 1;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (bytes[i] == '\n' || (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n')))
            ++lines;
    return lines;
}

} // namespace

std::pair<std::string_view, std::string_view> splitInput(std::string_view input)
{
    const std::size_t at = input.find(kPartSeparator);
    if (at == std::string_view::npos)
        return {input, {}};
    return {input.substr(0, at), input.substr(at + kPartSeparator.size())};
}

std::string writeInputFile(const std::string &name, std::string_view bytes)
{
    static const InputFolder folder;
    const std::string path = folder.path() + "/" + name;
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    expect(static_cast<bool>(out), "the input could not be written to the temporary folder");
    return path;
}

void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "wayscribe fuzz: %s\n", what);
    std::abort();
}

void expectNamedLine(const FileError &error, const std::string &path, std::string_view bytes)
{
    const long lines = lineCount(bytes);
    expect(error.path == path, "the complaint names another file");
    expect(!error.reason.empty(), "the complaint gives no reason");
    expect(error.line >= 1 && error.line <= lines + 1, "the complaint names a line the file does not have");
}

} // namespace wayscribe::fuzz
