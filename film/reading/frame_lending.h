// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The decoder's slots as the program has them: mapped for reading, and given back when the last one
// who holds a frame lets go of it, on whatever thread. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "decoder/process/shared_memory.h"
#include "film/reading/film_protocol.h"
#include "film/reading/film_reader.h"

namespace varnel {

class FrameLending : public std::enable_shared_from_this<FrameLending> {
  public:
    // Told when a slot is free again.
    using Free = std::function<void(std::uint32_t slot)>;

    FrameLending(std::uint64_t slotLength, Free free);
    ~FrameLending();
    FrameLending(const FrameLending&) = delete;
    FrameLending& operator=(const FrameLending&) = delete;

    // The frame of an answer that is consistent; null when its slot cannot be mapped.
    std::shared_ptr<const FilmFrame> Frame(const FilmAnswer& answer, const FrameFormat& format,
                                           const SharedMemory& memory);
    // From now on nobody is told.
    void Stop();
    // How many frames are held.
    int Held() const;

  private:
    class LentFrame;

    const std::byte* Map(std::uint32_t slot, const SharedMemory& memory);
    void GiveBack(std::uint32_t slot);

    std::uint64_t slotLength_;
    std::vector<void*> mapped_;
    mutable std::mutex mutex_;
    Free free_;
    int held_ = 0;
};

}  // namespace varnel
