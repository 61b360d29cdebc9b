// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/gear_assignment.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/image/exif_orientation.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/frame_reading.h"

namespace varnel {

namespace {

bool IsStoredInLandscape(const ImageRecord& image) {
    return SwapsSides(image.Orientation) ? image.Height >= image.Width
                                         : static_cast<bool>(image.Landscape);
}

// What undoes an orientation.
int Inverse(int orientation) {
    constexpr int clockwise = 6;
    constexpr int counterClockwise = 8;
    return orientation == clockwise          ? counterClockwise
           : orientation == counterClockwise ? clockwise
                                             : orientation;
}

void SetCentre(const CentreOffset& centre, ImageRecord& image) {
    image.OfsetX = centre.x;
    image.OfsetY = centre.y;
}

// A lens that states its scale for pictures of this shape knows better than the camera which piece
// of the sensor they show.
void TakePieceOfLens(ImageRecord& image) {
    constexpr float rounding = 0.01F;
    ImageRecord placed = image;
    if (image.Lens && TakeLensScale(placed) &&
        std::fabs(placed.SensorWidth - image.SensorWidth) > rounding * image.SensorWidth) {
        image = std::move(placed);
    }
}

}  // namespace

CentreOffset Turned(const CentreOffset& stored, int orientation) {
    const auto [x, y] = stored;
    const float left = 0.0F - x;  // never a negative 0, which would show
    const float up = 0.0F - y;
    const CentreOffset turned[] = {{x, y}, {left, y}, {left, up}, {x, up},
                                   {y, x}, {up, x},   {up, left}, {y, left}};
    return IsOrientation(orientation) ? turned[orientation - 1] : stored;
}

CentreOffset ShownCentre(const CentreOffset& gear, const ImageRecord& image) {
    const CentreOffset stored = IsStoredInLandscape(image) ? gear : CentreOffset{gear.y, gear.x};
    return Turned(stored, image.Orientation);
}

CentreOffset GearCentre(const CentreOffset& shown, const ImageRecord& image) {
    const CentreOffset stored = Turned(shown, Inverse(image.Orientation));
    return IsStoredInLandscape(image) ? stored : CentreOffset{stored.y, stored.x};
}

void TurnCentre(ImageRecord& image, int orientation) {
    if (IsOrientation(image.Orientation) && image.Orientation != orientation) {
        const CentreOffset shown{image.OfsetX, image.OfsetY};
        SetCentre(Turned(Turned(shown, Inverse(image.Orientation)), orientation), image);
    }
}

float UsualOutputAov(const ImageRecord& image) {
    constexpr float widest = 130.0F;
    const ControlUse* const use = UseOf(ProjectionFromIndex(image.Projection), SliderId::AovOutput);
    return use != nullptr && use->usual ? static_cast<float>(*use->usual)
                                        : std::min(image.InputAOV, widest);
}

void TakeProjection(Projection projection, ImageRecord& image) {
    const bool usual = image.OutputAOV == UsualOutputAov(image);
    image.Projection = static_cast<std::int16_t>(projection);
    image.OutputAOV = usual ? UsualOutputAov(image) : image.OutputAOV;
}

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
    image.Lens = gear.Lens;
    SetCentre(ShownCentre({gear.OfsetX, gear.OfsetY}, image), image);
}

bool AssignGear(const GearRecord& gear, ImageRecord& image) {
    if (image.SettingsApplied) {
        return false;
    }
    image.EffectVarnel = usualEffect;
    image.EffectRectilinear = usualEffect;
    CopyGear(gear, image);
    image.InputAOV = image.Landscape ? gear.hAOV : gear.vAOV;
    image.OutputAOV = UsualOutputAov(image);
    TakePieceOfLens(image);
    return true;
}

GearRecord GearOf(const ImageRecord& image) {
    GearRecord gear;
    gear.GearName = image.GearName;
    gear.CameraBrand = image.CameraBrand;
    gear.CameraModel = image.CameraModel;
    gear.LensBrand = image.LensBrand;
    gear.LensModel = image.LensModel;
    const CentreOffset centre = GearCentre({image.OfsetX, image.OfsetY}, image);
    gear.OfsetX = centre.x;
    gear.OfsetY = centre.y;
    gear.Lens = image.Lens;
    gear.GearRatio = image.Ratio;
    gear.hAOV = image.Landscape ? image.InputAOV : 0.0F;
    return gear;
}

// Every gear brings effects, and nothing sets one to 0 afterwards.
bool HasGearNumbers(const ImageRecord& image) {
    return image.SettingsApplied || image.EffectVarnel > 0.0F;
}

void ApplyGearToAll(RecordArray<ImageRecord>& images, const QString& gearName) {
    for (ImageRecord& image : images) {
        image.SettingsApplied = false;
        image.GearName = gearName;
    }
}

void CopySettings(const ImageRecord& from, ImageRecord& to) {
    ImageRecord changed = from;
    changed.Width = to.Width;
    changed.Height = to.Height;
    changed.Landscape = to.Landscape;
    changed.Folder = to.Folder;
    changed.FileName = to.FileName;
    changed.NameSuffix = to.NameSuffix;
    changed.Orientation = to.Orientation;
    changed.Film = to.Film;
    to = std::move(changed);
}

void ApplySettingsToAll(RecordArray<ImageRecord>& images, int current) {
    const ImageRecord source = images(current);
    for (ImageRecord& image : images) {
        CopySettings(source, image);
    }
}

}  // namespace varnel
