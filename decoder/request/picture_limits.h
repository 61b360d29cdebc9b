// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How large a picture may be; asked before its pixels take memory and again after decoding. Throws
// nothing.
#pragma once

#include <cstdint>

#include "base/pixel_size.h"
#include "base/reason.h"
#include "remap/image/pixel_format.h"

namespace varnel {

// The most that a side may have: records keep sides in 16 bits.
inline constexpr std::int64_t largestSide = 32767;

// The machine's memory, bytes; 4 GB where the system does not report it.
std::uint64_t MachineMemory();

// Why a picture of this many pixels is refused on a machine with this memory in bytes; empty when
// it is not. Source, result and one copy may take three quarters of the memory.
Reason SizeError(std::int64_t width, std::int64_t height, std::uint64_t memory,
                 PixelFormat format = PixelFormat::Bgr8);

}  // namespace varnel
