// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/gear_assignment.h"

namespace varnel {

namespace {

constexpr float widestOutputAov = 130.0F;  // degrees, for a gear's default

void CopyGear(const GearRecord& gear, ImageRecord& image) {
    image.GearName = gear.GearName;
    image.CameraBrand = gear.CameraBrand;
    image.CameraModel = gear.CameraModel;
    image.SensorWidth = gear.SensorWidth;
    image.SensorHeight = gear.SensorHeight;
    image.CameraData1 = gear.CameraData1;
    image.CameraData2 = gear.CameraData2;
    image.LensBrand = gear.LensBrand;
    image.LensModel = gear.LensModel;
    image.ImageCircleRadius = gear.ImageCircleRadius;
    image.LensShift = gear.LensShift;
    image.LensData3 = gear.LensData3;
    image.Ratio = gear.GearRatio;
    image.LensMapScale = gear.LensMapScale;
    image.LensMapFactor = gear.LensMapFactor;
}

}  // namespace

bool AssignGear(const GearRecord& gear, ImageRecord& image) {
    if (image.SettingsApplied) {
        return false;
    }
    image.EffectVarnel = 100.0F;
    image.EffectRectilinear = 100.0F;
    CopyGear(gear, image);
    image.OfsetX = image.Landscape ? gear.OfsetX : gear.OfsetY;
    image.OfsetY = image.Landscape ? gear.OfsetY : gear.OfsetX;
    image.InputAOV = image.Landscape ? gear.hAOV : gear.vAOV;
    image.OutputAOV = image.InputAOV > widestOutputAov ? widestOutputAov : image.InputAOV;
    return true;
}

void ApplyGearToAll(RecordArray<ImageRecord>& images, const QString& gearName) {
    for (ImageRecord& image : images) {
        image.SettingsApplied = false;
        image.GearName = gearName;
    }
}

void ApplySettingsToAll(RecordArray<ImageRecord>& images, int current) {
    const ImageRecord source = images(current);
    for (ImageRecord& image : images) {
        ImageRecord changed = source;
        changed.Width = image.Width;
        changed.Height = image.Height;
        changed.Landscape = image.Landscape;
        changed.Folder = image.Folder;
        changed.FileName = image.FileName;
        changed.NameSuffix = image.NameSuffix;
        image = std::move(changed);
    }
}

}  // namespace varnel
