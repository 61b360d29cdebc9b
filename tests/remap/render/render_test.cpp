// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::FisheyeRecord;
using testing::IsBlack;
using testing::PixelAt;
using testing::operator==;

class RecordedProgress : public RenderProgress {
  public:
    void Begin(float maximum) override { maximum_ = maximum; }
    void Advance(float value) override { values.push_back(value); }
    void End() override { ++ends; }
    float maximum_ = -1.0F;
    std::vector<float> values;
    int ends = 0;
};

struct Scene {
    explicit Scene(PixelSize size) {
        bitmaps.FullSourceBitmap = testing::PositionPicture(size);
        bitmaps.PreviewSourceBitmap = testing::PositionPicture(size);
    }
    const Bitmap* Draw(Projection projection, const ImageRecord& record,
                       SizeKind kind = SizeKind::Large) {
        RenderContext context{bitmaps, [this] { return smooth; }};
        Render(projection, record, kind, progress, context);
        return bitmaps.ResultBitmap.get();
    }
    Bitmaps bitmaps;
    RecordedProgress progress;
    bool smooth = false;
};

TEST(Render, ProgressCountsColumnsOrRowsAndEndsOnce) {
    ImageRecord turned = FisheyeRecord();
    turned.RotateZ = 0.01F;
    ImageRecord shifted = FisheyeRecord();
    shifted.OfsetY = 100.0F;  // dY = -3
    struct {
        Projection projection;
        ImageRecord record;
        float maximum, first, last;
        std::size_t count;
    } const rows[] = {
        {Projection::Rectilinear, FisheyeRecord(), 21, 1, 21, 21},
        {Projection::Rectilinear, turned, 42, 1, 42, 42},  // the general path
        {Projection::Equidistance, FisheyeRecord(), 21, 1, 21, 21},
        {Projection::Varnel, FisheyeRecord(), 15, 0, 15, 16},
        {Projection::Varnel, shifted, 18, 0, 18, 19},
        {Projection::Horizon, FisheyeRecord(), 30, 0, 30, 31},
        {Projection::Horizon, shifted, 33, 3, 33, 31},  // lopsided: from |dY| - Hc
    };
    for (const auto& row : rows) {
        Scene scene({41, 30});
        scene.Draw(row.projection, row.record);
        EXPECT_EQ(scene.progress.maximum_, row.maximum);
        ASSERT_EQ(scene.progress.values.size(), row.count);
        EXPECT_EQ(scene.progress.values.front(), row.first);
        EXPECT_EQ(scene.progress.values.back(), row.last);
        EXPECT_TRUE(std::is_sorted(scene.progress.values.begin(), scene.progress.values.end()));
        EXPECT_EQ(scene.progress.ends, 1);
    }
}

TEST(Render, ResultKeepsSizeMetadataAndColourProfile) {
    for (const Projection projection : AllProjections()) {
        Scene scene({41, 30});
        BitmapMetadata& metadata = scene.bitmaps.FullSourceBitmap->metadata;
        metadata.comments["Comment"] = "kept";
        metadata.colourProfile = "profile";
        const Bitmap* const result = scene.Draw(projection, FisheyeRecord());
        EXPECT_EQ(SizeOf(result).width, 41);
        metadata.panorama = result->metadata.panorama;  // what it shows is its own
        EXPECT_EQ(result->metadata, metadata);
    }
}

TEST(Render, ImpossibleNumbersEndWithAnErrorAndTheBarIsTakenAway) {
    ImageRecord record = FisheyeRecord();
    record.SensorWidth = 0.0F;
    record.Ratio = 0.0F;
    for (const Projection projection : AllProjections()) {
        Scene scene({41, 30});
        EXPECT_THROW(scene.Draw(projection, record), RunTimeError) << int(projection);
        EXPECT_EQ(scene.progress.ends, scene.progress.maximum_ < 0.0F ? 0 : 1);
        EXPECT_TRUE(scene.bitmaps.ResultBitmap);  // the new one stands already
    }
    Scene wide({3142, 1000});
    EXPECT_THROW(wide.Draw(Projection::Horizon, FisheyeRecord()), DivisionByZeroError);
}

