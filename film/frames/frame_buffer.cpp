// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/frames/frame_buffer.h"

#include <cstring>
#include <new>

namespace varnel {

namespace {

constexpr std::size_t alignment = 64;

std::size_t RoundedUp(std::size_t bytes) {
    return (bytes + alignment - 1) / alignment * alignment;
}

std::size_t PitchOf(const FrameFormat& format, int plane) {
    return RoundedUp(static_cast<std::size_t>(PlaneSize(format, plane).width) *
                     static_cast<std::size_t>(BytesPerSample(format)));
}

void Fill(const Plane& plane, PixelSize size, int level, int bytesPerSample) {
    for (int row = 0; row < size.height; ++row) {
        std::byte* const first = plane.first + row * plane.pitch;
        if (bytesPerSample == 1) {
            std::memset(first, level, static_cast<std::size_t>(size.width));
            continue;
        }
        const auto sample = static_cast<std::uint16_t>(level);
        for (int column = 0; column < size.width; ++column) {
            std::memcpy(first + std::ptrdiff_t{2} * column, &sample, sizeof sample);
        }
    }
}

}  // namespace

void FrameBuffer::Free::operator()(std::byte* bytes) const {
    ::operator delete (bytes, std::align_val_t{alignment});
}

FrameBuffer::FrameBuffer(const FrameFormat& format) {
    target_.format = format;
    std::array<std::size_t, mostPlanes> starts{};
    for (int n = 0; n < PlanesOf(format); ++n) {
        starts[static_cast<std::size_t>(n)] = length_;
        length_ += PitchOf(format, n) * static_cast<std::size_t>(PlaneSize(format, n).height);
    }
    length_ += alignment;
    bytes_.reset(static_cast<std::byte*>(::operator new (length_, std::align_val_t{alignment})));
    for (int n = 0; n < PlanesOf(format); ++n) {
        target_.planes[static_cast<std::size_t>(n)] = {
            bytes_.get() + starts[static_cast<std::size_t>(n)],
            static_cast<std::ptrdiff_t>(PitchOf(format, n))};
    }
}

FrameView FrameBuffer::View() const {
    FrameView view{target_.format, {}};
    for (std::size_t n = 0; n < target_.planes.size(); ++n) {
        view.planes[n] = {target_.planes[n].first, target_.planes[n].pitch};
    }
    return view;
}

void FrameBuffer::Blank() {
    const FrameFormat& format = target_.format;
    for (int n = 0; n < PlanesOf(format); ++n) {
        Fill(target_.planes[static_cast<std::size_t>(n)], PlaneSize(format, n),
             BlankLevel(format, n), BytesPerSample(format));
    }
}

}  // namespace varnel
