// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/sandbox.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/system_call_filter.h"

// POSIX leaves its declaration to the programs.
extern char** environ;  // NOLINT

namespace varnel {

namespace {

// Whatever was inherited beside the socket, a terminal above all.
void GiveUpInherited() {
    close_range(decoderSocket + 1, ~0U, 0);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDERR_FILENO);
    close(nowhere);
}

// No file or folder can be opened, made, moved or removed by its name any more.
void GiveUpFiles() {
    landlock_ruleset_attr rules{};
    rules.handled_access_fs =
        LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_FILE |
        LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR |
        LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
        LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK |
        LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
    const long made = syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0);
    if (made < 0) {
        return;
    }
    syscall(SYS_landlock_restrict_self, made, 0);
    close(static_cast<int>(made));
}

// Those of the parent, when that runs as root.
void GiveUpPowers() {
    __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
    const std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> none{};
    syscall(SYS_capset, &head, none.data());
}

// People keep passwords there. What is still asked for is the time zone.
void ForgetEnvironment() {
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::size_t length = std::strlen(*entry);
        if (std::strncmp(*entry, "TZ=", 3) != 0) {
            std::fill_n(*entry, length, '\0');
        }
    }
}

void Limit(__rlimit_resource what, std::uint64_t soft, std::uint64_t hard) {
    const rlimit limit{soft, hard};
    setrlimit(what, &limit);
}

// The file in which the system states how much memory the process has; stays open.
int MemoryStatus() {
    static const int file = open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    return file;
}

// Bytes of address space; 0 when that is not known.
std::uint64_t AddressSpace() {
    std::array<char, 32> text{};
    if (pread(MemoryStatus(), text.data(), text.size() - 1, 0) <= 0) {
        return 0;
    }
    return std::strtoull(text.data(), nullptr, 10) *
           static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

std::uint64_t ProcessorSecondsSoFar() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    return static_cast<std::uint64_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec);
}

}  // namespace

void Confine() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    Limit(RLIMIT_CORE, 0, 0);
    if (!sanitized) {
        GiveUpInherited();
        MemoryStatus();
        GiveUpFiles();
        GiveUpPowers();
        ForgetEnvironment();
        FilterSystemCalls();
    }
}

void LimitNextPhoto(std::uint64_t memory, std::uint32_t seconds) {
    // The library's picture in its own depth, the picture handed over and a little for the rest. In
    // the end metadata may need a little more; that much is final, because the parent sends the
    // same for each photo.
    constexpr std::uint64_t rest = std::uint64_t{1} << 30;
    const std::uint64_t most = memory / 4 * 3 + rest;
    if (!sanitized) {
        Limit(RLIMIT_AS, most, most + 2 * rest);
        Limit(RLIMIT_FSIZE, most, most);  // the memory file
    }
    // Threads of the libraries count together, so twice the time that the parent waits.
    Limit(RLIMIT_CPU, ProcessorSecondsSoFar() + 2 * std::uint64_t{seconds} + 1, RLIM_INFINITY);
}

void LimitMetadata(std::uint64_t fileLength) {
    constexpr std::uint64_t rest = std::uint64_t{1} << 30;
    const std::uint64_t now = sanitized ? 0 : AddressSpace();
    if (now != 0) {
        rlimit limit{};
        getrlimit(RLIMIT_AS, &limit);
        Limit(RLIMIT_AS, std::min<std::uint64_t>(now + fileLength + rest, limit.rlim_max),
              limit.rlim_max);
    }
}

}  // namespace varnel
