// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Memory that a program and its decoder share: the decoder writes a picture into it, the program
// shows and converts the picture where it lies.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

#include "decoder/process/descriptor.h"

namespace varnel {

// A file that only exists in memory. The decoder can make it longer but never shorter, so what is
// mapped once stays readable whatever the decoder does.
class SharedMemory {
  public:
    // Throws std::bad_alloc. The name distinguishes the memory files of one reader.
    explicit SharedMemory(std::uint32_t name);
    ~SharedMemory();
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    std::uint32_t Name() const { return name_; }
    int Number() const { return file_.Get(); }
    std::uint64_t Length() const;  // bytes, as it is now
    // The first bytes in memory, for reading and writing; null when that is not possible. An
    // earlier mapping is gone after a longer one was asked for.
    std::byte* Map(std::uint64_t length);

  private:
    std::uint32_t name_;
    Descriptor file_;
    void* bytes_ = nullptr;
    std::size_t mapped_ = 0;
};

// Keeps a memory file that is not used any more for the next picture: fresh memory costs as much
// time as the decoding of a small photo. Pictures may be gone on another thread than they are read.
class MemoryFiles {
  public:
    // Throws std::bad_alloc.
    std::unique_ptr<SharedMemory> Take();
    void GiveBack(std::unique_ptr<SharedMemory> file);
    void DropSpare() { GiveBack(nullptr); }

  private:
    std::mutex mutex_;
    std::unique_ptr<SharedMemory> spare_;
    std::uint32_t made_ = 0;
};

}  // namespace varnel
