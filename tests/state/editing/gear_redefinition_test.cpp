// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/gear_redefinition.h"

#include <gtest/gtest.h>

#include "state/adjustments/gear_assignment.h"

namespace varnel {
namespace {

GearRecord Gear() {
    GearRecord gear;
    gear.GearName = QStringLiteral("A");
    gear.LensMapScale = 15.6F;
    gear.hAOV = 186.24F;
    gear.vAOV = 186.24F;
    gear.GearRatio = 150.0F;
    gear.OfsetX = 3.0F;
    return gear;
}

ImageRecord Photo(bool landscape) {
    ImageRecord image;
    image.Landscape = landscape;
    AssignGear(Gear(), image);
    return image;
}

ImageRecord Adjusted(ImageRecord image, float inputAov) {
    image.InputAOV = inputAov;
    image.OutputAOV = 77.0F;
    image.RotateX = -5.0F;
    image.SettingsApplied = true;
    return image;
}

// The one photo after a redefinition that was agreed to; how many were asked for.
int Follow(const GearChange& change, ImageRecord& image) {
    RecordArray<ImageRecord> images;
    images.Append(image);
    const GearFollowers photos(change, images);
    photos.Settle(images);
    photos.GiveNewNumbers(images);
    image = images(1);
    return photos.Count();
}

TEST(GearFollowers, AnAngleFollowsWhileItIsTheGears) {
    GearRecord now = Gear();
    now.LensMapScale = 16.0F;
    now.hAOV = 150.5F;
    now.vAOV = 100.25F;
    now.OfsetY = -9.0F;
    const struct {
        bool landscape;
        float before, after;
    } cases[] = {
        {true, 186.24F, 150.5F},  {true, 186.0F, 150.5F},  {true, 187.0F, 187.0F},
        {false, 186.0F, 100.25F}, {false, 120.0F, 120.0F},
    };
    for (const auto& c : cases) {
        ImageRecord image = Adjusted(Photo(c.landscape), c.before);
        ImageRecord wanted = Photo(c.landscape);
        AssignGear(now, wanted);  // its centre on the upright photo, too
        wanted = Adjusted(wanted, c.after);
        EXPECT_EQ(Follow({Gear(), now}, image), 1);
        EXPECT_EQ(image, wanted) << c.before;
    }
    // Wider or narrower than the slider goes.
    GearRecord narrow = Gear();
    narrow.hAOV = 52.0F;
    ImageRecord image = Adjusted(Photo(true), 70.0F);
    EXPECT_EQ(Follow({narrow, now}, image), 1);
    EXPECT_EQ(image.InputAOV, 150.5F);
}

TEST(GearFollowers, OnlyPhotosThatHaveTheNumbersAreAskedFor) {
    GearRecord now = Gear();
    now.GearName = QStringLiteral("B");
    now.UserAdjusted = true;
    ImageRecord image = Adjusted(Photo(true), 100.0F);
    ImageRecord wanted = image;
    wanted.GearName = now.GearName;
    EXPECT_EQ(Follow({Gear(), now}, image), 0);  // a new name brings no numbers
    EXPECT_EQ(image, wanted);

    now.hAOV = 120.0F;
    EXPECT_EQ(Follow({Gear(), now}, image), 0);  // has another gear
    EXPECT_EQ(image, wanted);
    ImageRecord waiting;
    waiting.GearName = QStringLiteral("A");
    EXPECT_EQ(Follow({Gear(), now}, waiting), 0);  // its numbers are still to come
    EXPECT_EQ(waiting.GearName, QStringLiteral("B"));
    EXPECT_EQ(waiting.InputAOV, 0.0F);
    EXPECT_FALSE(waiting.SettingsApplied);
}

}  // namespace
}  // namespace varnel
