// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/usual_values.h"

#include <cmath>

#include "remap/projection/projection_info.h"
#include "state/adjustments/frame_reading.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

float ImageRecord::*FieldOf(SliderId slider, Projection projection) {
    switch (slider) {
        case SliderId::AovInput:
            return &ImageRecord::InputAOV;
        case SliderId::AovOutput:
            return &ImageRecord::OutputAOV;
        case SliderId::Effect:
            return EffectReadBy(projection).value_or(&ImageRecord::EffectVarnel);
        case SliderId::X:
            return &ImageRecord::RotateX;
        case SliderId::Y:
            return &ImageRecord::RotateY;
        case SliderId::Z:
            return &ImageRecord::RotateZ;
        case SliderId::XTranslate:
            return &ImageRecord::TranslateX;
        case SliderId::YTranslate:
            break;
    }
    return &ImageRecord::TranslateY;
}

bool HasNumbersOf(const GearRecord& gear, const ImageRecord& image) {
    return gear.SensorWidth == image.SensorWidth && gear.SensorHeight == image.SensorHeight &&
           gear.LensMapScale == image.LensMapScale && gear.LensMapFactor == image.LensMapFactor &&
           gear.Lens == image.Lens;
}

float UsualInputAov(const ImageRecord& image, const GearTable& gears) {
    const int listed = gears.Find(image.GearName);
    const GearRecord gear =
        listed > 0 && HasNumbersOf(gears(listed), image) ? gears(listed) : WholeGearOf(image);
    const float angle = image.Landscape ? gear.hAOV : gear.vAOV;
    return angle > 0.0F ? angle : image.InputAOV;
}

}  // namespace

ImageRecord UsualRecord(const ImageRecord& image, const GearTable& gears) {
    ImageRecord usual = image;
    usual.InputAOV = UsualInputAov(image, gears);
    usual.OutputAOV = UsualOutputAov(usual.InputAOV);
    usual.EffectVarnel = usualEffect;
    usual.EffectRectilinear = usualEffect;
    usual.RotateX = usual.RotateY = usual.RotateZ = 0.0F;
    usual.TranslateX = usual.TranslateY = 0.0F;
    return usual;
}

bool IsUnusual(SliderId slider, const ImageRecord& image, const ImageRecord& usual) {
    constexpr float least = 0.05F;  // half of what can be typed
    const auto field = FieldOf(slider, ProjectionFromIndex(image.Projection));
    const float value = image.*field;
    return std::fabs(value - usual.*field) > least &&
           std::fabs(value - std::round(usual.*field)) > least;
}

void TakeUsual(SliderId slider, const ImageRecord& usual, ImageRecord& image) {
    const auto field = FieldOf(slider, ProjectionFromIndex(image.Projection));
    image.*field = usual.*field;
}

}  // namespace varnel
