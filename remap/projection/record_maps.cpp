// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/record_maps.h"

namespace varnel {

namespace {

LensKind KindOf(const ImageRecord& image) {
    return LensMappingKind(image.LensBrand.toStdString(), image.LensModel.toStdString());
}

SensorSize SensorOf(const ImageRecord& image) {
    return {image.SensorWidth, image.SensorHeight};
}

LensCurve CurveOf(const ImageRecord& image) {
    return {image.LensMapScale, image.LensMapFactor};
}

}  // namespace

Frames FramesOf(const ImageRecord& image, PixelSize source, const OutputWish& wish) {
    const SourceFrame photo{source, image.Landscape, SensorOf(image),
                            ShiftInPixels(source, image.OfsetX, image.OfsetY), image.Ratio};
    return {photo, wish ? wish(photo) : SameAs(photo)};
}

RectilinearView RectilinearViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source,  frames.output,   KindOf(image),
            CurveOf(image), image.OutputAOV, image.EffectRectilinear};
}

CameraMove CameraMoveOf(const ImageRecord& image) {
    return {image.RotateX, image.RotateY, image.RotateZ, image.TranslateX, image.TranslateY};
}

EquidistanceView EquidistanceViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source,  frames.output,           KindOf(image),
            CurveOf(image), image.ImageCircleRadius, image.InputAOV};
}

CircleView CircleViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source, frames.output, image.EffectVarnel};
}

}  // namespace varnel
