// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/gear_circle.h"

#include <algorithm>
#include <cmath>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/from_photo/gear_offer.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

float Tenths(double value) {
    return static_cast<float>(std::round(value * 10.0) / 10.0) + 0.0F;  // no negative 0
}

double FiftySides(PixelSize picture) {
    return 50.0 * std::max(picture.width, picture.height);
}

float AngleFor(const GearRecord& gear, const ImageRecord& image) {
    return image.Landscape ? gear.hAOV : gear.vAOV;
}

void GiveSensor(const GearRecord& gear, ImageRecord& image) {
    image.SensorWidth = gear.SensorWidth;
    image.SensorHeight = gear.SensorHeight;
}

void GiveCentre(const GearRecord& gear, ImageRecord& image) {
    const CentreOffset shown = ShownCentre({gear.OfsetX, gear.OfsetY}, image);
    image.OfsetX = shown.x;
    image.OfsetY = shown.y;
}

// With the angle of view of the piece; a whole sensor has the gear's, which may be set by hand.
void TakeWithAngle(const ImageCircle& circle, const GearRecord& gear, ImageRecord& image) {
    constexpr float nearly = 0.99F;
    GiveSensor(gear, image);
    TakeCircle(circle, image);
    if (image.SensorWidth >= nearly * gear.SensorWidth &&
        image.SensorHeight >= nearly * gear.SensorHeight) {
        image.InputAOV = AngleFor(gear, image);
    }
}

// Gives the record the angles back that were moved by hand before: those that are not what gear or
// circle brought, but for the whole numbers that a slider stores.
void KeepMovedAngles(const ImageRecord& before, const GearRecord& gear, ImageRecord& image) {
    ImageRecord usual = before;
    const ImageCircle circle = CircleOf(before, {before.Width, before.Height});
    if (circle.radius > 0.0) {
        TakeWithAngle(circle, gear, usual);
    }
    const auto isUsual = [&before](float angle) {
        constexpr float rounding = 0.5F;
        return std::fabs(before.InputAOV - angle) <= rounding;
    };
    if (!isUsual(usual.InputAOV) && !isUsual(AngleFor(gear, before))) {
        image.InputAOV = before.InputAOV;
    }
    image.OutputAOV =
        before.OutputAOV == UsualOutputAov(before) ? UsualOutputAov(image) : before.OutputAOV;
}

void KeepPiece(const ImageRecord& image, GearRecord& gear) {
    constexpr float nearly = 0.99F;
    const bool isPiece = image.SensorWidth < nearly * gear.SensorWidth ||
                         image.SensorHeight < nearly * gear.SensorHeight;
    if (!isPiece || image.SensorWidth <= 0.0F || image.SensorHeight <= 0.0F) {
        return;
    }
    gear.Own.SensorWidth = gear.SensorWidth = image.SensorWidth;
    gear.Own.SensorHeight = gear.SensorHeight = image.SensorHeight;
    GearRecord usual = gear;
    FillAngles(usual);
    gear.hAOV = usual.hAOV;
    gear.vAOV = usual.vAOV;
}

// Whether the picture shows the gear's piece of the sensor, as far as its shape tells.
bool ShowsPiece(const GearRecord& gear, const ImageRecord& image) {
    ImageRecord shown = image;
    GiveSensor(gear, shown);
    return !gear.Own.HasSensor() || ShapeError(shown).isEmpty();
}

}  // namespace

GearCircle GearCircleFor(const ImageCircle& circle, const ImageRecord& image, PixelSize picture) {
    const CentreOffset centre = GearCentre({Tenths(1000.0 * (circle.x / picture.width - 0.5)),
                                            Tenths(1000.0 * (circle.y / picture.height - 0.5))},
                                           image);
    return {centre.x, centre.y, Tenths(FiftySides(picture) / circle.radius)};
}

void PutCircle(const ImageCircle& circle, const GearRecord& gear, ImageRecord& image) {
    const ImageRecord before = image;
    TakeWithAngle(circle, gear, image);
    KeepMovedAngles(before, gear, image);
    image.SettingsApplied = true;
}

void ResetCircle(const GearRecord& gear, ImageRecord& image) {
    const ImageRecord before = image;
    GiveSensor(gear, image);
    GiveCentre(gear, image);
    image.Ratio = gear.GearRatio;
    image.InputAOV = AngleFor(gear, image);
    KeepMovedAngles(before, gear, image);
    image.SettingsApplied = true;
}

int TakeCircle(const GearCircle& circle, GearRecord& gear, RecordArray<ImageRecord>& images,
               int current) {
    gear.UserAdjusted = true;
    gear.SetByHand = true;
    gear.OfsetX = circle.OfsetX;
    gear.OfsetY = circle.OfsetY;
    gear.GearRatio = circle.GearRatio;
    KeepPiece(images(current), gear);
    int taken = 0;
    for (int n = 1; n <= images.UpperBound(); ++n) {
        ImageRecord& image = images(n);
        if (n != current && (image.GearName != gear.GearName || image.SettingsApplied ||
                             !ShowsPiece(gear, image))) {
            continue;
        }
        if (n != current && gear.Own.HasSensor()) {
            GiveSensor(gear, image);
            image.InputAOV = AngleFor(gear, image);
            image.OutputAOV = UsualOutputAov(image);
        }
        GiveCentre(gear, image);
        image.Ratio = gear.GearRatio;
        ++taken;
    }
    return taken;
}

bool ChangeGear(GearTable& table, const GearChange& change) {
    const int n = table.Find(change.from.GearName);
    if (n == 0 || table(n) != change.from) {
        return false;
    }
    table(n) = change.to;
    return true;
}

}  // namespace varnel
