// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/catalogue/gear_catalogue.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/rounding.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "remap/projection/geometry.h"

namespace varnel {

namespace {

void WriteNames(const GearNames& names, GearRecord& gear) {
    gear.CameraBrand = names.cameraBrand;
    gear.CameraModel = names.cameraModel;
    gear.LensBrand = names.lensBrand;
    gear.LensModel = names.lensModel;
}

void FillCatalogueCamera(GearRecord& gear) {
    const std::optional<CameraRow> camera = FindCamera(gear.CameraBrand, gear.CameraModel);
    if (!camera) {
        return;
    }
    gear.SensorWidth = camera->sensorWidth;
    gear.SensorHeight = camera->sensorHeight;
    gear.CameraData1 = 0.0F;
    gear.CameraData2 = 0.0F;
    if (camera->brand == "Drones" && camera->model == "Parrot Bebop") {
        // The only camera with a fixed lens whose offsets were once stored otherwise: version 1
        // makes offsets that were saved without a version give way.
        gear.OfsetX = 0.0F;
        gear.OfsetY = 0.0F;
        gear.LensDataVersion = 1;
    }
}

void FillCatalogueLens(GearRecord& gear) {
    const std::optional<LensRow> lens = FindLens(gear.LensBrand, gear.LensModel);
    if (!lens) {
        return;
    }
    gear.ImageCircleRadius = lens->imageCircleRadius;
    gear.LensShift = lens->shift;
    gear.LensData3 = 0.0F;
    gear.LensFieldAngle = lens->fieldAngle;
    gear.LensMapScale = lens->mapScale;
    gear.LensMapFactor = lens->mapFactor;
}

// Equisolid, r = 2 f sin(theta / 2), with its circle at 90 degrees.
void FillTypicalLens(bool fillsPicture, GearRecord& gear) {
    const float radius = fillsPicture ? std::hypot(gear.SensorWidth, gear.SensorHeight) / 2.0F
                                      : gear.SensorHeight / 2.0F;
    gear.ImageCircleRadius = radius;
    gear.LensShift = 0.0F;
    gear.LensFieldAngle = 180.0F;
    gear.LensMapScale = radius * std::numbers::sqrt2_v<float>;
    gear.LensMapFactor = 0.5F;
}

// All but the angles that follow from the curve.
void FillCurve(GearRecord& gear) {
    const SampledLens& lens = *gear.Lens;
    gear.LensMapScale = 0.0F;
    gear.LensMapFactor = 0.0F;
    gear.LensShift = 0.0F;
    gear.LensFieldAngle = static_cast<float>(360.0 * lens.FieldLimit() / static_cast<double>(Pi));
    if (lens.unit == SampledLens::Unit::Millimetres) {
        const double rim = std::min(lens.FieldLimit(), static_cast<double>(Pi) / 2.0);
        gear.ImageCircleRadius = static_cast<float>(LensSpline(lens).RadiusAt(rim));
    } else if (lens.centre && lens.pixelsPerUnit) {
        gear.ImageCircleRadius =
            static_cast<float>(*lens.pixelsPerUnit * static_cast<double>(gear.SensorWidth) /
                               std::max(lens.centre->size.width, lens.centre->size.height));
    } else if (gear.ImageCircleRadius == 0.0F) {
        gear.ImageCircleRadius = gear.SensorHeight / 2.0F;
    }
}

void FillCamera(GearRecord& gear) {
    FillCatalogueCamera(gear);
    if (gear.Own.HasSensor()) {
        gear.SensorWidth = gear.Own.SensorWidth;
        gear.SensorHeight = gear.Own.SensorHeight;
    }
}

void FillLens(GearRecord& gear) {
    const bool isTypical = gear.LensBrand == typicalLensBrand;
    const bool isListed = isTypical || FindLens(gear.LensBrand, gear.LensModel);
    if (isListed || (gear.Lens && gear.Lens->name != gear.LensModel)) {
        gear.Lens = {};
    }
    if (gear.Lens) {
        gear.ImageCircleRadius = 0.0F;
        FillCurve(gear);
        return;
    }
    if (LacksLens(gear)) {
        gear.LensMapScale = 0.0F;
        gear.LensMapFactor = 0.0F;
    }
    if (isTypical) {
        FillTypicalLens(gear.LensModel == typicalLensModels[1], gear);
    }
    FillCatalogueLens(gear);
    if (gear.Own.HasLens()) {
        gear.LensMapScale = gear.Own.LensMapScale;
        gear.LensMapFactor = gear.Own.LensMapFactor;
    }
}

// Twice the angle, in degrees, of the ray that lands at half the extent of the picture along one
// side of the sensor: at the circle's edge when the whole circle fits, else at the sensor's edge.
double AngleOfView(LensKind kind, const GearRecord& gear, float sensorSide) {
    const double radius = static_cast<double>(gear.ImageCircleRadius);
    const double side = static_cast<double>(sensorSide);
    const double halfExtent = 2.0 * radius < side ? radius : side / 2.0;
    if (gear.Lens) {
        const bool inMillimetres = gear.Lens->unit == SampledLens::Unit::Millimetres;
        const double unit = inMillimetres ? 1.0 : radius;
        return 360.0 * LensSpline(*gear.Lens).AngleAt(halfExtent / unit) / static_cast<double>(Pi);
    }
    const double relative = halfExtent / static_cast<double>(gear.LensMapScale);
    const double factor = static_cast<double>(gear.LensMapFactor);
    const double pi = static_cast<double>(Pi);
    return kind == LensKind::Sin ? 360.0 * ArcSin(relative) / (factor * pi)
                                 : factor * 360.0 * std::atan(relative) / pi;
}

// The same gear without what was moved by hand.
GearRecord CatalogueGear(const GearRecord& gear) {
    GearRecord usual;
    usual.Lens = gear.Lens;
    usual.Own = gear.Own;
    FillGearFromCatalogue(NamesOf(gear), usual);
    return usual;
}

bool Differ(float one, float other) {
    constexpr float storedDigits = 1e-5F;  // seven digits are written
    return std::fabs(one - other) > storedDigits * std::fabs(other);
}

}  // namespace

GearNames NamesOf(const GearRecord& gear) {
    return {gear.CameraBrand, gear.CameraModel, gear.LensBrand, gear.LensModel};
}

GearRecord GearNamed(const GearNames& names) {
    GearRecord gear;
    WriteNames(names, gear);
    return gear;
}

void FillGearFromCatalogue(const GearNames& names, GearRecord& gear, const EditorSliders& sliders) {
    WriteNames(names, gear);
    gear.LensDataVersion = 0;
    FillCamera(gear);
    FillLens(gear);
    FillAngles(gear);
    if (gear.UserAdjusted) {
        gear.GearRatio = sliders.ratio;
        gear.OfsetX = sliders.xOfset;
        gear.OfsetY = sliders.yOfset;
    }
}

void FillAngles(GearRecord& gear) {
    if (gear.ImageCircleRadius != 0.0F) {
        gear.GearRatio = static_cast<float>(50.0 * static_cast<double>(gear.SensorWidth) /
                                            static_cast<double>(gear.ImageCircleRadius));
    }
    if (gear.Lens || (gear.LensMapScale != 0.0F && gear.LensMapFactor != 0.0F)) {
        const LensKind kind =
            CatalogueMappingKind(gear.LensBrand.toStdString(), gear.LensModel.toStdString());
        gear.hAOV = static_cast<float>(AngleOfView(kind, gear, gear.SensorWidth));
        gear.vAOV = static_cast<float>(AngleOfView(kind, gear, gear.SensorHeight));
    }
}

void GiveLens(const LensReference& lens, GearRecord& gear) {
    gear.LensBrand = ownLensBrand;
    gear.LensModel = lens->name;
    gear.Lens = lens;
    FillCurve(gear);
    FillAngles(gear);
}

bool LacksLens(const GearRecord& gear) {
    return gear.LensBrand == ownLensBrand && !gear.Lens;
}

bool HasOwnCircle(const GearRecord& gear) {
    const GearRecord catalogue = CatalogueGear(gear);
    return Differ(gear.GearRatio, catalogue.GearRatio) || Differ(gear.OfsetX, catalogue.OfsetX) ||
           Differ(gear.OfsetY, catalogue.OfsetY);
}

bool HasOwnAngle(const GearRecord& gear) {
    return Differ(gear.hAOV, CatalogueGear(gear).hAOV);
}

QString BuiltGearName(const GearNames& names) {
    return names.cameraBrand + u' ' + names.cameraModel + QStringLiteral(" + ") + names.lensBrand +
           u' ' + names.lensModel;
}

GearRecord BuiltGear(const GearNames& names) {
    GearRecord gear;
    FillGearFromCatalogue(names, gear);
    gear.GearName = BuiltGearName(names);
    return gear;
}

QString UniqueGearName(const GearTable& table, QString name) {
    for (int n = 1; n <= table.UpperBound(); ++n) {
        if (table(n).GearName == name) {
            name += u" 2";
        }
    }
    return name;
}

}  // namespace varnel
