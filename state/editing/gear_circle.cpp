// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/gear_circle.h"

#include <algorithm>
#include <cmath>

#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

float Tenths(double value) {
    return static_cast<float>(std::round(value * 10.0) / 10.0) + 0.0F;  // no negative 0
}

double FiftySides(PixelSize picture) {
    return 50.0 * std::max(picture.width, picture.height);
}

}  // namespace

GearCircle GearCircleFor(const ImageCircle& circle, const ImageRecord& image, PixelSize picture) {
    const CentreOffset centre = GearCentre({Tenths(1000.0 * (circle.x / picture.width - 0.5)),
                                            Tenths(1000.0 * (circle.y / picture.height - 0.5))},
                                           image);
    return {centre.x, centre.y, Tenths(FiftySides(picture) / circle.radius)};
}

int TakeCircle(const GearCircle& circle, GearRecord& gear, RecordArray<ImageRecord>& images,
               int current) {
    gear.UserAdjusted = true;
    gear.SetByHand = true;
    gear.OfsetX = circle.OfsetX;
    gear.OfsetY = circle.OfsetY;
    gear.GearRatio = circle.GearRatio;
    int taken = 0;
    for (int n = 1; n <= images.UpperBound(); ++n) {
        ImageRecord& image = images(n);
        if (n != current && (image.GearName != gear.GearName || image.SettingsApplied)) {
            continue;
        }
        const CentreOffset shown = ShownCentre({gear.OfsetX, gear.OfsetY}, image);
        image.OfsetX = shown.x;
        image.OfsetY = shown.y;
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
