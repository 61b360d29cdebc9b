// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/frame_lending.h"

#include <sys/mman.h>

namespace varnel {

class FrameLending::LentFrame : public FilmFrame {
  public:
    LentFrame(std::shared_ptr<FrameLending> lending, std::uint32_t slot)
        : lending_(std::move(lending)), slot_(slot) {}
    ~LentFrame() override { lending_->GiveBack(slot_); }
    LentFrame(const LentFrame&) = delete;
    LentFrame& operator=(const LentFrame&) = delete;

  private:
    std::shared_ptr<FrameLending> lending_;
    std::uint32_t slot_;
};

FrameLending::FrameLending(std::uint64_t slotLength, Free free)
    : slotLength_(slotLength), mapped_(mostSlots), free_(std::move(free)) {}

FrameLending::~FrameLending() {
    for (void* const bytes : mapped_) {
        if (bytes != nullptr) {
            munmap(bytes, slotLength_);
        }
    }
}

const std::byte* FrameLending::Map(std::uint32_t slot, const SharedMemory& memory) {
    void*& bytes = mapped_[slot];
    if (bytes == nullptr) {
        void* const made = mmap(nullptr, slotLength_, PROT_READ, MAP_SHARED, memory.Number(),
                                static_cast<off_t>(slot * slotLength_));
        bytes = made == MAP_FAILED ? nullptr : made;
    }
    return static_cast<const std::byte*>(bytes);
}

std::shared_ptr<const FilmFrame> FrameLending::Frame(const FilmAnswer& answer,
                                                     const FrameFormat& format,
                                                     const SharedMemory& memory) {
    const std::byte* const bytes = Map(answer.slot, memory);
    if (bytes == nullptr) {
        return nullptr;
    }
    auto frame = std::make_shared<LentFrame>(shared_from_this(), answer.slot);
    {
        const std::lock_guard lock(mutex_);
        ++held_;
    }
    frame->pts = answer.pts;
    frame->duration = answer.duration;
    frame->key = answer.key != 0;
    frame->view.format = format;
    for (std::size_t n = 0; n < static_cast<std::size_t>(PlanesOf(format)); ++n) {
        frame->view.planes[n] = {bytes + answer.planes[n].offset,
                                 static_cast<std::ptrdiff_t>(answer.planes[n].pitch)};
    }
    return frame;
}

void FrameLending::GiveBack(std::uint32_t slot) {
    const std::lock_guard lock(mutex_);
    --held_;
    if (free_) {
        free_(slot);
    }
}

void FrameLending::Stop() {
    const std::lock_guard lock(mutex_);
    free_ = {};
}

int FrameLending::Held() const {
    const std::lock_guard lock(mutex_);
    return held_;
}

}  // namespace varnel