TEST(Render, PreviewsAreReadNearestUntilSmoothedAndFullSizeIsAlwaysInterpolated) {
    for (const Projection projection : AllProjections()) {
        // Interpolation makes greys of a black and white checkerboard.
        const auto board = [](int x, int y) {
            const BYTE level = (x + y) % 2 == 0 ? 255 : 0;
            return PixelColor{level, level, level, 0};
        };
        Scene scene({81, 60});
        scene.bitmaps.FullSourceBitmap = testing::Painted({81, 60}, board);
        scene.bitmaps.PreviewSourceBitmap = testing::Painted({81, 60}, board);
        const auto blends = [&](SizeKind kind) {
            const Bitmap* const result = scene.Draw(projection, FisheyeRecord(), kind);
            int between = 0;
            for (int y = 0; y < 60; ++y) {
                for (int x = 0; x < 81; ++x) {
                    const int red = PixelAt(result, x, y).red;
                    between += red != 0 && red != 255 ? 1 : 0;
                }
            }
            return between;
        };
        EXPECT_EQ(blends(SizeKind::Thumbnails), 0);
        EXPECT_GT(blends(SizeKind::Large), 0);
        EXPECT_GT(blends(SizeKind::Batch), 0);
        scene.smooth = true;
        EXPECT_GT(blends(SizeKind::Thumbnails), 0);
    }
}

TEST(RenderRectilinear, AHalfPixelShiftLeavesEverySecondColumnAsItWas) {
    // 2 % of 25 columns: the writes round to even columns, the odd ones keep the source's pixels
    // and of the two that meet on an even column the later stays.
    Scene scene({25, 20});
    ImageRecord record = FisheyeRecord();
    record.TranslateX = 2.0F;
    const Bitmap* const result = scene.Draw(Projection::Rectilinear, record);
    const Bitmap* const source = scene.bitmaps.FullSourceBitmap.get();
    for (int x = 1; x < 25; x += 2) {
        EXPECT_TRUE(PixelAt(result, x, 3) == PixelAt(source, x, 3)) << x;
    }
    // Column 12 is written from rays at -1 and, last, at -0.5 + 0 (x = 0): left of the centre.
    EXPECT_EQ(PixelAt(result, 12, 10).blue, 11);
}

TEST(RenderVarnel, CentreColumnStaysRowsBeyondTheCircleAreBlackAndTheEdgeRowIsMirrored) {
    Scene scene({100, 120});
    ImageRecord record = FisheyeRecord();
    record.Ratio = 125.0F;  // R = 40
    const Bitmap* const result = scene.Draw(Projection::Varnel, record);
    for (int y = 20; y <= 100; ++y) {
        EXPECT_EQ(PixelAt(result, 50, y).green, y);
        EXPECT_EQ(PixelAt(result, 50, y).blue, 50);
    }
    EXPECT_TRUE(IsBlack(result, 50, 101));
    EXPECT_TRUE(IsBlack(result, 10, 19));
    // Row 24 above the centre: chord 32, so output column +40 shows source column +32.
    EXPECT_NEAR(PixelAt(result, 90, 84).blue, 82, 1);
    EXPECT_NEAR(PixelAt(result, 10, 36).blue, 18, 1);
    EXPECT_EQ(PixelAt(result, 60, 100).blue, 40);  // mirrored
}

TEST(RenderHorizon, CirclesBecomeRowsAndTheLaterBlackWins) {
    Scene scene({120, 80});
    ImageRecord record = FisheyeRecord();
    record.Ratio = 200.0F;  // R = 30, row divisor 1
    const Bitmap* const result = scene.Draw(Projection::Horizon, record);
    EXPECT_TRUE(PixelAt(result, 7, 40) == PixelAt(result, 60, 40));  // row of the centre
    EXPECT_EQ(PixelAt(result, 60, 30).green, 30);                    // centre column: itself
    EXPECT_NEAR(PixelAt(result, 90, 20).blue, 80, 1);                // radius 20, to the right
    EXPECT_NEAR(PixelAt(result, 30, 20).blue, 40, 1);
    EXPECT_NEAR(PixelAt(result, 90, 60).blue, 40, 1);  // the opposite side
    for (int x = 0; x < 120; ++x) {
        EXPECT_TRUE(IsBlack(result, x, 71)) << x;  // written by radius -31 first
        EXPECT_TRUE(IsBlack(result, x, 9)) << x;
    }
}

TEST(SizeKind, TextsAndBack) {
    for (const SizeKind kind : {SizeKind::Thumbnails, SizeKind::Large, SizeKind::Batch}) {
        EXPECT_EQ(SizeKindFromText(ToText(kind)), kind);
    }
    EXPECT_EQ(SizeKindFromText(u"anything"), SizeKind::Large);
}

}  // namespace
}  // namespace varnel
