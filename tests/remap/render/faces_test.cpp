// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Faces in the straight view: the engine, the plain loops and single rows draw the same.

#include <gtest/gtest.h>

#include "remap/render/reference/render.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

ImageRecord WithFaces(float pan) {
    ImageRecord record = testing::FisheyeRecord();
    record.OutputAOV = 110.0F;
    record.RotateY = pan;
    record.TranslateX = pan == 0.0F ? 0.0F : 1.5F;
    record.Faces = {
        {0.85, 0.4, 0.12, 0.3, 10.0}, {0.1, 0.8, 0.2, 0.3, 0.0}, {0.3, 0.3, 0.03, 0.03}};
    return record;
}

template <class Renderer>
BitmapHandle Drawn(Renderer render, const ImageRecord& record, PixelSize size, PixelSize result) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = testing::PhotoLike(size);
    SilentProgress silent;
    RenderContext context{bitmaps};
    context.output = [result](const SourceFrame& photo) { return Resized(photo, result); };
    render(Projection::Rectilinear, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

TEST(Faces, EngineReferenceAndRowsDrawTheSame) {
    constexpr PixelSize photo{1500, 1000};
    for (const float pan : {0.0F, 14.0F}) {
        for (const PixelSize size : {photo, PixelSize{2100, 1400}, PixelSize{300, 200}}) {
            const ImageRecord record = WithFaces(pan);
            const BitmapHandle engine = Drawn(&Render, record, photo, size);
            const auto difference = testing::Compare(
                engine.get(), Drawn(&reference::Render, record, photo, size).get());
            EXPECT_LE(difference.largest, 1) << size.width << " " << pan;
            EXPECT_LT(difference.share, 0.01);
            RegionRenderer rows;
            const BitmapHandle source = testing::PhotoLike(photo);
            rows.Start(Projection::Rectilinear, record, source.get(),
                       [size](const SourceFrame& frame) { return Resized(frame, size); });
            rows.DrawSome({0, size.height - 1}, std::chrono::hours(1));
            EXPECT_EQ(testing::Compare(rows.Result(), engine.get()).largest, 0);
        }
    }
}

TEST(Faces, MoveNothingButTheirPlaces) {
    constexpr PixelSize photo{300, 200};
    ImageRecord plain = testing::FisheyeRecord();
    plain.OutputAOV = 110.0F;
    ImageRecord soft = plain;
    soft.Faces = {{0.8, 0.5, 0.1, 0.2, 0.0}};
    const BitmapHandle before = Drawn(&Render, plain, photo, photo);
    const BitmapHandle after = Drawn(&Render, soft, photo, photo);
    int inside = 0;
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x) {
            const int apart = std::abs(testing::PixelAt(before.get(), x, y).green -
                                       testing::PixelAt(after.get(), x, y).green);
            const double level = std::hypot((x - 239.5) / 15.0, (y - 99.5) / 20.0);
            inside += level < 2.2 && apart > 5 ? 1 : 0;
            EXPECT_TRUE(level < 2.2 || apart <= 1) << x << " " << y;
        }
    }
    EXPECT_GT(inside, 200);
}

}  // namespace
}  // namespace varnel
