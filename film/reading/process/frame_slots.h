// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The shared memory that frames go out through: equal slots, each with one frame. A slot is free
// again when nobody here and nobody in the program has it. Of any thread.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "decoder/process/descriptor.h"
#include "film/frames/frame_format.h"
#include "film/reading/film_protocol.h"

namespace varnel {

class FrameSlots {
  public:
    explicit FrameSlots(Descriptor memory) : memory_(std::move(memory)) {}
    ~FrameSlots();
    FrameSlots(const FrameSlots&) = delete;
    FrameSlots& operator=(const FrameSlots&) = delete;

    // All slots get that length, bytes, once.
    void SetLength(std::size_t length) { length_ = length; }
    std::size_t Length() const { return length_; }

    // One that was free and belongs to the caller now; none where all are taken or there is no
    // memory for more.
    std::optional<std::uint32_t> Take();
    std::byte* Bytes(std::uint32_t slot) const;
    // One more, or one less, who has the slot.
    void Hold(std::uint32_t slot);
    void LetGo(std::uint32_t slot);

  private:
    struct Slot {
        std::byte* bytes = nullptr;
        int holders = 0;
    };

    Descriptor memory_;
    std::size_t length_ = 0;
    mutable std::mutex mutex_;
    std::vector<Slot> slots_;
};

// One hold on a slot; copies hold it once more.
class SlotHold {
  public:
    SlotHold() = default;
    // Takes over a hold that there is.
    SlotHold(std::shared_ptr<FrameSlots> slots, std::uint32_t slot)
        : slots_(std::move(slots)), slot_(slot) {}
    SlotHold(const SlotHold& other) : slots_(other.slots_), slot_(other.slot_) {
        if (slots_) {
            slots_->Hold(slot_);
        }
    }
    SlotHold(SlotHold&&) noexcept = default;
    SlotHold& operator=(SlotHold other) noexcept {
        std::swap(slots_, other.slots_);
        std::swap(slot_, other.slot_);
        return *this;
    }
    ~SlotHold() {
        if (slots_) {
            slots_->LetGo(slot_);
        }
    }

    explicit operator bool() const { return slots_ != nullptr; }
    std::uint32_t Slot() const { return slot_; }

  private:
    std::shared_ptr<FrameSlots> slots_;
    std::uint32_t slot_ = 0;
};

// Where a frame's planes lie in a slot of their own, and how long that has to be.
struct SlotLayout {
    std::array<PlanePlace, mostPlanes> planes{};
    std::size_t length = 0;
};

SlotLayout LayoutOf(const FrameFormat& format);

}  // namespace varnel
