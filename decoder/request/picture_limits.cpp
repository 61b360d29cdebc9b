// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/request/picture_limits.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace varnel {

std::uint64_t MachineMemory() {
    constexpr std::uint64_t unknown = std::uint64_t{4} << 30;
#ifdef Q_OS_UNIX
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageBytes = sysconf(_SC_PAGESIZE);
    if (pages > 0 && pageBytes > 0) {
        return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageBytes);
    }
#endif
    return unknown;
}

Reason SizeError(std::int64_t width, std::int64_t height, std::uint64_t memory,
                 PixelFormat format) {
    if (width <= 0 || height <= 0) {
        return ReasonCode::NoPixels;
    }
    if (width > largestSide || height > largestSide) {
        return {ReasonCode::SideTooLong, width, height, largestSide};
    }
    constexpr std::uint64_t bitmaps = 3;  // source, result, one copy
    const std::uint64_t needed = static_cast<std::uint64_t>(width) *
                                 static_cast<std::uint64_t>(height) * BytesPerPixel(format) *
                                 bitmaps;
    if (needed > memory / 4 * 3) {
        return {ReasonCode::TooManyPixels, width, height};
    }
    return {};
}

}  // namespace varnel
