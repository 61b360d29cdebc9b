// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/record_maps.h"

#include <cmath>
#include <memory>

namespace varnel {

namespace {

SensorSize SensorOf(const ImageRecord& image) {
    return {image.SensorWidth, image.SensorHeight};
}

// Where the optical axis of a sampled lens is: not rounded to whole pixels.
void PlaceAxis(const ImageRecord& image, SourceFrame& photo) {
    const PixelSize size = photo.size;
    double x = size.width / 2 + static_cast<double>(image.OfsetX) * size.width / 1000.0;
    double y = size.height / 2 - static_cast<double>(image.OfsetY) * size.height / 1000.0;
    if (HasCentreFor(*image.Lens, size)) {
        const LensCentre& centre = *image.Lens->centre;
        x += centre.x * size.width / centre.size.width - 0.5 - size.width / 2;
        y += centre.y * size.height / centre.size.height - 0.5 - size.height / 2;
    }
    const CentreShift whole{std::floor(x + 0.5), std::floor(y + 0.5)};
    photo.shift = {whole.x - size.width / 2, whole.y - size.height / 2};
    photo.fraction = {x - whole.x, y - whole.y};
}

}  // namespace

LensKind LensKindOf(const ImageRecord& image) {
    return image.Lens
               ? LensKind::Sampled
               : LensMappingKind(image.LensBrand.toStdString(), image.LensModel.toStdString());
}

LensCurve LensCurveOf(const ImageRecord& image, LensColour colour) {
    if (!image.Lens) {
        return {image.LensMapScale, image.LensMapFactor};
    }
    const bool inMillimetres = image.Lens->unit == SampledLens::Unit::Millimetres;
    return {inMillimetres ? 1.0F : image.ImageCircleRadius, 0.0F,
            std::make_shared<const LensSpline>(*image.Lens),
            image.Lens->ShiftOf(colour).value_or(ColourShift())};
}

bool HasCentreFor(const SampledLens& lens, PixelSize picture) {
    constexpr double tolerance = 0.01;
    if (!lens.centre || lens.centre->size.width <= 0 || lens.centre->size.height <= 0) {
        return false;
    }
    const double across = static_cast<double>(picture.width) / lens.centre->size.width;
    const double up = static_cast<double>(picture.height) / lens.centre->size.height;
    return std::fabs(across / up - 1.0) <= tolerance;
}

Frames FramesOf(const ImageRecord& image, PixelSize source, const OutputWish& wish) {
    SourceFrame photo{source, image.Landscape, SensorOf(image),
                      ShiftInPixels(source, image.OfsetX, image.OfsetY), image.Ratio};
    if (image.Lens) {
        PlaceAxis(image, photo);
    }
    return {photo, wish ? wish(photo) : SameAs(photo)};
}

RectilinearView RectilinearViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source,     frames.output,
            LensKindOf(image), LensCurveOf(image, frames.source.colour),
            image.OutputAOV,   image.EffectRectilinear};
}

CameraMove CameraMoveOf(const ImageRecord& image) {
    return {image.RotateX, image.RotateY, image.RotateZ, image.TranslateX, image.TranslateY};
}

EquidistanceView EquidistanceViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source,           frames.output,
            LensKindOf(image),       LensCurveOf(image, frames.source.colour),
            image.ImageCircleRadius, image.InputAOV};
}

CircleView CircleViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source, frames.output, image.EffectVarnel};
}

}  // namespace varnel
