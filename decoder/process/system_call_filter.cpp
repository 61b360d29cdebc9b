// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/system_call_filter.h"

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <initializer_list>
#include <memory>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/protocol.h"

namespace varnel {

namespace {

// None of them takes a file's name, reaches another process or makes a new descriptor. The rare
// ones belong to the C library: memory, locks and threads, a clock that the system does not map, a
// stop and its end (restart_syscall), qsort() (sysinfo), abort() and its message.
constexpr int allowed[] = {
    // photo and memory file
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(write), SCMP_SYS(writev), SCMP_SYS(pwrite64),
    SCMP_SYS(lseek), SCMP_SYS(fstat), SCMP_SYS(ftruncate), SCMP_SYS(close),
    // memory
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap),
    // threads
    SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity), SCMP_SYS(gettid), SCMP_SYS(exit), SCMP_SYS(exit_group),
    SCMP_SYS(rt_sigprocmask), SCMP_SYS(restart_syscall),
    // time, random numbers and the process itself
    SCMP_SYS(clock_gettime), SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep), SCMP_SYS(gettimeofday),
    SCMP_SYS(time), SCMP_SYS(getrandom), SCMP_SYS(getpid), SCMP_SYS(getuid), SCMP_SYS(getrusage),
    SCMP_SYS(sysinfo)};

// What libraries try in passing on sound photos too, or before they abort.
constexpr struct {
    int call;
    int error;
} refused[] = {
    // Files by their names: character sets, processors, the terminal for a last message. The calls
    // for an open file's state take a name, too, and all callers can do without.
    {SCMP_SYS(open), EACCES},
    {SCMP_SYS(openat), EACCES},
    {SCMP_SYS(access), EACCES},
    {SCMP_SYS(faccessat), EACCES},
    {SCMP_SYS(faccessat2), EACCES},
    {SCMP_SYS(stat), EACCES},
    {SCMP_SYS(lstat), EACCES},
    {SCMP_SYS(newfstatat), EACCES},
    {SCMP_SYS(statx), EACCES},
    {SCMP_SYS(readlink), EACCES},
    {SCMP_SYS(readlinkat), EACCES},
    {SCMP_SYS(getcwd), EACCES},
    // It keeps its flags in memory, where no filter sees them; the C library then takes clone.
    {SCMP_SYS(clone3), ENOSYS},
    // Whether a file is a terminal.
    {SCMP_SYS(ioctl), ENOTTY},
    // A thread's or an arena's name.
    {SCMP_SYS(prctl), EINVAL},
};

// Those bits of an argument, counted from 0, are just so.
constexpr scmp_arg_cmp Bits(unsigned argument, scmp_datum_t bits, scmp_datum_t value) {
    return {argument, SCMP_CMP_MASKED_EQ, bits, value};
}

constexpr scmp_arg_cmp Is(unsigned argument, scmp_datum_t value) {
    return {argument, SCMP_CMP_EQ, value, 0};
}

// Reports to the parent which call it was, and ends the process.
void ReportAndDie(int signal, siginfo_t* about, void* /*context*/) {
    DecoderAnswer last;
    last.outcome = triedForbidden;
    last.number = static_cast<std::uint32_t>(about->si_syscall);
    SendMessage(decoderSocket, &last, sizeof last);
    // By now the system answers the signal itself.
    raise(signal);
    _exit(1);
}

// Once: should hostile code find a way out of the handler, or another thread call at the same time,
// the next forbidden call is met by the system, which ends the process. The same when the signal is
// blocked. No other handler can be set any more.
void ReportForbiddenCalls() {
    struct sigaction action {};
    action.sa_sigaction = &ReportAndDie;
    action.sa_flags = SA_SIGINFO | SA_RESETHAND | SA_NODEFER;
    sigaction(SIGSYS, &action, nullptr);
}

class Filter {
  public:
    Filter()
        : context_(seccomp_init(SCMP_ACT_TRAP), &seccomp_release), whole_(context_ != nullptr) {}

