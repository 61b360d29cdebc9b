// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Turning frames upright by quarter turns and mirroring, as the film's display matrix says. Throws
// nothing.
#pragma once

#include <array>
#include <cstdint>

#include "film/frames/frame_format.h"

namespace varnel {

// Where a picture's two directions go: x' = a x + c y, y' = b x + d y, each 1, 0 or -1, y downward.
struct FrameTurn {
    int a = 1;
    int b = 0;
    int c = 0;
    int d = 1;

    bool IsNone() const { return a == 1 && d == 1; }
    bool SwapsSides() const { return a == 0; }
    bool operator==(const FrameTurn&) const = default;
};

// Of a display matrix, nine numbers of which the first two rows' first two count; the nearest
// quarter turn where it is none.
FrameTurn TurnOf(const std::array<std::int32_t, 9>& matrix);

// Degrees clockwise; of a mirrored one those after the mirroring of left and right.
int DegreesOf(const FrameTurn& turn);

// The format of turned frames. Colour that two samples across share is at full size where sides
// are swapped. The site of colour is turned too; one at the right, which no codec knows, becomes
// the one half way: half a sample of brightness beside its place.
FrameFormat TurnedFormat(const FrameFormat& format, const FrameTurn& turn);

// The target has the turned format.
void TurnFrame(const FrameView& source, const FrameTurn& turn, const FrameTarget& target);

}  // namespace varnel
