// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/frame_options.h"

#include <QStringList>
#include <array>
#include <cmath>

#include "cli/options/option_values.h"
#include "pipeline/output/frame_text.h"
#include "remap/projection/record_maps.h"
#include "state/adjustments/outside_text.h"

namespace varnel {

namespace {

// A number, or one with % behind it as a hundredth; not a number for any other text.
double PartOf(QString text) {
    text = text.trimmed();
    const bool isPercent = text.endsWith(u'%');
    text.chop(isPercent ? 1 : 0);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? number / (isPercent ? 100.0 : 1.0) : std::nan("");
}

CropParts PartsOf(const QString& text) {
    const QStringList texts = text.split(u',');
    std::array<double, 4> parts{};
    bool isGood = texts.size() == 4;
    for (std::size_t n = 0; isGood && n < parts.size(); ++n) {
        parts[n] = PartOf(texts[static_cast<qsizetype>(n)]);
        isGood = parts[n] >= (n < 2 ? 0.0 : leastCrop) && parts[n] <= 1.0;
    }
    if (!isGood) {
        throw UsageError{
            QStringLiteral("--crop needs clean, clean:W:H or X,Y,W,H in parts of 1 or percent, "
                           "not \"%1\"; for example --crop 10%,10%,80%,80%")
                .arg(text)};
    }
    constexpr double rounding = 1e-9;
    if (parts[0] + parts[2] > 1.0 + rounding || parts[1] + parts[3] > 1.0 + rounding) {
        throw UsageError{QStringLiteral("--crop %1 runs beyond the frame; X and W, and Y and H, "
                                        "are 1 together at most")
                             .arg(text)};
    }
    return {parts[0], parts[1], parts[2], parts[3]};
}

}  // namespace

void TakeSize(const QString& text, FrameWish& wish) {
    if (!TakeSizeText(text, wish)) {
        throw UsageError{QStringLiteral("--size needs WIDTHxHEIGHT, WIDTH or centre, 1 to %1 "
                                        "pixels a side, not \"%2\"; for example --size 4000x3000")
                             .arg(largestResultSide)
                             .arg(text)};
    }
}

double AspectOf(const QString& text) {
    if (const auto shape = ShapeFromText(text)) {
        return *shape;
    }
    throw UsageError{
        QStringLiteral("--aspect needs W:H, not \"%1\"; for example --aspect 16:9").arg(text)};
}

void TakeCrop(const QString& text, FrameWish& wish) {
    if (text == u"clean") {
        wish.clean = CleanPart();
        return;
    }
    if (!text.startsWith(u"clean:")) {
        wish.crop = PartsOf(text);
        return;
    }
    const std::optional<double> shape = ShapeFromText(text.section(u':', 1));
    if (!shape) {
        throw UsageError{
            QStringLiteral("--crop clean:W:H needs a shape, not \"%1\"; for example --crop "
                           "clean:16:9")
                .arg(text)};
    }
    wish.clean = CleanPart{shape};
}

OutsideFill OutsideOf(const QString& text) {
    if (const auto fill = OutsideFromText(text)) {
        return *fill;
    }
    throw UsageError{
        QStringLiteral("--outside needs black, transparent or #rrggbb, not \"%1\"; for example "
                       "--outside \"#ffffff\"")
            .arg(text)};
}

void CheckTogether(const FrameWish& wish) {
    const bool hasBothSides = wish.size.width > 0 && wish.size.height > 0;
    if (wish.aspect && wish.clean && wish.clean->shape) {
        throw UsageError{QStringLiteral(
            "--aspect shapes the frame and --crop clean:W:H what is cut out; give one of the two")};
    }
    if (wish.aspect && hasBothSides && !wish.clean) {
        throw UsageError{QStringLiteral(
            "--size WIDTHxHEIGHT has a shape of its own; leave --aspect out or give the width")};
    }
    if (hasBothSides && wish.clean && wish.clean->shape) {
        throw UsageError{QStringLiteral(
            "--size WIDTHxHEIGHT has a shape of its own; give --crop clean or the width alone")};
    }
}

}  // namespace varnel
