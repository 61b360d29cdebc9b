// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Frames and packets on their way to the encoder, on a thread of its own. Throws std::bad_alloc
// and, where the system gives no thread, std::system_error.
#pragma once

#include <array>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <variant>

#include "film/frames/frame_buffer.h"
#include "film/writing/film_writer.h"

namespace varnel {

class WritingThread {
  public:
    // A frame is drawn while others wait or are encoded.
    static constexpr int slots = 3;

    WritingThread(FilmWriter& writer, const FrameFormat& format);
    // What still waits is dropped.
    ~WritingThread();
    WritingThread(const WritingThread&) = delete;
    WritingThread& operator=(const WritingThread&) = delete;

    // Waits until one is free.
    FrameBuffer& Slot();
    // The slot that was given last, with its times.
    void Put(std::int64_t pts, std::int64_t duration);
    // Waits while too much is on its way.
    void Put(FilmPacket packet);
    // What went wrong so far; nothing is written any more then.
    Reason Error();
    // Waits until all is written.
    Reason Drain();

  private:
    struct Timed {
        int slot;
        std::int64_t pts;
        std::int64_t duration;
    };
    using Item = std::variant<Timed, FilmPacket>;

    void Work();
    Reason Write(const Item& item);

    FilmWriter& writer_;
    std::array<FrameBuffer, slots> frames_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Item> items_;
    std::deque<int> free_;
    std::uint64_t packetBytes_ = 0;  // on their way
    int given_ = 0;
    bool busy_ = false;
    bool ends_ = false;
    Reason error_;
    std::thread thread_;
};

}  // namespace varnel
