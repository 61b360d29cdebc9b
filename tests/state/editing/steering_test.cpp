// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is grabbed on the result is afterwards where it was dragged to, as the conversion itself
// reads the photo there.

#include "state/editing/steering.h"

#include <gtest/gtest.h>

#include <cmath>

#include "state/adjustments/slider_table.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr double near = 0.3;  // pixels of the photo

struct Case {
    const char* name;
    float angle, effect;
    float x, y, z;            // turns
    float right = 0, up = 0;  // translations
    bool upright = false;
    float offsetX = 0, offsetY = 0;
};

constexpr Case cases[]{{"level", 90, 100, 0, 0, 0},
                       {"turned", 90, 100, 12.5F, -23.25F, 7},
                       {"beyond the sliders", 75, 100, -50, 62, 30},
                       {"wide", 130, 100, 5, 10, 0},
                       {"narrow", 25, 100, -10, 8, -12},
                       {"half the effect", 90, 50, 10, -20, 3},
                       {"shifted", 80, 100, 6, 0, 0, 12.5F, -7.3F},
                       {"upright", 90, 100, 10, 15, 90, 0, 0, true},
                       {"off the middle", 100, 80, -8, 20, 4, 3, 2, false, 31, -17}};

Steered SteeredBy(const Case& given) {
    Steered steered{testing::FisheyeRecord(), {601, 400}};
    ImageRecord& image = steered.image;
    image.Projection = static_cast<std::int16_t>(Projection::Rectilinear);
    image.OutputAOV = given.angle;
    image.EffectRectilinear = given.effect;
    image.RotateX = given.x;
    image.RotateY = given.y;
    image.RotateZ = given.z;
    image.TranslateX = given.right;
    image.TranslateY = given.up;
    image.OfsetX = given.offsetX;
    image.OfsetY = given.offsetY;
    if (given.upright) {
        image.Landscape = false;
        steered.size = {400, 601};
    }
    return steered;
}

// The middle of the pixel at a share of the result's sides.
SourcePosition PixelAt(const Steered& steered, double across, double up) {
    return {std::floor(across * steered.size.width), std::floor(up * steered.size.height)};
}

// As the conversion reads it.
SourcePosition Read(const Steered& steered, const SourcePosition& pixel) {
    const InverseMapping places(Projection::Rectilinear, steered.image, steered.size);
    return places.ReadAt(static_cast<int>(pixel.x), static_cast<int>(pixel.y))
        .value_or(SourcePosition{-1e9, -1e9});
}

