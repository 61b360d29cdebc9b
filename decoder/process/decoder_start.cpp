// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_start.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/descriptor.h"

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

    int Spawn(const char* program, pid_t& id) const {
        const std::array<char*, 2> arguments{const_cast<char*>(program), nullptr};
        return posix_spawn(&id, program, &actions_, &attributes_, arguments.data(), environ);
    }

  private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

}  // namespace

StartedDecoder StartDecoder(const char* program) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return {.error = errno};
    }
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    pid_t id = -1;
    if (const int error = SpawnActions(theirs.Get()).Spawn(program, id); error != 0) {
        return {.error = error};
    }
    return {.id = id, .socket = ours.Release()};
}

}  // namespace varnel
