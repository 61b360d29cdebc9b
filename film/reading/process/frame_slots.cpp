// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/frame_slots.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

namespace varnel {

namespace {

constexpr std::size_t rowAlignment = 64;

std::size_t RoundedUp(std::size_t bytes, std::size_t alignment) {
    return (bytes + alignment - 1) / alignment * alignment;
}

}  // namespace

FrameSlots::~FrameSlots() {
    for (const Slot& slot : slots_) {
        munmap(slot.bytes, length_);
    }
}

std::optional<std::uint32_t> FrameSlots::Take() {
    const std::lock_guard lock(mutex_);
    const auto found =
        std::ranges::find_if(slots_, [](const Slot& slot) { return slot.holders == 0; });
    const auto index = static_cast<std::uint32_t>(found - slots_.begin());
    if (found != slots_.end()) {
        found->holders = 1;
        return index;
    }
    const std::size_t end = (index + std::size_t{1}) * length_;
    if (index >= mostSlots || ftruncate(memory_.Get(), static_cast<off_t>(end)) != 0) {
        return std::nullopt;
    }
    // All at once: one fault for each page costs as much time as half the decoding.
    void* const bytes = mmap(nullptr, length_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE,
                             memory_.Get(), static_cast<off_t>(end - length_));
    if (bytes == MAP_FAILED) {
        return std::nullopt;
    }
    slots_.push_back({static_cast<std::byte*>(bytes), 1});
    return index;
}

std::byte* FrameSlots::Bytes(std::uint32_t slot) const {
    const std::lock_guard lock(mutex_);
    return slots_[slot].bytes;
}

void FrameSlots::Hold(std::uint32_t slot) {
    const std::lock_guard lock(mutex_);
    ++slots_[slot].holders;
}

void FrameSlots::LetGo(std::uint32_t slot) {
    const std::lock_guard lock(mutex_);
    --slots_[slot].holders;
}

SlotLayout LayoutOf(const FrameFormat& format) {
    SlotLayout layout;
    for (int n = 0; n < PlanesOf(format); ++n) {
        const PixelSize size = PlaneSize(format, n);
        const std::size_t pitch = RoundedUp(
            static_cast<std::size_t>(size.width) * static_cast<std::size_t>(BytesPerSample(format)),
            rowAlignment);
        layout.planes[static_cast<std::size_t>(n)] = {layout.length, pitch};
        layout.length += pitch * static_cast<std::size_t>(size.height);
    }
    layout.length = RoundedUp(layout.length + slotMargin, slotAlignment);
    return layout;
}

}  // namespace varnel
