// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/remap/render/fine_views.h"

#include <algorithm>
#include <cmath>

namespace varnel::bench {

ImageRecord WideRecord(float outputAov, SamplingKind sampling) {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 36.0F;
    record.SensorHeight = 24.0F;
    record.LensMapScale = 30.59F;
    record.LensMapFactor = 0.5F;
    record.ImageCircleRadius = 21.63F;
    record.Ratio = 83.2F;
    record.InputAOV = 147.0F;
    record.OutputAOV = outputAov;
    record.EffectVarnel = 100.0F;
    record.EffectRectilinear = 100.0F;
    record.Sampling = sampling;
    return record;
}

ImageRecord CircularRecord(SamplingKind sampling) {
    ImageRecord record = WideRecord(180.0F, sampling);
    record.SensorWidth = record.SensorHeight = 24.0F;
    record.LensMapScale = static_cast<float>(12.0 / std::sin(pi / 4.0));
    record.ImageCircleRadius = 12.0F;
    record.Ratio = 100.0F;
    record.InputAOV = 180.0F;
    return record;
}

RayAt AroundAxis(PixelSize size, const std::function<double(double)>& angleAt, double most) {
    return [=](double x, double y) -> std::optional<Ray> {
        const double across = x - size.width / 2;
        const double up = y - size.height / 2;
        const double radius = std::hypot(across, up);
        if (radius > most) {
            return std::nullopt;
        }
        const double angle = angleAt(radius);
        const double aside = radius > 0.0 ? std::sin(angle) / radius : 0.0;
        return Ray{across * aside, up * aside, std::cos(angle)};
    };
}

RayAt Equisolid(PixelSize size, double focal, double most) {
    return AroundAxis(
        size, [focal](double r) { return 2.0 * std::asin(std::min(r / (2.0 * focal), 1.0)); },
        most);
}

RayAt Straight(PixelSize size, double focal) {
    return AroundAxis(
        size, [focal](double r) { return std::atan(r / focal); }, 1e9);
}

BitmapHandle Converted(Projection projection, const ImageRecord& record, const Bitmap& photo,
                       const OutputWish& wish) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(&photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .output = wish};
    Render(projection, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

}  // namespace varnel::bench
