// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The decoder's process as its parent sees it. Throws nothing; errors are returned.
#pragma once

#include <sys/types.h>

#include <QString>

#include "base/reason.h"
#include "decoder/process/descriptor.h"
#include "decoder/process/protocol.h"

namespace varnel {

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
    // The request with the descriptors of the photo and the memory file, which stay the caller's.
    // False when the process is gone.
    bool Send(const DecoderRequest& request, int photo, int memory);

    enum class Heard { Nothing, Answer, PeerClosed };
    // Waits this many milliseconds at most.
    Heard Listen(int milliseconds, DecoderAnswer& answer);

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

}  // namespace varnel
