// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/marks.h"

#include <gtest/gtest.h>

#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize size{1440, 360};

ImageRecord Marked() {
    ImageRecord record = testing::FisheyeRecord();
    record.OutputAOV = 360.0F;
    record.UnrollStart = -45.0F;
    record.Marks = true;
    return record;
}

Marks MarksOf(const ImageRecord& record) {
    return {Projection::Unrolled, record, OutputFrame{size}};
}

// Whether a stroke runs straight up from the lower border at that column.
bool HasTickAt(const Marks& marks, double column) {
    return std::ranges::any_of(marks.Strokes(), [column](const Stroke& stroke) {
        return stroke.fromY == -0.5 && std::fabs(stroke.fromX - (column - 0.5)) < 0.01 &&
               stroke.toX == stroke.fromX;
    });
}

TEST(Marks, StandWhereTheAzimuthsAndAnglesAre) {
    const Marks marks = MarksOf(Marked());
    for (const double column : {180.0, 540.0, 900.0, 1260.0}) {
        EXPECT_TRUE(HasTickAt(marks, column)) << column;
    }
    const auto hasLineAt = [&marks](double row) {
        return std::ranges::any_of(marks.Strokes(), [row](const Stroke& stroke) {
            return stroke.fromX == -0.5 && std::fabs(stroke.fromY - (row - 0.5)) < 0.01;
        });
    };
    EXPECT_TRUE(hasLineAt(120.0));  // 30 of 90 degrees
    EXPECT_TRUE(hasLineAt(240.0));
    EXPECT_FALSE(hasLineAt(150.0));
    ImageRecord narrow = Marked();
    narrow.OutputAOV = 100.0F;  // from -45 to 55 degrees: north alone
    EXPECT_TRUE(HasTickAt(MarksOf(narrow), 648.0));
    EXPECT_FALSE(HasTickAt(MarksOf(narrow), 540.0));
}

TEST(Marks, AreNoneWhereTheyAreNotWishedForAndOnOtherProjections) {
    ImageRecord record = Marked();
    EXPECT_TRUE(Marks(Projection::Equirectangular, record, OutputFrame{size}).Empty());
    record.UnrollTo = record.UnrollFrom;
    EXPECT_TRUE(MarksOf(record).Empty());
    record = Marked();
    record.Marks = false;
    EXPECT_TRUE(MarksOf(record).Empty());
}

TEST(Marks, AreDrawnSoftlyIntoResultsAndSingleRows) {
    const OutputWish wish = [](const SourceFrame&) { return OutputFrame{size, {}, 4.8}; };
    const auto drawn = [&wish](bool marks) {
        ImageRecord record = Marked();
        record.Marks = marks;
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = testing::Flat({300, 200});
        SilentProgress silent;
        RenderContext context{bitmaps};
        context.output = wish;
        Render(Projection::Unrolled, record, SizeKind::Large, silent, context);
        return std::move(bitmaps.ResultBitmap);
    };
    const BitmapHandle plain = drawn(false);
    const BitmapHandle marked = drawn(true);
    int white = 0;
    int between = 0;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const int level = testing::PixelAt(marked.get(), x, y).green;
            white += level > 240 ? 1 : 0;
            between += level != testing::PixelAt(plain.get(), x, y).green && level < 240 ? 1 : 0;
        }
    }
    EXPECT_GT(white, 500);
    EXPECT_GT(between, 500);
    EXPECT_LT(white + between, size.width * size.height / 20);
    const BitmapHandle source = testing::Flat({300, 200});
    RegionRenderer rows;
    rows.Start(Projection::Unrolled, Marked(), source.get(), wish);
    rows.DrawSome({0, size.height - 1}, std::chrono::hours(1));
    EXPECT_EQ(testing::Compare(rows.Result(), marked.get()).largest, 0);
}

}  // namespace
}  // namespace varnel
