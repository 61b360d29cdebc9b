// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a decoder that has lost its mind may still do: everything is tried for real, each in a
// process of its own behind the decoder's walls.

#include "decoder/process/sandbox.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <iconv.h>
#include <linux/fs.h>
#include <pthread.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/photo_file.h"
#include "decoder/process/protocol.h"
#include "decoder/process/shared_memory.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// As the decoder gets them, after the socket and the file that tells of memory.
constexpr int photo = 5;
constexpr int memory = 6;

constexpr int itWorked = 255;

struct Fate {
    int status = 0;  // as of waitpid()
    long told = -1;  // the forbidden call's number

    bool IsForbidden() const { return WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS; }
    int Error() const { return WIFEXITED(status) ? WEXITSTATUS(status) : 0; }
};

long Address(const void* place) {
    return reinterpret_cast<long>(place);
}

struct Attempt {
    const char* name;
    long call;
    std::array<long, 6> arguments;
    int error = 0;  // 0: forbidden
};

class Walls : public ::testing::Test {
  protected:
    void SetUp() override {
        if (sanitized) {
            GTEST_SKIP() << "sanitized builds have no walls";
        }
        if (prctl(PR_GET_SECCOMP) < 0) {
            GTEST_SKIP() << "this system cannot filter system calls";
        }
        testing::WriteFile(path_, "a photo");
        ASSERT_EQ(chmod(name_.constData(), 0640), 0);
        ASSERT_EQ(ftruncate(memoryFile_.Number(), 100), 0);
    }

    // Behind the walls, with the photo and the memory file open.
    Fate Behind(const std::function<long()>& attempt, const std::function<void()>& before = {}) {
        std::array<int, 2> ends{};
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()), 0);
        Descriptor ours(ends[0]);
        Descriptor theirs(ends[1]);
        const pid_t child = fork();
        if (child == 0) {
            dup2(theirs.Get(), decoderSocket);
            if (before) {
                before();
            }
            Confine();
            DecoderRequest request;
            std::array<Descriptor, 2> files;
            const bool asExpected =
                ReceiveMessage(decoderSocket, &request, sizeof request, &files) &&
                files[0].Get() == photo && files[1].Get() == memory;
            errno = 0;
            const long result = asExpected ? attempt() : 0;
            _exit(result == -1 ? errno : itWorked);
        }
        theirs = Descriptor();
        const OpenedPhoto opened = OpenPhotoFile(path_);
        EXPECT_TRUE(SendMessage(ours.Get(), &request_, sizeof request_,
                                {opened.file.Get(), memoryFile_.Number()}));
        Fate fate;
        waitpid(child, &fate.status, 0);
        DecoderAnswer answer;
        if (ReceiveMessage(ours.Get(), &answer, sizeof answer, nullptr) &&
            answer.outcome == triedForbidden) {
            fate.told = answer.number;
        }
        return fate;
    }

    void ExpectFates(const std::vector<Attempt>& attempts) {
        for (const Attempt& attempt : attempts) {
            const auto& a = attempt.arguments;
            const Fate fate =
                Behind([&] { return syscall(attempt.call, a[0], a[1], a[2], a[3], a[4], a[5]); });
            const bool isForbidden = attempt.error == 0;
            EXPECT_EQ(fate.IsForbidden(), isForbidden) << attempt.name;
            EXPECT_EQ(fate.told, isForbidden ? attempt.call : -1) << attempt.name;
            EXPECT_EQ(fate.Error(), attempt.error) << attempt.name;
        }
    }

    // For attempts' arguments: the photo's name, one that nobody has, and bytes of any kind.
    long File() const { return Address(name_.constData()); }
    static long Other() { return Address("/tmp/varnel-behind-walls"); }
    long Room() const { return Address(bytes_.data()); }

    long Page() const { return Address(page_); }

    testing::PictureFolder folder_;
    std::array<char, 200> bytes_{};
    void* page_ = mmap(nullptr, 4096, PROT_READ, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    QString path_ = folder_.Path(Text("photo"));
    QByteArray name_ = QFile::encodeName(path_);
    SharedMemory memoryFile_{1};
    DecoderRequest request_;
};

