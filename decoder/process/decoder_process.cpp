// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <QFile>
#include <cerrno>
#include <csignal>
#include <cstring>

#include "base/program_file.h"
#include "decoder/process/decoder_socket.h"

// POSIX leaves its declaration to the programs.
extern char** environ;  // NOLINT

namespace varnel {

namespace {

// What the new process finds open: nothing to read, nowhere to write, the socket.
class SpawnActions {
  public:
    explicit SpawnActions(int socket) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, socket, decoderSocket);
        posix_spawnattr_init(&attributes_);
        // Its own signals, whatever the parent ignores or holds back; but Ctrl-C is for the parent,
        // which decides what is still finished.
        sigset_t signals;
        sigemptyset(&signals);
        sigaddset(&signals, SIGINT);
        sigaddset(&signals, SIGTERM);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnActions() {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    int Spawn(const QByteArray& program, pid_t& id) const {
        QByteArray name = program;
        std::array<char*, 2> arguments{name.data(), nullptr};
        return posix_spawn(&id, program.constData(), &actions_, &attributes_, arguments.data(),
                           environ);
    }

  private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}  // namespace

QString DecoderProgram(const QString& name) {
    return ProgramFile(name);
}

Reason DecoderProcess::Start() {
    End();
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return {ReasonCode::Words, qt_error_string(errno)};
    }
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    pid_t id = -1;
    if (const int error = SpawnActions(theirs.Get()).Spawn(QFile::encodeName(program_), id);
        error != 0) {
        return {ReasonCode::Of, program_, qt_error_string(error)};
    }
    id_ = id;
    socket_ = std::move(ours);
    return {};
}

bool DecoderProcess::Send(const void* message, std::size_t length, std::array<int, 2> descriptors) {
    // One that does not take its messages any more must not hold its parent up.
    pollfd room{socket_.Get(), POLLOUT, 0};
    return Runs() && poll(&room, 1, 0) > 0 &&
           SendMessage(socket_.Get(), message, length, descriptors);
}

DecoderProcess::Heard DecoderProcess::Listen(int milliseconds, void* message, std::size_t length) {
    pollfd wait{socket_.Get(), POLLIN, 0};
    if (poll(&wait, 1, milliseconds) <= 0) {
        return Heard::Nothing;  // also when a signal came between
    }
    return ReceiveMessage(socket_.Get(), message, length, nullptr) ? Heard::Answer
                                                                   : Heard::PeerClosed;
}

bool DecoderProcess::IsDead() {
    return waitpid(id_, &status_, WNOHANG) == id_;
}

void DecoderProcess::End() {
    if (Runs() && !IsDead()) {
        kill(id_, SIGKILL);
        while (waitpid(id_, &status_, 0) < 0 && errno == EINTR) {
        }
    }
    socket_ = Descriptor();
    id_ = -1;
}

int DecoderProcess::Reap() {
    // A process closes its files a moment before it is dead.
    constexpr int moments = 50;
    bool dead = !Runs();
    for (int n = 0; n < moments && !dead; ++n) {
        dead = IsDead();
        if (!dead) {
            usleep(1000);
        }
    }
    const int signal = Runs() && dead && WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
    if (dead) {
        id_ = -1;
    }
    End();
    return signal;
}

Reason ReasonOfDeath(int signal, int seconds) {
    switch (signal) {
        case 0:
            return ReasonCode::DecoderGaveUp;
        case SIGXCPU:
            return {ReasonCode::TookTooLong, seconds};
        case SIGSYS:
            return ReasonCode::DecoderTriedForbidden;
        case SIGKILL:
        case SIGBUS:
            return {ReasonCode::DecoderEndedBySystem, signal};
        default:
            return {ReasonCode::DecoderDied, signal};
    }
}

}  // namespace varnel
