// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/measured_lens.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "gear/catalogue/gear_catalogue.h"
#include "remap/image/exif_orientation.h"
#include "remap/projection/record_maps.h"
#include "state/adjustments/frame_reading.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

PixelSize SizeOf(const ImageRecord& image) {
    return {image.Width, image.Height};
}

LensView ViewOf(const ImageRecord& image, double pixelsPerMillimetre, const EdgePoint& centre) {
    const LensCurve curve = LensCurveOf(image);
    return image.Lens ? ViewOfLens(*image.Lens,
                                   static_cast<double>(curve.scale) * pixelsPerMillimetre, centre)
                      : ViewOfFormula(LensKindOf(image), curve, pixelsPerMillimetre, centre);
}

bool IsInMillimetres(const ImageRecord& image) {
    return !image.Lens || image.Lens->unit == SampledLens::Unit::Millimetres;
}

bool HasLens(const ImageRecord& image) {
    const bool curve = image.Lens ? IsInMillimetres(image) || image.ImageCircleRadius > 0.0F
                                  : image.LensMapScale > 0.0F && image.LensMapFactor > 0.0F;
    return curve && image.SensorWidth > 0.0F && image.SensorHeight > 0.0F && image.Width > 0 &&
           image.Height > 0;
}

// Lens, circle and angles as the lens brings them to the record's camera.
GearRecord WithLens(const LensReference& lens, const ImageRecord& image) {
    GearRecord gear;
    gear.CameraBrand = image.CameraBrand;
    gear.CameraModel = image.CameraModel;
    gear.SensorWidth = image.SensorWidth;
    gear.SensorHeight = image.SensorHeight;
    gear.ImageCircleRadius = image.ImageCircleRadius;
    GiveLens(lens, gear);
    return gear;
}

}  // namespace

std::optional<KnownLens> KnownLensOf(const ImageRecord& image) {
    if (!HasLens(image)) {
        return std::nullopt;
    }
    const double scale =
        PixelsPerUnit(image.Width, image.Landscape, {image.SensorWidth, image.SensorHeight});
    const ImageCircle circle = CircleOf(image, SizeOf(image));
    try {
        return KnownLens{ViewOf(image, scale, {circle.x, image.Height - circle.y}),
                         IsInMillimetres(image) ? std::optional(scale) : std::nullopt};
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void PutLens(const LensReference& lens, ImageRecord& image) {
    const bool usualAngle = image.OutputAOV == UsualOutputAov(image);
    const float outputAngle = image.OutputAOV;
    const GearRecord gear = WithLens(lens, image);
    image.GearName = gear.CameraBrand.isEmpty() && gear.CameraModel.isEmpty()
                         ? gear.LensBrand + u' ' + gear.LensModel
                         : BuiltGearName(NamesOf(gear)).trimmed();
    image.LensBrand = gear.LensBrand;
    image.LensModel = gear.LensModel;
    image.Lens = gear.Lens;
    image.LensMapScale = gear.LensMapScale;
    image.LensMapFactor = gear.LensMapFactor;
    image.LensShift = gear.LensShift;
    image.ImageCircleRadius = gear.ImageCircleRadius;
    image.Ratio = gear.GearRatio;
    image.InputAOV = image.Landscape ? gear.hAOV : gear.vAOV;
    if (HasCentreFor(*lens, SizeOf(image))) {
        image.OfsetX = image.OfsetY = 0.0F;
    }
    TakeLensScale(image);
    image.OutputAOV = usualAngle ? UsualOutputAov(image) : outputAngle;
    image.SettingsApplied = true;
}

LensReference TurnedLens(const LensReference& lens, int from, int to) {
    if (!lens->centre || from == to) {
        return lens;
    }
    LensCentre centre = *lens->centre;
    ImageRecord turning;
    turning.Orientation = static_cast<std::int16_t>(from);
    turning.OfsetX = static_cast<float>(1000.0 * (centre.x / centre.size.width - 0.5));
    turning.OfsetY = static_cast<float>(1000.0 * (0.5 - centre.y / centre.size.height));
    TurnCentre(turning, to);
    if (SwapsSides(from) != SwapsSides(to)) {
        std::swap(centre.size.width, centre.size.height);
    }
    centre.x = centre.size.width * (0.5 + static_cast<double>(turning.OfsetX) / 1000.0);
    centre.y = centre.size.height * (0.5 - static_cast<double>(turning.OfsetY) / 1000.0);
    SampledLens turned = *lens;
    turned.centre = centre;
    return std::make_shared<const SampledLens>(std::move(turned));
}

}  // namespace varnel