TEST_F(Walls, FilesCannotBeNamed) {
    const std::array<std::uint64_t, 3> how{};  // to open, for reading
    ExpectFates({
        {"open", SYS_openat, {AT_FDCWD, File(), O_RDONLY}, EACCES},
        {"open in another way", SYS_openat2, {AT_FDCWD, File(), Address(how.data()), sizeof how}},
        {"open by handle", SYS_open_by_handle_at, {AT_FDCWD, Room(), O_RDONLY}},
        {"open its own memory", SYS_openat, {AT_FDCWD, Address("/proc/self/mem"), O_RDWR}, EACCES},
        {"look for a file", SYS_faccessat, {AT_FDCWD, File(), R_OK}, EACCES},
        {"look at a file", SYS_statx, {AT_FDCWD, File(), 0, STATX_SIZE, Room()}, EACCES},
        {"look at it as if open", SYS_statx, {photo, File(), AT_EMPTY_PATH, 1, Room()}, EACCES},
        {"follow a link", SYS_readlinkat, {AT_FDCWD, Address("/proc/self/exe"), Room(), 9}, EACCES},
        {"list a folder", SYS_getdents64, {photo, Room(), 99}},
        {"another folder", SYS_chdir, {Address("/")}},
        {"another root", SYS_chroot, {Address("/")}},
        {"name: cut", SYS_truncate, {File(), 1}},
        {"name: permissions", SYS_fchmodat, {AT_FDCWD, File(), 0777}},
        {"name: owner", SYS_fchownat, {AT_FDCWD, File(), 1, 1, 0}},
        {"name: attribute", SYS_setxattr, {File(), Address("user.a"), Room(), 1}},
        {"name: time", SYS_utimensat, {AT_FDCWD, File(), 0, 0}},
        {"name: remove", SYS_unlinkat, {AT_FDCWD, File(), 0}},
        {"name: rename", SYS_renameat2, {AT_FDCWD, File(), AT_FDCWD, Other(), 0}},
        {"name: link", SYS_linkat, {AT_FDCWD, File(), AT_FDCWD, Other(), 0}},
        {"name: symbolic link", SYS_symlinkat, {File(), AT_FDCWD, Other()}},
        {"name: folder", SYS_mkdirat, {AT_FDCWD, Other(), 0700}},
        {"name: pipe", SYS_mknodat, {AT_FDCWD, Other(), S_IFIFO | 0600}},
        {"name: mount", SYS_mount, {Other(), File(), Address("tmpfs"), 0, 0}},
        {"name: watch", SYS_inotify_init1, {0}},
        {"name: watch all", SYS_fanotify_init, {0, 0}},
    });
    EXPECT_EQ(testing::Contents(path_), "a photo");
}

