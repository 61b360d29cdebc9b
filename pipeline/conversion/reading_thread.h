// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading that takes one of a run's cores for its decoder.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "base/thread_runner.h"
#include "decoder/process/picture_reader.h"

namespace varnel {

// A reader on a thread of its own, which waits for a core, lets the decoder begin, and has the core
// until the picture is there, whatever the caller does meanwhile. Where the system gives no thread
// the decoder is asked directly.
class ReadingThread : public PictureReader {
  public:
    // The reader is somebody else's, who does not use it meanwhile; or there is none, then one is
    // started when it is first needed.
    ReadingThread(PictureReader* reader, ThreadRunner& cores) : cores_(cores), reader_(reader) {}
    ~ReadingThread() override;
    ReadingThread(const ReadingThread&) = delete;
    ReadingThread& operator=(const ReadingThread&) = delete;

    void Begin(const ReadRequest& request) override;
    bool Wait(int milliseconds) override;
    LoadedPicture Take() override;
    // To be called with a core, which is lent to the thread meanwhile.
    void Cancel() override;
    bool IsApart() const override { return true; }

  private:
    bool StartThread();
    void Work();
    LoadedPicture Read(const ReadRequest& request);
    PictureReader& Reader();
    bool IsGivenUp();

    ThreadRunner& cores_;
    PictureReader* reader_;
    std::unique_ptr<PictureReader> own_;
    bool direct_ = false;  // there is no thread to be had
    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    std::optional<ReadRequest> request_;  // until its picture is there
    std::optional<LoadedPicture> picture_;
    bool givenUp_ = false;
    bool ending_ = false;
    std::thread thread_;
};

}  // namespace varnel
