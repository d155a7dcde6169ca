// Kills `wayscribe-cli convert` with SIGKILL at random moments while it
// saves over an existing map, and checks after every kill that the map is
// whole: byte for byte the old file or the new one. A last save that runs to
// its end must then leave no temporary file beside the map.
//
//   kill_during_save CLI RUNS [SEED]
//
// Prints what it saw; exits 0 when every run held, 1 otherwise.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {

std::string readBytes(const fs::path &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

void writeBytes(const fs::path &path, const std::string &bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// Starts the tool with its output thrown away.
pid_t start(const std::string &cli, const std::vector<std::string> &args)
{
    const pid_t pid = ::fork();
    if (pid == 0) {
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(nowhere, STDOUT_FILENO);
        ::dup2(nowhere, STDERR_FILENO);
        std::vector<char *> argv{const_cast<char *>(cli.c_str())};
        for (const std::string &a : args)
            argv.push_back(const_cast<char *>(a.c_str()));
        argv.push_back(nullptr);
        ::execv(cli.c_str(), argv.data());
        std::_Exit(127);
    }
    return pid;
}

int wait(pid_t pid)
{
    int status = 0;
    ::waitpid(pid, &status, 0);
    return status;
}

// Runs the tool to its end; the wall time it took, or a negative time when
// it failed.
double run(const std::string &cli, const std::vector<std::string> &args)
{
    const Clock::time_point begin = Clock::now();
    const int status = wait(start(cli, args));
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? seconds : -1;
}

// The middle of three runs, so that one slowed by other work on the machine
// does not set the pace.
double median(const std::string &cli, const std::vector<std::string> &args)
{
    std::vector<double> times;
    for (int k = 0; k < 3; ++k)
        times.push_back(run(cli, args));
    std::sort(times.begin(), times.end());
    return times.front() < 0 ? -1 : times[1];
}

int leftovers(const fs::path &folder, const std::string &name)
{
    int count = 0;
    for (const auto &entry : fs::directory_iterator(folder))
        count += entry.path().filename().string().rfind("." + name + ".saving-", 0) == 0;
    return count;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::cerr << "usage: kill_during_save CLI RUNS [SEED]\n";
        return 2;
    }
    const std::string cli = argv[1];
    const int runs = std::atoi(argv[2]);
    const unsigned seed =
        argc > 3 ? static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)) : std::random_device{}();

    std::string folderPattern = (fs::temp_directory_path() / "wayscribe-kill-XXXXXX").string();
    if (!::mkdtemp(folderPattern.data())) {
        std::perror("mkdtemp");
        return 1;
    }
    const fs::path folder = folderPattern;
    const std::string old = (folder / "old.om1").string(), source = (folder / "source.om1").string(),
                      fresh = (folder / "new.om1").string(), target = (folder / "map.om1").string();

    // Two full worlds (14 MB each) that differ everywhere, so that a mix of
    // the two cannot pass for either.
    bool ready = run(cli, {"generate", "--full", "--seed", "1", "--out", old}) >= 0 &&
                 run(cli, {"generate", "--full", "--seed", "2", "--out", source}) >= 0;
    const double loading = median(cli, {"info", source});
    const double whole = median(cli, {"convert", source, fresh});
    const std::string oldBytes = readBytes(old), newBytes = readBytes(fresh);
    ready = ready && loading >= 0 && whole >= 0 && oldBytes != newBytes && !oldBytes.empty();
    if (!ready) {
        std::cerr << "kill_during_save: the maps to save could not be made in " << folder << '\n';
        return 1;
    }

    // The kill falls anywhere in the save: after the map is read, up to a
    // little past the time a whole run takes.
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> moment(loading, whole * 1.1);
    int keptOld = 0, becameNew = 0, broken = 0, killedWhileWriting = 0;
    for (int k = 0; k < runs; ++k) {
        writeBytes(target, oldBytes);
        const int tempsBefore = leftovers(folder, "map.om1");
        const pid_t pid = start(cli, {"convert", source, target});
        std::this_thread::sleep_for(std::chrono::duration<double>(moment(random)));
        ::kill(pid, SIGKILL);
        wait(pid);
        const std::string now = readBytes(target);
        keptOld += now == oldBytes;
        becameNew += now == newBytes;
        if (now != oldBytes && now != newBytes) {
            ++broken;
            std::cerr << "run " << k + 1 << ": the map is neither the old nor the new file (" << now.size()
                      << " bytes)\n";
        }
        killedWhileWriting += leftovers(folder, "map.om1") > tempsBefore;
    }
    const int leftBefore = leftovers(folder, "map.om1");
    const bool lastSaved = run(cli, {"convert", source, target}) >= 0 && readBytes(target) == newBytes;
    const int leftAfter = leftovers(folder, "map.om1");

    std::cout << "kill_during_save: " << runs << " runs (seed " << seed << "), a whole run " << whole * 1000
              << " ms of which reading the map " << loading * 1000 << " ms\n"
              << "  old file kept: " << keptOld << ", new file complete: " << becameNew
              << ", neither (broken): " << broken << '\n'
              << "  runs that left a temporary file behind (killed while writing): " << killedWhileWriting
              << '\n'
              << "  temporary files before the last save: " << leftBefore << ", after it: " << leftAfter
              << '\n';
    if (!lastSaved)
        std::cerr << "kill_during_save: the last save did not write the new map\n";
    fs::remove_all(folder);
    return broken == 0 && lastSaved && leftAfter == 0 ? 0 : 1;
}
