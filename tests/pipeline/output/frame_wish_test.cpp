// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/frame_wish.h"

#include <gtest/gtest.h>

#include "remap/analysis/clean_crop.h"
#include "remap/projection/record_maps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize photo{600, 400};

ImageRecord Straight(float angle = 110.0F) {
    ImageRecord record = testing::FisheyeRecord();
    record.Projection = 1;
    record.Width = photo.width;
    record.Height = photo.height;
    record.OutputAOV = angle;
    return record;
}

struct Given {
    FrameOutcome outcome;
    std::vector<ImageRecord> records;
    PixelSize Result() const { return ResultSizeOf(records.front(), photo); }
};

Given GivenTo(const FrameWish& wish, std::vector<ImageRecord> records = {Straight()}) {
    SerialRunner runner;
    FrameOutcome outcome = GiveFrame(wish, records, runner);
    return {outcome, records};
}

TEST(GiveFrame, MakesSizesOfWidthsShapesAndCrops) {
    const CropParts half{0.25, 0.0, 0.5, 1.0};
    const struct {
        FrameWish wish;
        PixelSize result;
        PixelSize frame;
    } cases[] = {{{}, {600, 400}, {600, 400}},
                 {{.size = {300, 0}}, {300, 200}, {300, 200}},
                 {{.size = {300, 100}}, {300, 100}, {300, 100}},
                 {{.aspect = 2.0}, {600, 300}, {600, 300}},
                 {{.size = {1000, 0}, .aspect = 2.0}, {1000, 500}, {1000, 500}},
                 {{.crop = half}, {300, 400}, {600, 400}},
                 {{.size = {600, 0}, .crop = half}, {600, 800}, {1200, 800}},
                 {{.aspect = 1.0, .crop = half}, {300, 600}, {600, 600}}};
    for (const auto& c : cases) {
        const Given given = GivenTo(c.wish);
        EXPECT_TRUE(given.outcome.error.isEmpty() && given.outcome.note.isEmpty());
        EXPECT_EQ(given.Result().width, c.result.width);
        EXPECT_EQ(given.Result().height, c.result.height);
        const PixelSize whole = FramesOf(given.records.front(), photo).output.Whole();
        EXPECT_EQ(whole.width, c.frame.width);
        EXPECT_EQ(whole.height, c.frame.height);
    }
}

TEST(GiveFrame, KeepsThePhotosResolutionInTheCentre) {
    for (const float angle : {60.0F, 110.0F, 150.0F}) {
        const Given given = GivenTo({.centre = true}, {Straight(angle)});
        EXPECT_NEAR(PhotoPixelsInCentre(given.records.front(), given.Result()), 1.0, 0.01) << angle;
    }
}

TEST(GiveFrame, CutsACentreThatIsTooLargeAndRefusesSizesThatAre) {
    const Given given = GivenTo({.centre = true}, {Straight(179.5F)});
    EXPECT_TRUE(given.outcome.error.isEmpty());
    EXPECT_TRUE(given.outcome.note.Is(ReasonCode::CentreReduced));
    EXPECT_LE(std::max(given.Result().width, given.Result().height), 32767);
    EXPECT_TRUE(
        GivenTo({.size = {32767, 0}, .aspect = 0.5}).outcome.error.Is(ReasonCode::SideTooLong));
}

TEST(GiveFrame, ACleanPartComesOutInTheSizeWantedAndHoldsNothingFromOutside) {
    const FrameWish wishes[] = {{.clean = CleanPart()},
                                {.clean = CleanPart{1.0}},
                                {.size = {500, 0}, .clean = CleanPart()},
                                {.size = {700, 300}, .clean = CleanPart()},
                                {.size = {640, 0}, .clean = CleanPart{16.0 / 9.0}},
                                {.centre = true, .clean = CleanPart()},
                                {.aspect = 2.0, .clean = CleanPart()}};
    for (const FrameWish& wish : wishes) {
        for (const float turn : {0.0F, 40.0F}) {
            ImageRecord record = Straight();
            record.Ratio = 160.0F;
            record.RotateY = turn;
            const Given given = GivenTo(wish, {record});
            ASSERT_TRUE(given.outcome.error.isEmpty());
            const PixelSize result = given.Result();
            EXPECT_TRUE(wish.size.width == 0 || result.width == wish.size.width);
            EXPECT_TRUE(wish.size.height == 0 || result.height == wish.size.height);
            if (wish.clean->shape) {
                EXPECT_NEAR(result.width / *wish.clean->shape, result.height, 2.0);
            }
            // The frame's own cut is clean, and so is all of it.
            const OutputFrame frame = FramesOf(given.records.front(), photo).output;
            SerialRunner runner;
            const double shape = static_cast<double>(result.width) / result.height;
            const CleanCrop crop =
                ExactCleanCrop({given.records, photo, frame.Whole(),
                                wish.size.height > 0 ? std::optional(shape) : wish.clean->shape},
                               runner);
            EXPECT_GE(crop.width * crop.height, result.width * result.height);
            EXPECT_LE(crop.width * crop.height, 1.1 * result.width * result.height);
        }
    }
}

TEST(GiveFrame, SaysWhereNothingIsClean) {
    ImageRecord record = Straight();
    record.Ratio = 1000.0F;
    record.OfsetX = 900.0F;
    EXPECT_TRUE(
        GivenTo({.clean = CleanPart()}, {record}).outcome.error.Is(ReasonCode::NoCleanCrop));
}

TEST(FrameError, IsACropBeyondTheFrame) {
    ImageRecord record = Straight();
    record.CropLeft = 0.4F;
    record.CropWidth = 0.6F;
    EXPECT_TRUE(FrameError(record).isEmpty());
    record.CropWidth = 0.7F;
    EXPECT_TRUE(FrameError(record).Is(ReasonCode::CropBeyondFrame));
}

}  // namespace
}  // namespace varnel
