// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/stretch.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

using testing::Painted;
using testing::PixelAt;
using testing::operator==;

class RecordedProgress : public RenderProgress {
  public:
    void HandleEvents() override { ++waits; }
    void Begin(float maximum) override { values.push_back(maximum); }
    void Advance(float value) override { values.push_back(value); }
    void End() override { ++ends; }
    std::vector<float> values;
    int waits = 0, ends = 0;
};

struct Table {
    explicit Table(BitmapHandle source) { bitmaps.FullSourceBitmap = std::move(source); }
    const Bitmap* Stretch(const StretchCurve& curve) {
        RenderContext context{bitmaps};
        RenderStretch(curve, SizeKind::Large, progress, context);
        return bitmaps.ResultBitmap.get();
    }
    Bitmaps bitmaps;
    RecordedProgress progress;
};

// The blue of row y, in which the column stands.
std::vector<int> Blues(const Bitmap* bitmap, int y) {
    std::vector<int> blues;
    for (int x = 0; x < SizeOf(bitmap).width; ++x) {
        blues.push_back(PixelAt(bitmap, x, y).blue);
    }
    return blues;
}

TEST(StretchCurve, FollowsACosineFromItsMiddle) {
    const struct {
        double strength, middle, height, factor;
    } rows[] = {
        {0.0, 0.3, 1.0, 1.0},
        {1.0, 0.0, 0.0, 1.0},
        {0.5, 0.0, 1.0, 0.5},
        {0.5, 0.0, -1.0, 0.5},
        {-1.0, 0.0, 1.0, 2.0},
        {1.0, 0.0, 2.0 / 3.0, 0.5},         // cos 60 degrees
        {1.0, 0.0, 0.5, 0.70710678118655},  // cos 45 degrees
        {1.0, 0.5, 0.5, 1.0},
        {1.0, 0.5, 1.0, 0.70710678118655},
        {0.8, 0.5, -0.5, 0.2},
        {0.8, 0.5, -1.0, 0.2},  // further from the middle than the curve is long
    };
    for (const auto& row : rows) {
        EXPECT_NEAR((StretchCurve{row.strength, row.middle}.FactorAt(row.height)), row.factor,
                    1e-12)
            << row.strength << " " << row.middle << " " << row.height;
    }
}

TEST(StretchCurve, HeightsRunFromTheBottomRowToTheTopRow) {
    EXPECT_EQ(HeightOfRow(0, 5), -1.0);
    EXPECT_EQ(HeightOfRow(3, 5), 0.5);
    EXPECT_EQ(HeightOfRow(4, 5), 1.0);
    EXPECT_EQ(HeightOfRow(0, 2), -1.0);
    EXPECT_EQ(HeightOfRow(0, 1), 0.0);
}

TEST(RenderStretch, WithoutStrengthEveryByteStays) {
    for (const PixelSize size : {PixelSize{7, 5}, {8, 6}, {1, 1}}) {
        Table table(testing::PositionPicture(size));
        const Bitmap* const result = table.Stretch({0.0, 0.4});
        EXPECT_TRUE(testing::SamePixels(result, table.bitmaps.FullSourceBitmap.get()));
    }
}

TEST(RenderStretch, RowsReadTheColumnsThatTheFactorSays) {
    Table table(Painted({5, 3}, [](int x, int y) {
        return PixelColor{static_cast<BYTE>(10 + 20 * x), static_cast<BYTE>(y), 7, 0};
    }));
    const Bitmap* result = table.Stretch({0.5, 0.0});  // factor 0.5 at bottom and top
    EXPECT_EQ(Blues(result, 2), (std::vector{30, 40, 50, 60, 70}));
    EXPECT_EQ(Blues(result, 1), (std::vector{10, 30, 50, 70, 90}));
    EXPECT_EQ(Blues(result, 0), (std::vector{30, 40, 50, 60, 70}));
    EXPECT_EQ(PixelAt(result, 1, 2).green, 2);

    result = table.Stretch({-1.0, 0.0});  // factor 2: columns -2, 0, 2, 4, 6
    EXPECT_EQ(Blues(result, 2), (std::vector{0, 10, 50, 90, 0}));
    EXPECT_TRUE(testing::IsBlack(result, 4, 0));

    result = table.Stretch({-0.25, 0.0});  // factor 1.25: -0.5, 0.75, 2, 3.25, 4.5
    EXPECT_EQ(Blues(result, 0), (std::vector{5, 25, 50, 75, 45}));

    result = table.Stretch({1.0, -1.0});  // the bottom row is the middle one
    EXPECT_EQ(Blues(result, 0), (std::vector{10, 30, 50, 70, 90}));
    EXPECT_EQ(Blues(result, 2), (std::vector{50, 50, 50, 50, 50}));
}

TEST(RenderStretch, MirroringThePictureMirrorsTheResult) {
    const auto mirrored = [](bool mirrorX, bool mirrorY) {
        return Painted({10, 8}, [=](int x, int y) {
            const int column = mirrorX ? 9 - x : x;
            const int row = mirrorY ? 7 - y : y;
            return PixelColor{static_cast<BYTE>(column * column * 3), static_cast<BYTE>(row * 31),
                              7, 0};
        });
    };
    Table plain(mirrored(false, false)), sideways(mirrored(true, false)),
        over(mirrored(false, true));
    const Bitmap* const result = plain.Stretch({0.6, 0.25});
    const Bitmap* const resultSideways = sideways.Stretch({0.6, 0.25});
    const Bitmap* const resultOver = over.Stretch({0.6, -0.25});
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 10; ++x) {
            // Blends round down: which neighbour has which weight may cost one step.
            EXPECT_NEAR(PixelAt(result, x, y).blue, PixelAt(resultSideways, 9 - x, y).blue, 1);
            EXPECT_EQ(PixelAt(result, x, y).blue, PixelAt(resultOver, x, 7 - y).blue);
        }
    }
}

TEST(RenderStretch, KeepsMetadataAndColourProfileAndTellsEveryRow) {
    Table table(testing::PositionPicture({4, 3}));
    BitmapMetadata& metadata = table.bitmaps.FullSourceBitmap->metadata;
    metadata.colourProfile = "a colour profile";
    metadata.comments["Comment"] = "a street";
    const Bitmap* const result = table.Stretch({0.5, 0.0});
    EXPECT_EQ(result->metadata, metadata);
    EXPECT_EQ(table.progress.values, (std::vector{3.0F, 0.0F, 1.0F, 2.0F}));
    EXPECT_EQ(table.progress.waits, 1);
    EXPECT_EQ(table.progress.ends, 1);
}

}  // namespace
}  // namespace varnel
