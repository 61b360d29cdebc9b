// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/frame_text.h"

#include <QStringList>

#include "remap/projection/record_maps.h"

namespace varnel {

namespace {

std::optional<int> SideOf(const QString& text) {
    bool isWhole = false;
    const int side = text.toInt(&isWhole);
    return isWhole && side >= 1 && side <= largestResultSide ? std::optional(side) : std::nullopt;
}

}  // namespace

std::optional<double> ShapeFromText(const QString& text) {
    constexpr double most = 100.0;
    const QStringList sides = text.split(u':');
    bool hasWidth = false;
    bool hasHeight = false;
    const double width = sides.value(0).toDouble(&hasWidth);
    const double height = sides.value(1).toDouble(&hasHeight);
    const double shape = width / height;
    const bool isGood = sides.size() == 2 && hasWidth && hasHeight && width > 0.0 && height > 0.0 &&
                        shape >= 1.0 / most && shape <= most;
    return isGood ? std::optional(shape) : std::nullopt;
}

bool TakeSizeText(const QString& text, FrameWish& wish) {
    if (text == u"centre" || text == u"center") {
        wish.centre = true;
        return true;
    }
    const QStringList sides = text.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
    const std::optional<int> width = SideOf(sides.value(0));
    const std::optional<int> height = SideOf(sides.value(1));
    if (!width || sides.size() > 2 || (sides.size() == 2 && !height)) {
        return false;
    }
    wish.size = {*width, height.value_or(0)};
    return true;
}

std::optional<FrameWish> FrameWishFromText(const QString& text) {
    FrameWish wish;
    const QString plain = text.simplified().remove(u' ');
    wish.aspect = ShapeFromText(plain);
    const bool isGood = plain.isEmpty() || wish.aspect || TakeSizeText(plain, wish);
    return isGood ? std::optional(wish) : std::nullopt;
}

QString SizeText(const ImageRecord& image) {
    const auto side = [](std::int32_t pixels) {
        return pixels > 0 ? QString::number(pixels) : QString();
    };
    return image.OutputHeight > 0
               ? QStringLiteral("%1x%2").arg(side(image.OutputWidth), side(image.OutputHeight))
               : side(image.OutputWidth);
}

}  // namespace varnel