double Distance(const SourcePosition& a, const SourcePosition& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

TEST(PlaceUnder, IsWhatTheConversionReads) {
    for (const Case& given : cases) {
        const Steered steered = SteeredBy(given);
        for (const double across : {0.1, 0.5, 0.9}) {
            const SourcePosition pixel = PixelAt(steered, across, 0.3);
            const auto place = PlaceUnder(steered, pixel);
            ASSERT_TRUE(place) << given.name;
            EXPECT_NEAR(Distance(*place, Read(steered, pixel)), 0.0, 1e-6) << given.name;
        }
    }
    Steered none = SteeredBy(cases[0]);
    none.image.SensorWidth = 0.0F;
    EXPECT_FALSE(PlaceUnder(none, {10, 10}));
    EXPECT_EQ(TurnedTo(none, {10, 10}, {20, 20}), none.image);
}

TEST(TurnedTo, LeavesTheGrabbedPlaceUnderThePointer) {
    for (const Case& given : cases) {
        const Steered before = SteeredBy(given);
        const SourcePosition grabbed = Read(before, PixelAt(before, 0.45, 0.55));
        for (const auto& [across, up] : {std::pair{0.46, 0.55}, {0.3, 0.7}, {0.75, 0.5}}) {
            Steered after = before;
            const SourcePosition pointer = PixelAt(before, across, up);
            after.image = TurnedTo(before, pointer, grabbed);
            EXPECT_LT(Distance(Read(after, pointer), grabbed), near) << given.name;
            EXPECT_EQ(after.image.RotateZ, before.image.RotateZ);
            EXPECT_EQ(after.image.OutputAOV, before.image.OutputAOV);
        }
    }
}

TEST(WidenedAt, KeepsWhatIsUnderThePointerAndEndsAtItsEnds) {
    for (const Case& given : cases) {
        const Steered before = SteeredBy(given);
        const SourcePosition pointer = PixelAt(before, 0.35, 0.6);
        const SourcePosition place = Read(before, pointer);
        for (const double steps : {-1.0, 0.25, 2.0}) {
            Steered after = before;
            after.image = WidenedAt(before, pointer, steps);
            EXPECT_LT(Distance(Read(after, pointer), place), near) << given.name;
            EXPECT_EQ(after.image.OutputAOV<before.image.OutputAOV, steps> 0.0) << given.name;
        }
        EXPECT_EQ(WidenedAt(before, pointer, 200.0).OutputAOV, 20.0F);
        EXPECT_EQ(WidenedAt(before, pointer, -200.0).OutputAOV, 170.0F);
    }
}

TEST(RolledTo, BringsThePlaceIntoThePointersDirection) {
    for (const Case& given : cases) {
        const Steered before = SteeredBy(given);
        const SourcePosition grabbed = Read(before, PixelAt(before, 0.8, 0.55));
        Steered rolled = before;
        rolled.image.RotateZ += 11.0F;
        // Where the grabbed place went by a roll, a drag to there must roll by as much.
        const SourcePosition pointer = PixelAt(before, 0.8, 0.75);
        const SourcePosition there = Read(rolled, pointer);
        EXPECT_NEAR(RolledTo(before, pointer, there).RotateZ, rolled.image.RotateZ, 0.01)
            << given.name;
        rolled.image = RolledTo(before, pointer, grabbed);
        EXPECT_EQ(rolled.image.RotateX, before.image.RotateX);
    }
}

TEST(CentredOn, PutsThePointIntoTheMiddle) {
    for (const Case& given : cases) {
        Steered steered = SteeredBy(given);
        const auto place = PlaceUnder(steered, PixelAt(steered, 0.8, 0.2));
        steered.image = CentredOn(steered, PixelAt(steered, 0.8, 0.2));
        const auto middle =
            PlaceUnder(steered, {(steered.size.width - 1) / 2.0, (steered.size.height - 1) / 2.0});
        EXPECT_LT(Distance(*place, *middle), near) << given.name;
    }
}

TEST(Steering, GoesByWhatTheProjectionReads) {
    for (const Projection projection : AllProjections()) {
        const bool turns = projection == Projection::Rectilinear || !InfoOf(projection).basic;
        EXPECT_EQ(CanTurn(projection), turns);
        EXPECT_EQ(CanRoll(projection), turns);
        EXPECT_EQ(CanWiden(projection), turns);
    }
}

// A view all round has no end to the left or right.
TEST(Steering, GoesOnBehindTheCamera) {
    EXPECT_EQ(WithinReach(SliderId::Y, Projection::Equirectangular, 190.0), -170.0);
    EXPECT_EQ(WithinReach(SliderId::Y, Projection::Equirectangular, -180.0), -180.0);
    EXPECT_EQ(WithinReach(SliderId::Y, Projection::Rectilinear, 190.0), 180.0);
    EXPECT_EQ(WithinReach(SliderId::Y, Projection::Varnel, 190.0), 180.0);
    EXPECT_EQ(WithinReach(SliderId::AovOutput, Projection::Orthographic, 190.0), 180.0);
    Steered steered = SteeredBy(cases[0]);
    steered.image.Projection = static_cast<std::int16_t>(Projection::Equirectangular);
    steered.image.OutputAOV = 350.0F;
    EXPECT_EQ(WidenedAt(steered, {300, 200}, -1.0).OutputAOV, 360.0F);
    EXPECT_NEAR(WidenedAt(steered, {300, 200}, 1.0).OutputAOV, 350.0 / 1.05, 1e-3);
}

}  // namespace
}  // namespace varnel
