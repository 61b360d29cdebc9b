// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/confinement.h"

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <vector>

#include "decoder/decoder_socket.h"

namespace varnel {

namespace {

// The sanitizers need terabytes of address space, and files and other system calls for their
// reports.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool sanitized = true;
#elif defined(__has_feature)
constexpr bool sanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
constexpr bool sanitized = false;
#endif

#if defined(__x86_64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr std::uint32_t architecture = AUDIT_ARCH_AARCH64;
#else
constexpr std::uint32_t architecture = 0;
#endif

// Programs, connections, other processes, names of files. Opening by name is refused here too, for
// systems without Landlock.
constexpr long forbidden[] = {
    SYS_execve,
    SYS_execveat,
    SYS_socket,
    SYS_socketpair,
    SYS_connect,
    SYS_bind,
    SYS_listen,
    SYS_accept,
    SYS_accept4,
    SYS_ptrace,
    SYS_process_vm_readv,
    SYS_process_vm_writev,
    SYS_kill,
    SYS_tkill,
    SYS_rt_sigqueueinfo,
    SYS_rt_tgsigqueueinfo,
    SYS_pidfd_open,
    SYS_pidfd_send_signal,
    SYS_pidfd_getfd,
    SYS_openat,
    SYS_openat2,
    SYS_open_by_handle_at,
    SYS_unlinkat,
    SYS_renameat2,
    SYS_linkat,
    SYS_symlinkat,
    SYS_mkdirat,
    SYS_mknodat,
    SYS_fchmodat,
    SYS_fchownat,
    SYS_truncate,
    SYS_mount,
    SYS_umount2,
    SYS_chroot,
    SYS_pivot_root,
    SYS_setns,
    SYS_unshare,
    SYS_bpf,
    SYS_perf_event_open,
    SYS_io_uring_setup,
    SYS_userfaultfd,
    SYS_add_key,
    SYS_request_key,
    SYS_keyctl,
#if defined(__x86_64__)
    SYS_fork,
    SYS_vfork,
    SYS_open,
    SYS_creat,
    SYS_unlink,
    SYS_rename,
    SYS_renameat,
    SYS_link,
    SYS_symlink,
    SYS_mkdir,
    SYS_rmdir,
    SYS_mknod,
    SYS_chmod,
    SYS_chown,
    SYS_lchown,
#endif
};

constexpr std::uint32_t Error(int number) {
    return SECCOMP_RET_ERRNO | (static_cast<std::uint32_t>(number) & SECCOMP_RET_DATA);
}

sock_filter Load(std::size_t offset) {
    return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
}

sock_filter Answer(std::uint32_t value) {
    return BPF_STMT(BPF_RET | BPF_K, value);
}

// Skips the next instruction unless the loaded number is this one.
sock_filter OnlyIf(std::uint32_t number) {
    return BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1);
}

// Refuses the call unless its argument is one of these. Other calls jump over the rule.
void AppendArgumentRule(std::vector<sock_filter>& filter, long call, int argument,
                        const std::vector<std::uint32_t>& allowed) {
    const auto length = static_cast<std::uint8_t>(2 + 2 * allowed.size());
    filter.push_back(
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(call), 0, length));
    filter.push_back(Load(offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t)));
    for (const std::uint32_t value : allowed) {
        filter.push_back(OnlyIf(value));
        filter.push_back(Answer(SECCOMP_RET_ALLOW));
    }
    filter.push_back(Answer(Error(EACCES)));
}

std::vector<sock_filter> SystemCallFilter() {
    std::vector<sock_filter> filter{
        Load(offsetof(seccomp_data, arch)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, architecture, 1, 0),  // else another set of numbers
        Answer(SECCOMP_RET_KILL_PROCESS),
        Load(offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JGE | BPF_K, 0x40000000, 0, 1),  // the same calls once more (x32)
        Answer(Error(ENOSYS)),
    };
    for (const long call : forbidden) {
        filter.push_back(OnlyIf(static_cast<std::uint32_t>(call)));
        filter.push_back(Answer(Error(EACCES)));
    }
    // These only for the process itself: abort() and the limits of the next photo need them.
    const auto self = static_cast<std::uint32_t>(getpid());
    AppendArgumentRule(filter, SYS_tgkill, 0, {self});
    AppendArgumentRule(filter, SYS_prlimit64, 0, {0, self});
    // The libraries may start threads, but no processes. clone3 keeps its flags in memory, where
    // the filter cannot see them; without it the C library takes clone.
    filter.push_back(OnlyIf(SYS_clone3));
    filter.push_back(Answer(Error(ENOSYS)));
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_clone, 0, 3));
    filter.push_back(Load(offsetof(seccomp_data, args)));
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, CLONE_THREAD, 1, 0));
    filter.push_back(Answer(Error(EACCES)));
    filter.push_back(Answer(SECCOMP_RET_ALLOW));
    return filter;
}

void FilterSystemCalls() {
    if (architecture == 0) {
        return;
    }
    std::vector<sock_filter> filter = SystemCallFilter();
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
}

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

void Limit(__rlimit_resource what, std::uint64_t soft, std::uint64_t hard) {
    const rlimit limit{soft, hard};
    setrlimit(what, &limit);
}

// The file in which the system tells how much memory the process has; stays open.
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
        FilterSystemCalls();
    }
}

void LimitNextPhoto(std::uint64_t memory, std::uint32_t seconds) {
    // The library's picture in its own depth, the picture handed over and a little for the rest.
    constexpr std::uint64_t rest = std::uint64_t{1} << 30;
    if (!sanitized) {
        Limit(RLIMIT_AS, memory / 4 * 3 + rest, RLIM_INFINITY);
    }
    // Threads of the libraries count together, so twice the time that the parent waits.
    Limit(RLIMIT_CPU, ProcessorSecondsSoFar() + 2 * std::uint64_t{seconds} + 1, RLIM_INFINITY);
}

void LimitMetadata(std::uint64_t fileLength) {
    constexpr std::uint64_t rest = std::uint64_t{1} << 30;
    const std::uint64_t now = sanitized ? 0 : AddressSpace();
    if (now != 0) {
        Limit(RLIMIT_AS, now + fileLength + rest, RLIM_INFINITY);
    }
}

}  // namespace varnel