    void Allow(int call, std::initializer_list<scmp_arg_cmp> when = {}) {
        Answer(SCMP_ACT_ALLOW, call, when);
    }
    void Refuse(int call, int error, std::initializer_list<scmp_arg_cmp> when = {}) {
        Answer(SCMP_ACT_ERRNO(static_cast<unsigned>(error)), call, when);
    }
    // False when not all of it could be made, or the system does not take it.
    bool Load() {
        // Numbers of another architecture's calls; an older system ends the thread for them.
        seccomp_attr_set(context_.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS);
        seccomp_attr_set(context_.get(), SCMP_FLTATR_CTL_TSYNC, 1);
        return whole_ && seccomp_load(context_.get()) == 0;
    }

  private:
    void Answer(std::uint32_t action, int call, std::initializer_list<scmp_arg_cmp> when) {
        whole_ =
            whole_ && seccomp_rule_add_array(context_.get(), action, call,
                                             static_cast<unsigned>(when.size()), when.begin()) == 0;
    }

    std::unique_ptr<void, void (*)(scmp_filter_ctx)> context_;
    bool whole_;
};

void AddFormsOfCalls(Filter& filter) {
    // The parent's messages come and go over the socket; no descriptor but this leads anywhere.
    filter.Allow(SCMP_SYS(recvmsg), {Is(0, decoderSocket)});
    filter.Allow(SCMP_SYS(sendmsg), {Is(0, decoderSocket)});
    // fdopen() asks how the photo is opened. Leases, locks and signals are other commands.
    filter.Allow(SCMP_SYS(fcntl), {Is(1, F_GETFL)});
    // No new code. Regular expressions are compiled only where that is possible.
    filter.Allow(SCMP_SYS(mmap), {Bits(2, PROT_EXEC, 0)});
    filter.Refuse(SCMP_SYS(mmap), EACCES, {Bits(2, PROT_EXEC, PROT_EXEC)});
    filter.Allow(SCMP_SYS(mprotect), {Bits(2, PROT_EXEC, 0)});
    // Pages may be given back, but not be taken from the memory file (MADV_REMOVE, 9). Newer advice
    // is refused, as by a system that does not know it; poisoning memory, for root, is among that.
    filter.Allow(SCMP_SYS(madvise), {{2, SCMP_CMP_LE, MADV_FREE, 0}});
    filter.Allow(SCMP_SYS(madvise), {Is(2, MADV_HUGEPAGE)});
    filter.Refuse(SCMP_SYS(madvise), EINVAL, {{2, SCMP_CMP_GT, MADV_HUGEPAGE, 0}});
    // abort(), and the limits of the next photo.
    filter.Allow(SCMP_SYS(tgkill), {Is(0, static_cast<scmp_datum_t>(getpid()))});
    filter.Allow(SCMP_SYS(prlimit64), {Is(0, 0)});
    // Threads in all but what the C libraries are free in.
    constexpr scmp_datum_t thread = CLONE_VM | CLONE_FS | CLONE_FILES | CLONE_SIGHAND |
                                    CLONE_THREAD | CLONE_SYSVSEM | CLONE_SETTLS;
    constexpr scmp_datum_t free =
        CLONE_PARENT_SETTID | CLONE_CHILD_SETTID | CLONE_CHILD_CLEARTID | CLONE_DETACHED;
    filter.Allow(SCMP_SYS(clone), {Bits(0, ~free, thread)});
    // The C library's own two signals, with the first thread.
    for (const scmp_datum_t signal : {32, 33}) {
        filter.Allow(SCMP_SYS(rt_sigaction), {Is(0, signal)});
    }
}

}  // namespace

bool FilterSystemCalls() {
    Filter filter;
    for (const int call : allowed) {
        filter.Allow(call);
    }
    for (const auto& row : refused) {
        filter.Refuse(row.call, row.error);
    }
    AddFormsOfCalls(filter);
    ReportForbiddenCalls();
    return filter.Load();
}

}  // namespace varnel
