// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/usual_values.h"

#include <cmath>

#include "remap/projection/projection_info.h"
#include "state/adjustments/choice_table.h"
#include "state/adjustments/control_values.h"
#include "state/adjustments/frame_reading.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

float ImageRecord::*PlaceOf(SliderId slider, Projection projection) {
    const ControlField* const field = FieldOf(slider);
    return field != nullptr ? field->field
                            : EffectReadBy(projection).value_or(&ImageRecord::EffectVarnel);
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
    usual.OutputAOV = UsualOutputAov(usual);
    usual.EffectVarnel = usualEffect;
    usual.EffectRectilinear = usualEffect;
    usual.RotateX = usual.RotateY = usual.RotateZ = 0.0F;
    usual.TranslateX = usual.TranslateY = 0.0F;
    for (const SliderId id : {SliderId::PaniniD, SliderId::PaniniSqueeze, SliderId::UnrollStart,
                              SliderId::UnrollFrom, SliderId::UnrollTo}) {
        usual.*FieldOf(id)->field = ImageRecord().*FieldOf(id)->field;
    }
    for (const ChoiceRowData& row : ChoiceRows()) {
        row.Give(row.Of(ImageRecord()), usual);
    }
    return usual;
}

bool IsUnusual(SliderId slider, const ImageRecord& image, const ImageRecord& usual) {
    constexpr float least = 0.05F;  // half of what can be typed
    const auto place = PlaceOf(slider, ProjectionFromIndex(image.Projection));
    const ControlField* const field = FieldOf(slider);
    const auto factor = static_cast<float>(field == nullptr ? 1.0 : field->factor);
    const float value = image.*place * factor;
    const float expected = usual.*place * factor;
    return std::fabs(value - expected) > least && std::fabs(value - std::round(expected)) > least;
}

void TakeUsual(SliderId slider, const ImageRecord& usual, ImageRecord& image) {
    const auto place = PlaceOf(slider, ProjectionFromIndex(image.Projection));
    image.*place = usual.*place;
}

}  // namespace varnel
