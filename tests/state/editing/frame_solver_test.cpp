// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Handles are dragged to where another setting has them; the values of that setting must come back.

#include "state/editing/frame_solver.h"

#include <gtest/gtest.h>

#include "remap/projection/projection_info.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize photo{600, 400};

ImageRecord RecordFor(Projection projection) {
    ImageRecord record = testing::FisheyeRecord();
    record.Projection = static_cast<std::int16_t>(projection);
    record.Ratio = 90.0F;
    record.InputAOV = 110.0F;
    return record;
}

SourcePosition PlaceWith(const ImageRecord& record, const ControlValues& controls,
                         const FramePoint& point) {
    ImageRecord changed = record;
    StoreControls(controls, changed);
    return *PlaceOf(point,
                    InverseMapping(ProjectionFromIndex(controls.projection), changed, photo));
}

struct WidthCase {
    Projection projection;
    SliderId slider;
    int value;
    FramePoint handle;
};

TEST(WidthNearest, GivesTheValueThatPutsTheHandleThere) {
    for (const WidthCase& given :
         {WidthCase{Projection::Rectilinear, SliderId::AovOutput, 123, {0.0, 0.5}},
          WidthCase{Projection::Rectilinear, SliderId::AovOutput, 64, {1.0, 1.0}},
          WidthCase{Projection::Varnel, SliderId::Effect, 71, {1.0, 0.75}},
          WidthCase{Projection::Equidistance, SliderId::AovInput, 95, {0.5, 0.0}}}) {
        const ImageRecord record = RecordFor(given.projection);
        const FrameSetting setting{record, ValuesFor(record), photo};
        EXPECT_EQ(FrameSlider(given.projection), given.slider);
        ControlValues wanted = setting.controls;
        SetValueOf(given.slider, given.value, wanted);
        const SourcePosition place = PlaceWith(record, wanted, given.handle);
        EXPECT_EQ(WidthNearest(setting, given.handle, place), given.value);
    }
}

TEST(WidthNearest, StaysWithinTheReach) {
    const ImageRecord record = RecordFor(Projection::Rectilinear);
    const FrameSetting setting{record, ValuesFor(record), photo};
    EXPECT_EQ(WidthNearest(setting, {0.0, 0.5}, {300.0, 200.0}), 20);
    EXPECT_FALSE(FrameSlider(Projection::Horizon));
}

TEST(TurnedNearest, FindsTurnsAlsoBeyondTheSliders) {
    ImageRecord record = RecordFor(Projection::Rectilinear);
    record.RotateZ = 25.0F;
    const FrameSetting setting{record, ValuesFor(record), photo};
    for (const auto& [down, right] : {std::pair{-17, 29}, {40, -3}, {-10, 55}, {0, 0}}) {
        ControlValues wanted = setting.controls;
        wanted.rotateX = down;
        wanted.rotateY = right;
        EXPECT_EQ(TurnedNearest(setting, PlaceWith(record, wanted, {})), wanted)
            << down << ", " << right;
    }
    // The other projections cannot turn.
    const ImageRecord flat = RecordFor(Projection::Varnel);
    EXPECT_EQ(TurnedNearest({flat, ValuesFor(flat), photo}, {10.0, 10.0}), ValuesFor(flat));
}

}  // namespace
}  // namespace varnel
