// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/record_maps.h"

#include <algorithm>
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

// At least 1; also of a photo whose size is not known.
std::int32_t Rounded(double size) {
    constexpr double most = 1e9;
    return std::isfinite(size) ? static_cast<std::int32_t>(std::lround(std::clamp(size, 1.0, most)))
                               : 1;
}

// A part of a side: where it begins and how much of it there is, of 1.
struct Part {
    double start = 0.0;
    double length = 1.0;
};

Part PartOf(float start, float length) {
    if (!(length > 0.0F)) {
        return {};
    }
    const double kept = std::clamp(static_cast<double>(length), leastCrop, 1.0);
    return {std::clamp(static_cast<double>(start), 0.0, 1.0 - kept), kept};
}

// The frame before the crop, whose part has that size.
std::int32_t WholeOf(const Part& part, std::int32_t size) {
    return std::max(Rounded(size / part.length), size);
}

std::int32_t CornerOf(const Part& part, std::int32_t whole, std::int32_t size) {
    return std::clamp(static_cast<std::int32_t>(std::lround(part.start * whole)), 0, whole - size);
}

// The largest of the photo's shape that fits into a frame; none where a frame has that shape but
// for roundings.
PixelSize InnerOf(PixelSize photo, PixelSize frame) {
    const double across = static_cast<double>(frame.width) / photo.width;
    const double up = static_cast<double>(frame.height) / photo.height;
    if (std::fabs(photo.height * across - frame.height) <= 1.0) {
        return {};
    }
    return across < up ? PixelSize{frame.width, Rounded(photo.height * across)}
                       : PixelSize{Rounded(photo.width * up), frame.height};
}

}  // namespace

bool IsCropped(const ImageRecord& image) {
    return image.CropWidth > 0.0F || image.CropHeight > 0.0F;
}

PixelSize ResultSizeOf(const ImageRecord& image, PixelSize photo) {
    const Part across = PartOf(image.CropLeft, image.CropWidth);
    const Part down = PartOf(image.CropTop, image.CropHeight);
    const double width = photo.width * across.length;
    const double height = photo.height * down.length;
    if (image.OutputWidth > 0) {
        const double scaled = height * image.OutputWidth / width;
        return {image.OutputWidth, image.OutputHeight > 0 ? image.OutputHeight : Rounded(scaled)};
    }
    return image.OutputHeight > 0
               ? PixelSize{Rounded(width * image.OutputHeight / height), image.OutputHeight}
               : PixelSize{Rounded(width), Rounded(height)};
}

OutputFrame OutputFrameOf(const ImageRecord& image, const SourceFrame& photo, PixelSize result) {
    const Part across = PartOf(image.CropLeft, image.CropWidth);
    const Part down = PartOf(image.CropTop, image.CropHeight);
    const PixelSize whole{WholeOf(across, result.width), WholeOf(down, result.height)};
    OutputFrame frame = Resized(photo, whole);
    frame.size = result;
    frame.inner = InnerOf(photo.size, whole);
    if (IsCropped(image) || frame.inner.width > 0) {
        frame.whole = whole;
        frame.corner = {CornerOf(across, whole.width, result.width),
                        whole.height - result.height - CornerOf(down, whole.height, result.height)};
    }
    return frame;
}

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
    return {photo, wish ? wish(photo) : OutputFrameOf(image, photo, ResultSizeOf(image, source))};
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
    return {frames.source,           frames.output.Fitted(frames.source),
            LensKindOf(image),       LensCurveOf(image, frames.source.colour),
            image.ImageCircleRadius, image.InputAOV};
}

CircleView CircleViewOf(const ImageRecord& image, const Frames& frames) {
    return {frames.source, frames.output.Fitted(frames.source), image.EffectVarnel};
}

}  // namespace varnel
