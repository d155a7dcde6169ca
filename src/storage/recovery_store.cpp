#include "storage/recovery_store.h"

#include "model/file_error.h"
#include "model/input_file.h"
#include "model/program_state.h"
#include "storage/atomic_file.h"
#include "storage/map_file.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace wayscribe {

namespace {

constexpr const char *kMapName = "recovery.om1";
constexpr const char *kInfoName = "recovery.info";
constexpr const char *kDeclinedMapName = "declined.om1";
constexpr const char *kDeclinedInfoName = "declined.info";
constexpr InputKind kRecoveryInfo{"a recovery note", 64 * 1024};

bool makeFolders(const std::string &folder, std::string &reason)
{
    for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
        const std::string part = folder.substr(0, slash);
        if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST) {
            reason = part + ": " + std::strerror(errno);
            return false;
        }
        if (slash == std::string::npos)
            return true;
    }
}

bool processAlive(long pid)
{
    return pid > 0 && (::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM);
}

} // namespace

RecoveryStore::RecoveryStore(std::string folder) : folder_(std::move(folder)) {}

bool RecoveryStore::save(const World &world, const ProgramState &state, std::string &reason) const
{
    if (!makeFolders(folder_, reason))
        return false;
    BufferedFileWriter info;
    if (!info.open(file(kInfoName), reason))
        return false;
    info.write(state.document.mapFileName);
    info.write("\n");
    info.write(std::to_string(::getpid()));
    info.write("\n");
    if (!info.commit(reason))
        return false;
    FileError error;
    if (!writeMapFile(file(kMapName), world, state.document.gameNumber, error)) {
        reason = error.describe();
        return false;
    }
    return true;
}

std::optional<LeftBehindMap> RecoveryStore::leftBehind() const
{
    struct stat st {};
    if (folder_.empty() || ::stat(file(kMapName).c_str(), &st) != 0 || !S_ISREG(st.st_mode))
        return std::nullopt;
    LeftBehindMap copy{file(kMapName), {}};
    InputFile info;
    std::string text, reason;
    if (!info.open(file(kInfoName), kRecoveryInfo, reason) || !info.readAll(text, reason))
        return copy; // the map without its name: restored as a map never saved
    const std::size_t lineEnd = text.find('\n');
    copy.originalName = text.substr(0, lineEnd);
    const long pid = lineEnd == std::string::npos ? 0 : std::strtol(text.c_str() + lineEnd + 1, nullptr, 10);
    if (pid != ::getpid() && processAlive(pid))
        return std::nullopt; // another copy of the program is running with it
    return copy;
}

void RecoveryStore::setAside() const
{
    std::rename(file(kMapName).c_str(), file(kDeclinedMapName).c_str());
    std::rename(file(kInfoName).c_str(), file(kDeclinedInfoName).c_str());
}

void RecoveryStore::discard() const
{
    if (folder_.empty())
        return;
    std::remove(file(kMapName).c_str());
    std::remove(file(kInfoName).c_str());
}

void RecoveryStore::discardAll() const
{
    discard();
    if (folder_.empty())
        return;
    std::remove(file(kDeclinedMapName).c_str());
    std::remove(file(kDeclinedInfoName).c_str());
}

LoadResult restoreLeftBehindMap(World &world, ProgramState &state, Platform &platform,
                                const LeftBehindMap &copy)
{
    const std::string wmol = state.options.wmol;
    const std::string lastFile = state.options.lastFile;
    const LoadResult result = Load_Map(world, state, platform, copy.mapPath);
    if (result == LoadResult::Unread || result == LoadResult::Cancelled)
        return result;
    state.options.wmol = wmol;
    state.options.lastFile = lastFile;
    if (result == LoadResult::Complete)
        state.document.mapFileName = copy.originalName;
    state.document.mapChanged = 1;
    return result;
}

} // namespace wayscribe
