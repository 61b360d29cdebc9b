// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The decoder's process as its parent sees it. Throws nothing; errors are returned.
#pragma once

#include <sys/types.h>

#include <QString>
#include <array>
#include <cstddef>

#include "base/reason.h"
#include "decoder/process/decoder_start.h"
#include "decoder/process/descriptor.h"
#include "decoder/process/protocol.h"

namespace varnel {

// Where a decoder of that file name is: beside this program, or in the package's folder for such.
QString DecoderProgram(const QString& name);

class DecoderProcess {
  public:
    explicit DecoderProcess(QString program) : program_(std::move(program)) {}
    ~DecoderProcess() { End(); }
    DecoderProcess(const DecoderProcess&) = delete;
    DecoderProcess& operator=(const DecoderProcess&) = delete;

    bool Runs() const { return id_ > 0; }
    pid_t Id() const { return id_; }
    // Why it could not be started; empty when it was. It ends with the thread that started it.
    Reason Start();
    // The same with one that was started before, or could not be.
    Reason Take(const StartedDecoder& started);
    // Another program from the next start on.
    void SetProgram(const QString& program) { program_ = program; }
    // The request with the descriptors of the photo and the memory file, which stay the caller's.
    // False when the process is gone, or has not taken many messages before. Never waits.
    bool Send(const DecoderRequest& request, int photo, int memory) {
        return Send(&request, sizeof request, {photo, memory});
    }
    // The same for a message of another protocol, its length in bytes, with descriptors or without.
    bool Send(const void* message, std::size_t length, std::array<int, 2> descriptors = {-1, -1});

    enum class Heard { Nothing, Answer, PeerClosed };
    // Waits this many milliseconds at most.
    Heard Listen(int milliseconds, DecoderAnswer& answer) {
        return Listen(milliseconds, &answer, sizeof answer);
    }
    // The same for a message of just that many bytes.
    Heard Listen(int milliseconds, void* message, std::size_t length);

    // Ends it, if it still lives.
    void End();
    // For one that does not answer any more: ends it too, but first lets it finish dying. Returns
    // the signal that ended it, 0 when there was none but ours.
    int Reap();

  private:
    bool IsDead();

    QString program_;
    Descriptor socket_;
    pid_t id_ = -1;
    int status_ = 0;  // how the last one ended
};

// What became of a decoder that a signal ended, or none (0), while it was at work; the seconds are
// those that it may take.
Reason ReasonOfDeath(int signal, int seconds);

}  // namespace varnel
