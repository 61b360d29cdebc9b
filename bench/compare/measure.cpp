// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// measure [--no-sync] [--memory] FOLDER COMMAND...
// Empties FOLDER, where the command will write, runs the command and prints seconds of wall time,
// seconds of processor time and the peak of memory in MB (0 without --memory, which slows the
// command down). The time ends when the last process of the command has ended and, unless
// --no-sync, the folder's files are on the disk.

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <numeric>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double ProcessorSeconds(int who) {
    rusage used{};
    getrusage(who, &used);
    return Seconds(used.ru_utime) + Seconds(used.ru_stime);
}

void Sync(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || fsync(file) != 0) {
        std::perror(path.c_str());
    }
    close(file);
}

void SyncFolder(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        Sync(entry.path());
    }
    Sync(folder);
}

// What earlier runs left unwritten must not be written during this one.
void Prepare(const fs::path& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    const int file = open(folder.c_str(), O_RDONLY | O_CLOEXEC);
    syncfs(file);
    close(file);
}

// The children of a process and theirs; some may have ended meanwhile.
void AddDescendants(const std::string& process, std::vector<std::string>& found) {
    std::error_code gone;
    for (const auto& task : fs::directory_iterator("/proc/" + process + "/task", gone)) {
        std::ifstream children(task.path() / "children");
        for (std::string child; children >> child;) {
            found.push_back(child);
            AddDescendants(child, found);
        }
    }
}

// Kilobytes of a process: files and libraries that others map too in parts, without shared memory;
// 0 when it has ended.
long OwnSize(const std::string& process) {
    errno = 0;
    std::ifstream sizes("/proc/" + process + "/smaps_rollup");
    if (errno == EACCES) {
        throw std::runtime_error("the memory of process " + process + " may not be looked at");
    }
    long size = 0;
    std::string name;
    long value = 0;
    sizes.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    while (sizes >> name >> value) {
        size += name == "Pss:" ? value : name == "Pss_Shmem:" ? -value : 0;
        sizes.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return size;
}

using SharedSizes = std::map<ino_t, long>;  // kilobytes

// What the open memory files hold, whether mapped or not.
void AddOpenMemory(const std::string& process, SharedSizes& shared) {
    std::error_code gone;
    for (const auto& file : fs::directory_iterator("/proc/" + process + "/fd", gone)) {
        struct stat status {};
        if (fs::read_symlink(file.path(), gone).string().starts_with("/memfd:") &&
            stat(file.path().c_str(), &status) == 0) {
            shared[status.st_ino] = status.st_blocks / 2;
        }
    }
}

// Shared memory that is mapped but not open any more; it is taken for full.
void AddMappedMemory(const std::string& process, SharedSizes& shared) {
    std::ifstream maps("/proc/" + process + "/maps");
    for (std::string line; std::getline(maps, line);) {
        unsigned long from = 0, to = 0, offset = 0, inode = 0;
        char name[16] = "";
        std::sscanf(line.c_str(), "%lx-%lx %*s %lx %*s %lu %15s", &from, &to, &offset, &inode,
                    name);
        const std::string_view start(name);
        if (start.starts_with("/memfd:") || start.starts_with("/dev/zero") ||
            start.starts_with("/dev/shm") || start.starts_with("/SYSV")) {
            long& size = shared.try_emplace(inode, 0).first->second;
            size = std::max(size, static_cast<long>((offset + to - from) / 1024));
        }
    }
}

// All processes together, shared memory once and whole: a page of it that nobody happens to map is
// memory nevertheless.
long DescendantsSize() {
    std::vector<std::string> processes;
    AddDescendants(std::to_string(getpid()), processes);
    long sum = 0;
    SharedSizes open;
    SharedSizes mapped;
    for (const std::string& process : processes) {
        sum += OwnSize(process);
        AddOpenMemory(process, open);
        AddMappedMemory(process, mapped);
    }
    open.merge(mapped);  // what is open is known exactly
    return std::accumulate(open.begin(), open.end(), sum,
                           [](long size, const auto& one) { return size + one.second; });
}

struct Ended {
    int status = 0;          // of the command itself
    long peakKilobytes = 0;  // sampled
};

// Until no process is left; orphans come to us.
Ended WaitForAll(pid_t command, bool memory) {
    Ended ended;
    for (;;) {
        int status = 0;
        const pid_t one = waitpid(-1, &status, memory ? WNOHANG : 0);
        if (one < 0) {
            return ended;
        }
        if (one == command) {
            ended.status = status;
        }
        if (memory && one == 0) {
            ended.peakKilobytes = std::max(ended.peakKilobytes, DescendantsSize());
            usleep(1000);
        }
    }
}

pid_t Start(char** command) {
    const pid_t child = fork();
    if (child == 0) {
        dup2(STDERR_FILENO, STDOUT_FILENO);  // ours is for the figures
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(127);
    }
    return child;
}

struct Order {
    bool sync = true;
    bool memory = false;
    fs::path folder;
    char** command = nullptr;  // none: the words make no sense
};

Order OrderOf(int argc, char** argv) {
    Order order;
    int n = 1;
    for (; n < argc && argv[n][0] == '-'; ++n) {
        order.sync = order.sync && std::strcmp(argv[n], "--no-sync") != 0;
        order.memory = order.memory || std::strcmp(argv[n], "--memory") == 0;
    }
    if (argc - n >= 2) {
        order.folder = argv[n];
        order.command = argv + n + 1;
    }
    return order;
}

// The command's exit code.
int Measure(const Order& order) {
    Prepare(order.folder);
    const double own = ProcessorSeconds(RUSAGE_SELF);
    const auto start = Clock::now();
    const Ended ended = WaitForAll(Start(order.command), order.memory);
    if (order.sync) {
        SyncFolder(order.folder);
    }
    const std::chrono::duration<double> wall = Clock::now() - start;
    const double processor =
        ProcessorSeconds(RUSAGE_CHILDREN) + ProcessorSeconds(RUSAGE_SELF) - own;
    std::printf("%.4f %.4f %.1f\n", wall.count(), processor,
                static_cast<double>(ended.peakKilobytes) * 1024 / 1e6);
    return WIFEXITED(ended.status) ? WEXITSTATUS(ended.status) : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const Order order = OrderOf(argc, argv);
    if (order.command == nullptr) {
        std::fputs("measure [--no-sync] [--memory] FOLDER COMMAND...\n", stderr);
        return 2;
    }
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    try {
        return Measure(order);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
