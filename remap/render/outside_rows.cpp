// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/outside_rows.h"

#include <algorithm>

#include "remap/image/levels/byte_coding.h"
#include "remap/render/outside.h"

namespace varnel {

namespace {

constexpr std::uint8_t white = 255;

// A colour that black from beside the photo was mixed into, as it would be without.
std::uint8_t Unmixed(std::uint8_t value, std::uint8_t share) {
    return share == white || share == 0
               ? value
               : static_cast<std::uint8_t>(std::min(255, (value * 255 + share / 2) / share));
}

std::uint8_t Mixed(std::uint8_t over, std::uint8_t under, std::uint8_t share) {
    return static_cast<std::uint8_t>((over * share + under * (255 - share) + 127) / 255);
}

PixelColor WithoutBlack(const std::uint8_t* pixel, std::uint8_t share) {
    return {Unmixed(pixel[0], share), Unmixed(pixel[1], share), Unmixed(pixel[2], share), 0};
}

// How much of the photo's circle a pixel shows, and that over how much it shows of the photo, which
// takes the black out again that was mixed into its levels from beside the photo.
struct Shown {
    double circle = 0.0;  // 0 to 1
    double ofLevels = 0.0;

    static Shown Of(const std::uint8_t* coverage) {
        constexpr std::uint16_t inside = 65534;
        const auto circle = SampleAt<std::uint16_t>(coverage, 0);
        const auto photo = SampleAt<std::uint16_t>(coverage, 1);
        if (circle >= inside) {
            return {1.0, 1.0};
        }
        return {circle / 65535.0, photo > 0 ? static_cast<double>(circle) / photo : 0.0};
    }
};

constexpr std::ptrdiff_t coverageStep = PixelStep(PixelFormat::Bgr16);

PixelLevels Times(double share, const PixelLevels& levels) {
    return {share * levels.blue, share * levels.green, share * levels.red, share * levels.alpha};
}

PixelLevels Sum(const PixelLevels& a, const PixelLevels& b) {
    return {a.blue + b.blue, a.green + b.green, a.red + b.red, a.alpha + b.alpha};
}

}  // namespace

OutsideRow::OutsideRow(Bitmap& result, std::int32_t row, const Bitmap& coverage,
                       std::int32_t coverageRow)
    : result_(result), row_(row), coverage_(coverage.ScanLine(coverageRow).data()) {}

void OutsideRow::Fill(const OutsideFill& fill) const {
    if (result_.Format() == PixelFormat::Bgr8) {
        FillBytes(fill);
    } else {
        FillLevels(fill);
    }
}

void OutsideRow::TakeAlpha(Bitmap& withAlpha) const {
    if (result_.Format() == PixelFormat::Bgr8) {
        TakeAlphaOfBytes(withAlpha.ScanLine(row_).data());
    } else {
        TakeAlphaOfLevels(withAlpha);
    }
}

void OutsideRow::FillBytes(const OutsideFill& fill) const {
    std::uint8_t* pixel = result_.ScanLine(row_).data();
    const std::uint8_t* coverage = coverage_;
    for (std::int32_t x = 0; x < result_.Size().width; ++x, pixel += 3, coverage += 3) {
        const std::uint8_t shown = coverage[0];
        if (IsInside(shown)) {
            continue;
        }
        const PixelColor over = WithoutBlack(pixel, coverage[1]);
        const PixelColor under = OutsideColour(fill, x, row_);
        PutColour(pixel,
                  {Mixed(over.blue, under.blue, shown), Mixed(over.green, under.green, shown),
                   Mixed(over.red, under.red, shown), 0},
                  PixelFormat::Bgr8);
    }
}

void OutsideRow::FillLevels(const OutsideFill& fill) const {
    const ByteCoding coding(result_);
    const PixelFormat format = result_.Format();
    std::uint8_t* pixel = result_.ScanLine(row_).data();
    const std::uint8_t* coverage = coverage_;
    for (std::int32_t x = 0; x < result_.Size().width; ++x) {
        const Shown shown = Shown::Of(coverage);
        if (shown.circle < 1.0) {
            const PixelLevels under = coding.LevelsOf(OutsideColour(fill, x, row_));
            PutLevels(pixel,
                      Sum(Times(shown.ofLevels, LevelsAt(pixel, format)),
                          Times(1.0 - shown.circle, under)),
                      format);
        }
        pixel += PixelStep(format);
        coverage += coverageStep;
    }
}

// Alpha is not multiplied into the colours.
void OutsideRow::TakeAlphaOfBytes(std::uint8_t* out) const {
    const std::uint8_t* pixel = result_.ScanLine(row_).data();
    const std::uint8_t* coverage = coverage_;
    for (std::int32_t x = 0; x < result_.Size().width; ++x, pixel += 3, coverage += 3, out += 4) {
        const std::uint8_t shown = IsInside(coverage[0]) ? white : coverage[0];
        const std::uint8_t share = shown == white ? white : coverage[1];
        PixelColor colour = shown == 0 ? black : WithoutBlack(pixel, share);
        colour.reserved = shown;
        PutColour(out, colour, PixelFormat::Bgra8);
    }
}

void OutsideRow::TakeAlphaOfLevels(Bitmap& withAlpha) const {
    const PixelFormat format = result_.Format();
    const std::uint8_t* pixel = result_.ScanLine(row_).data();
    const std::uint8_t* coverage = coverage_;
    std::uint8_t* out = withAlpha.ScanLine(row_).data();
    for (std::int32_t x = 0; x < result_.Size().width; ++x) {
        const Shown shown = Shown::Of(coverage);
        PixelLevels levels = Times(shown.ofLevels, LevelsAt(pixel, format));
        levels.alpha = HasAlpha(format) ? levels.alpha : shown.circle;
        PutLevels(out, levels, withAlpha.Format());
        pixel += PixelStep(format);
        coverage += coverageStep;
        out += PixelStep(withAlpha.Format());
    }
}

}  // namespace varnel
