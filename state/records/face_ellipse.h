// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A part of a result that keeps its shape where the straight view would draw it out. Throws
// nothing.
#pragma once

namespace varnel {

// In parts of 1 of the frame before it is cropped: the middle from the left and from the top, and
// the whole axes, of the frame's width and height. The angle turns it counter-clockwise, degrees.
struct FaceEllipse {
    double x = 0.5;
    double y = 0.5;
    double width = 0.0;
    double height = 0.0;
    double angle = 0.0;

    bool operator==(const FaceEllipse&) const = default;
};

}  // namespace varnel
