// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_process.h"

#include <poll.h>
#include <sys/wait.h>

#include <QFile>
#include <cerrno>
#include <csignal>

#include "base/program_file.h"
#include "decoder/process/decoder_socket.h"

namespace varnel {

QString DecoderProgram(const QString& name) {
    return ProgramFile(name);
}

Reason DecoderProcess::Start() {
    End();
    return Take(StartDecoder(QFile::encodeName(program_).constData()));
}

Reason DecoderProcess::Take(const StartedDecoder& started) {
    End();
    if (started.error != 0) {
        return {ReasonCode::Of, program_, qt_error_string(started.error)};
    }
    id_ = started.id;
    socket_ = Descriptor(started.socket);
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
