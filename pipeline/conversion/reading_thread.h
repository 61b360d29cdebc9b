// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading that takes one of a run's cores for its decoder. Throws std::bad_alloc only.
#pragma once

#include <atomic>
#include <future>
#include <memory>

#include "base/thread_runner.h"
#include "decoder/process/picture_reader.h"

namespace varnel {

// A reader on one of the pool's threads, which waits for a core, lets the decoder begin, and has
// the core until the picture is read, whatever the caller does meanwhile. Where the system gives no
// thread the decoder is asked directly. To be called with a core.
class ReadingThread : public PictureReader {
  public:
    // The reader is the caller's, who does not use it meanwhile; with a null pointer one is started
    // when it is first needed.
    ReadingThread(PictureReader* reader, ThreadRunner& pool) : pool_(pool), reader_(reader) {}
    ~ReadingThread() override;
    ReadingThread(const ReadingThread&) = delete;
    ReadingThread& operator=(const ReadingThread&) = delete;

    void Begin(const ReadRequest& request) override;
    // The same, but the answer may be there as soon as all of the picture but its rows is: then it
    // is arriving, and the next answer is the picture as it came in the end.
    void BeginEarly(const ReadRequest& request);
    bool Wait(int milliseconds) override;
    LoadedPicture Take() override;
    // The caller's core is given to the thread meanwhile.
    void Cancel() override;
    bool IsApart() const override { return true; }

  private:
    class Early;

    PictureReader& Reader();
    void Start(const ReadRequest& request, const std::shared_ptr<Early>& early);
    LoadedPicture Whole();

    ThreadRunner& pool_;
    PictureReader* reader_;
    std::unique_ptr<PictureReader> own_;
    bool direct_ = false;                // there was no thread for the last photo
    std::atomic<bool> givenUp_ = false;  // the photo that is being read
    std::future<LoadedPicture> early_;   // not valid where only the whole picture is waited for
    std::future<LoadedPicture> picture_;
};

}  // namespace varnel