TEST_F(Walls, ThePhotoCanOnlyBeRead) {
    const int flags = FS_NOATIME_FL;
    ExpectFates({
        {"photo: write", SYS_write, {photo, Room(), 1}, EBADF},
        {"photo: write at a place", SYS_pwrite64, {photo, Room(), 1, 0}, EBADF},
        {"photo: cut", SYS_ftruncate, {photo, 1}, EINVAL},
        {"photo: map", SYS_mmap, {0, 9, PROT_READ | PROT_WRITE, MAP_SHARED, photo, 0}, EACCES},
        {"photo: punch", SYS_fallocate, {photo, 3, 0, 1}},
        {"photo: copy into", SYS_copy_file_range, {memory, 0, photo, 0, 1}},
        {"photo: permissions", SYS_fchmod, {photo, 0777}},
        {"photo: owner", SYS_fchown, {photo, 1, 1}},
        {"photo: attribute", SYS_fsetxattr, {photo, Address("user.a"), Room(), 1}},
        {"photo: time", SYS_utimensat, {photo, 0, 0, 0}},
        {"photo: flags", SYS_ioctl, {photo, FS_IOC_SETFLAGS, Address(&flags)}, ENOTTY},
        {"photo: lock", SYS_flock, {photo, LOCK_EX}},
        {"photo: lease", SYS_fcntl, {photo, F_SETLEASE, F_RDLCK}},
        {"photo: duplicate", SYS_fcntl, {photo, F_DUPFD, 0}},
        {"memory: shorten", SYS_ftruncate, {memory, 0}, EPERM},
        {"memory: seal", SYS_fcntl, {memory, F_ADD_SEALS, F_SEAL_GROW}},
        {"memory: take pages away", SYS_madvise, {Page(), 4096, MADV_REMOVE}},
        {"memory: poison", SYS_madvise, {Page(), 4096, MADV_HWPOISON}, EINVAL},
        {"memory: of its own", SYS_memfd_create, {Address("a"), 0}},
    });
    EXPECT_EQ(testing::Contents(path_), "a photo");
    struct stat status {};
    ASSERT_EQ(stat(name_.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
    EXPECT_EQ(getxattr(name_.constData(), "user.a", nullptr, 0), -1);
}

TEST_F(Walls, NobodyElseCanBeReached) {
    const long program = Address("/bin/true");
    const char* const arguments[] = {"true", nullptr};
    const long parent = getpid();
    iovec part{bytes_.data(), bytes_.size()};
    msghdr message{};
    const struct sigaction ignore {};
    ExpectFates({
        {"program", SYS_execve, {program, Address(arguments), 0}},
        {"program in another way", SYS_execveat, {AT_FDCWD, program, Address(arguments), 0, 0}},
        {"process", SYS_clone, {SIGCHLD}},
        {"process with our memory", SYS_clone, {CLONE_VM | CLONE_VFORK | SIGCHLD}},
        {"process in another way", SYS_clone3, {Room(), 64}, ENOSYS},
        {"thread in a new name space", SYS_clone, {0x3D0F00 | CLONE_NEWUSER}},
        {"name space", SYS_unshare, {CLONE_NEWUSER}},
        {"another's name space", SYS_setns, {photo, 0}},
        {"new code", SYS_mmap, {0, 9, PROT_READ | PROT_EXEC, MAP_PRIVATE, photo, 0}, EACCES},
        {"data to code", SYS_mprotect, {Page(), 4096, PROT_READ | PROT_EXEC}},
        {"parent: kill", SYS_kill, {parent, SIGURG}},
        {"parent: kill its thread", SYS_tgkill, {parent, parent, SIGURG}},
        {"parent: kill its thread alone", SYS_tkill, {parent, SIGURG}},
        {"parent: queue a signal", SYS_rt_sigqueueinfo, {parent, SIGURG, Room()}},
        {"parent: trace", SYS_ptrace, {PTRACE_SEIZE, parent, 0, 0}},
        {"parent: read", SYS_process_vm_readv, {parent, Address(&part), 1, Address(&part), 1, 0}},
        {"parent: write", SYS_process_vm_writev, {parent, Address(&part), 1, Address(&part), 1, 0}},
        {"parent: limits", SYS_prlimit64, {parent, RLIMIT_NOFILE, 0, Room()}},
        {"parent: as a file", SYS_pidfd_open, {parent, 0}},
        {"parent: its files", SYS_pidfd_getfd, {photo, 0, 0}},
        {"parent: priority", SYS_setpriority, {PRIO_PROCESS, parent, 19}},
        {"socket", SYS_socket, {AF_INET, SOCK_STREAM, 0}},
        {"pair of sockets", SYS_socketpair, {AF_UNIX, SOCK_STREAM, 0, Room()}},
        {"connect", SYS_connect, {decoderSocket, Room(), 16}},
        {"send elsewhere", SYS_sendmsg, {photo, Address(&message), 0}},
        {"receive elsewhere", SYS_recvmsg, {photo, Address(&message), 0}},
        {"pipe", SYS_pipe2, {Room(), 0}},
        {"shared memory", SYS_shmget, {IPC_PRIVATE, 4096, IPC_CREAT | 0600}},
        {"message queue", SYS_msgget, {IPC_PRIVATE, IPC_CREAT | 0600}},
        {"semaphores", SYS_semget, {IPC_PRIVATE, 1, IPC_CREAT | 0600}},
        {"named queue", SYS_mq_open, {Address("varnel"), O_CREAT | O_RDWR, 0600, 0}},
        {"rings", SYS_io_uring_setup, {1, Room()}},
        {"kernel program", SYS_bpf, {0, Room(), 48}},
        {"counters", SYS_perf_event_open, {Room(), 0, -1, -1, 0}},
        {"page faults", SYS_userfaultfd, {0}},
        {"keys", SYS_keyctl, {0, -3, 0}},
        {"new key", SYS_add_key, {Address("user"), Address("a"), Room(), 1, -3}},
        {"another user", SYS_setuid, {1}},
        {"its own state", SYS_prctl, {PR_SET_DUMPABLE, 1}, EINVAL},
        {"another handler", SYS_rt_sigaction, {SIGSYS, Address(&ignore), 0, 8}},
        {"no such call", 1'000'000, {}},
    });
}

// Each ends the process, whether it still tells of it or not.
TEST_F(Walls, HoldHoweverTheyAreRunAgainst) {
    const auto forbidden = [] { return syscall(SYS_socket, AF_INET, SOCK_STREAM, 0); };
    std::thread older;
    std::atomic<bool> go = false;
    const struct {
        const char* name;
        std::function<long()> attempt;
        std::function<void()> before = {};
    } attempts[] = {
        {"by a new thread",
         [&] {
             std::thread(forbidden).join();
             return 0L;
         }},
        {"by a thread from before",
         [&] {
             go = true;
             older.join();
             return 0L;
         },
         [&] {
             older = std::thread([&] {
                 while (!go) {
                 }
                 forbidden();
             });
         }},
        {"with the signal blocked",
         [&] {
             sigset_t all;
             sigfillset(&all);
             sigprocmask(SIG_BLOCK, &all, nullptr);
             return forbidden();
         }},
#if defined(__x86_64__)
        {"by the numbers of 32 bits",
         [] {
             long result = 20;  // getpid
             asm volatile("int $0x80" : "+a"(result) : : "memory", "r8", "r9", "r10", "r11");
             return result;
         }},
        {"by the numbers of x32", [] { return syscall(0x40000000 + SYS_getpid); }},
#endif
    };
    for (const auto& row : attempts) {
        EXPECT_TRUE(Behind(row.attempt, row.before).IsForbidden()) << row.name;
    }
}

// What the C library and Qt do in passing must not end a decoder of sound photos.
TEST_F(Walls, AreNotInTheWayOfLibraries) {
    const struct {
        const char* name;
        std::function<void()> work;
    } rows[] = {
        {"processors", [] { std::thread::hardware_concurrency(); }},
        {"thread with a name",
         [] { std::thread([] { pthread_setname_np(pthread_self(), "a"); }).join(); }},
        {"arenas of memory",
         [] {
             for (int n = 0; n < 3; ++n) {
                 std::thread([] { std::vector<char>(1 << 22, 'a').resize(1 << 24); }).join();
             }
         }},
        {"sleep", [] { std::this_thread::sleep_for(std::chrono::milliseconds(1)); }},
        {"much to sort",
         [] {
             std::vector<int> numbers(1 << 20);
             std::qsort(numbers.data(), numbers.size(), sizeof(int),
                        [](const void*, const void*) { return 0; });
         }},
        {"regular expressions",
         [] {
             const QRegularExpression expression(Text("(a|b)+c"));
             for (int n = 0; n < 100; ++n) {
                 (void)expression.match(Text("abababc"));
             }
         }},
        {"time of day", [] { QDateTime::currentDateTime().toString(); }},
        {"character set", [] { iconv_close(iconv_open("KOI8-R", "UTF-16")); }},
        {"terminal", [] { std::printf("%d\n", isatty(STDOUT_FILENO)); }},
        {"temporary file", [] { std::tmpfile(); }},
    };
    for (const auto& row : rows) {
        const Fate fate = Behind([&] {
            row.work();
            return 0L;
        });
        EXPECT_EQ(fate.Error(), itWorked) << row.name << ", call " << fate.told;
    }
    const Fate aborted = Behind([]() -> long { std::abort(); });
    EXPECT_EQ(WTERMSIG(aborted.status), SIGABRT) << aborted.told;
}

}  // namespace
}  // namespace varnel
