// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The two pictures between which a map leads. Both know nothing of pixels' colours; what a record
// says about the photo stands in the one, what is wanted of the result in the other. Rows count
// from the bottom row. Throws nothing but where said.
#pragma once

#include <functional>
#include <limits>

#include "remap/projection/geometry.h"

namespace varnel {

struct PixelPosition {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

// The photo.
struct SourceFrame {
    PixelSize size;
    bool landscape = true;
    SensorSize sensor;
    CentreShift shift{};  // of the image circle's centre from the photo's middle, whole pixels
    float ratio = 0.0F;   // the sensor's width in percent of the circle's diameter
    // Of a pixel: where a sampled lens has its optical axis beside that centre, y upward.
    CentreShift fraction{};
    LensColour colour = LensColour::Green;  // whose rays are followed

    // Throws DivisionByZeroError when the side of the sensor that counts is 0.
    double PixelsPerMillimetre() const { return PixelsPerUnit(size.width, landscape, sensor); }
    // Of the image circle. Throws OverflowError.
    PixelPosition Centre() const;
    // Of the image circle in pixels, or with another effect (percent) of the circle that the Varnel
    // projection lays out. Throws RunTimeError when ratio or effect is 0 or a value overflows.
    float CircleRadius(float effect = 100.0F) const;
};

// The part of a result in columns left to right - 1 and rows bottom to top - 1, without bounds
// where none are given.
struct PixelWindow {
    std::int32_t left = 0;
    std::int32_t bottom = 0;
    std::int32_t right = std::numeric_limits<std::int32_t>::max();
    std::int32_t top = std::numeric_limits<std::int32_t>::max();

    bool HoldsRow(std::int32_t row) const { return row >= bottom && row < top; }
    bool HoldsColumn(std::int32_t column) const { return column >= left && column < right; }
    bool Covers(PixelSize size) const {
        return left <= 0 && bottom <= 0 && right >= size.width && top >= size.height;
    }
};

// The result, which may be cut out of a larger frame.
struct OutputFrame {
    PixelSize size;
    CentreShift shift{};  // of the projection's centre from the middle of the frame, whole pixels
    // Pixels for each of those that the projection has where the result is as large as the photo:
    // it multiplies the pixels per unit of the projection, whatever that is (the tangent of the
    // angle, the angle itself, a pixel of the photo).
    double scale = 1.0;
    // The frame before the crop, none where nothing is cut, and where the result's lower left pixel
    // is in it.
    PixelSize whole{};
    PixelPosition corner{};
    // The largest frame of the photo's shape that fits into a frame of another shape, none where
    // that is all of it. It lies in the middle.
    PixelSize inner{};

    PixelSize Whole() const { return whole.width > 0 ? whole : size; }
    // With the projection's centre in the frame's middle.
    OutputFrame Centred() const { return {size, {}, scale, whole, corner}; }
    // Whether it is what the projections are specified for: no other size and nothing cut.
    bool IsSpecified() const { return scale == 1.0 && whole.width == 0; }
    PixelSize Inner() const { return inner.width > 0 ? inner : Whole(); }
    // For projections that are specified on the photo's frame: the inner frame's scale and centre.
    OutputFrame Fitted(const SourceFrame& source) const;
    // What the inner frame has of the result.
    PixelWindow InnerOnResult() const;
    // Of the projection's centre from the middle of the result.
    CentreShift ShiftOnResult() const;
    // The centre and how far loops reach from it. Throws OverflowError.
    CentreAndExtents Extents() const;
};

// As large as the photo and with its centre.
OutputFrame SameAs(const SourceFrame& source);
// The same view in another size: as wide as given, the centre at the same share of the way.
OutputFrame Resized(const SourceFrame& source, PixelSize size);

// What is wanted of the result for a photo.
using OutputWish = std::function<OutputFrame(const SourceFrame&)>;

}  // namespace varnel
