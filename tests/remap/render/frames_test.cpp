// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Results of other sizes than the photo's: the engine against the plain loops, and where they read.

#include <gtest/gtest.h>

#include "remap/analysis/inverse_mapping.h"
#include "remap/projection/projection_info.h"
#include "remap/render/reference/render.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::Compare;
using testing::FisheyeRecord;
using testing::PhotoLike;

constexpr PixelSize photo{301, 200};

struct Shape {
    const char* name;
    OutputWish wish;
};

OutputWish InSize(PixelSize size) {
    return [size](const SourceFrame& source) { return Resized(source, size); };
}

std::vector<Shape> Shapes() {
    return {{"half", InSize({150, 100})},
            {"twice", InSize({602, 400})},
            {"odd", InSize({211, 170})},
            {"wider", [](const SourceFrame& source) {
                 OutputFrame frame = SameAs(source);
                 frame.size = {400, 150};
                 frame.shift = {30.0, -12.0};
                 return frame;
             }}};
}

std::vector<ImageRecord> RecordsOf(Projection projection) {
    std::vector<ImageRecord> records(5, FisheyeRecord());
    records[1].OfsetX = 33.3F;
    records[1].OfsetY = -20.0F;
    records[2].RotateX = 20.0F;
    records[2].RotateZ = 11.0F;
    records[2].TranslateX = 3.1F;
    records[2].EffectVarnel = 40.0F;
    records[3].Lens = testing::OffCentreLensOf(records[3], photo);
    records[4].Lens = records[3].Lens;
    records[4].RotateY = -15.0F;
    records[4].OfsetX = 12.3F;
    if (projection == Projection::Horizon) {
        records[0].EffectVarnel = 250.0F;
    }
    return records;
}

BitmapHandle Drawn(decltype(&Render) renderer, Projection projection, const ImageRecord& record,
                   const OutputWish& wish) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = PhotoLike(photo);
    bitmaps.ResultBitmap = testing::Flat(photo);
    SilentProgress silent;
    RenderContext context{bitmaps};
    context.output = wish;
    renderer(projection, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

TEST(OutputFrame, TheEngineAndItsRowsAgreeWithThePlainLoopsInOtherSizes) {
    for (const Projection projection : AllProjections()) {
        for (const Shape& shape : Shapes()) {
            for (const ImageRecord& record : RecordsOf(projection)) {
                SCOPED_TRACE(ToText(projection).toStdString() + " " + shape.name);
                const BitmapHandle engine = Drawn(&Render, projection, record, shape.wish);
                const BitmapHandle loops =
                    Drawn(&reference::Render, projection, record, shape.wish);
                const PixelSize wanted = shape.wish(FramesOf(record, photo).source).size;
                ASSERT_EQ(SizeOf(engine.get()).width, wanted.width);
                ASSERT_EQ(SizeOf(engine.get()).height, wanted.height);
                const auto difference = Compare(engine.get(), loops.get());
                EXPECT_LE(difference.largest, 1);
                EXPECT_LT(difference.share, 0.002);
                const BitmapHandle source = PhotoLike(photo);
                RegionRenderer part;
                part.Start(projection, record, source.get(), shape.wish);
                part.DrawSome({0, wanted.height - 1}, std::chrono::hours(1));
                EXPECT_EQ(Compare(part.Result(), engine.get()).largest, 0);
            }
        }
    }
}

TEST(OutputFrame, OfThePhotosSizeChangesNoByte) {
    for (const Projection projection : AllProjections()) {
        for (const ImageRecord& record : RecordsOf(projection)) {
            const BitmapHandle same = Drawn(&Render, projection, record, InSize(photo));
            const BitmapHandle plain = Drawn(&Render, projection, record, {});
            EXPECT_EQ(Compare(same.get(), plain.get()).largest, 0);
        }
    }
}

TEST(OutputFrame, TwiceTheSizeReadsTheSamePlacesAtTwiceTheDistance) {
    ImageRecord record = FisheyeRecord();
    for (const Projection projection : AllProjections()) {
        SCOPED_TRACE(ToText(projection).toStdString());
        const InverseMapping once(projection, record, photo);
        const InverseMapping twice(projection, record, photo, InSize({602, 400}));
        ASSERT_EQ(twice.ResultSize().width, 602);
        ASSERT_EQ(twice.SourceSize().width, 301);
        for (const auto& [x, y] : {std::pair(40, 30), std::pair(-60, 20), std::pair(0, -50)}) {
            const auto near = once.ReadAt(150 + x, 100 + y);
            const auto far = twice.ReadAt(301 + 2 * x, 200 + 2 * y);
            ASSERT_TRUE(near && far);
            EXPECT_NEAR(near->x, far->x, 0.01);
            EXPECT_NEAR(near->y, far->y, 0.01);
        }
    }
}

TEST(OutputFrame, WhatNoLoopWritesIsBlackInAnotherSize) {
    ImageRecord record = FisheyeRecord();
    record.TranslateY = 0.25F;  // one and a half pixels: every second row stays unwritten
    const OutputWish higher = [](const SourceFrame& source) {
        OutputFrame frame = SameAs(source);
        frame.size.height = 600;
        return frame;
    };
    const BitmapHandle drawn = Drawn(&Render, Projection::Rectilinear, record, higher);
    const InverseMapping places(Projection::Rectilinear, record, photo, higher);
    int untouched = 0;
    for (int y = 0; y < 600; ++y) {
        if (places.Untouched(150, y)) {
            PixelColor colour{1, 1, 1, 0};
            GetPixelColor(drawn.get(), 150, y, colour);
            EXPECT_EQ(colour.blue + colour.green + colour.red, 0);
            ++untouched;
        }
    }
    EXPECT_GT(untouched, 100);
}

ImageRecord Cropped(ImageRecord record, const PixelSize& size = {}) {
    record.OutputWidth = size.width;
    record.OutputHeight = size.height;
    record.CropLeft = 0.1F;
    record.CropTop = 0.3F;
    record.CropWidth = 0.6F;
    record.CropHeight = 0.5F;
    return record;
}

TEST(OutputFrame, OfARecordHasTheSizeAfterTheCrop) {
    const struct {
        PixelSize size;
        bool cropped;
        PixelSize result;
        PixelSize whole;
    } cases[] = {{{0, 0}, false, photo, photo},
                 {{602, 0}, false, {602, 400}, {602, 400}},
                 {{0, 100}, false, {151, 100}, {151, 100}},
                 {{90, 200}, false, {90, 200}, {90, 200}},
                 {{0, 0}, true, {181, 100}, {302, 200}},
                 {{300, 0}, true, {300, 166}, {500, 332}},
                 {{300, 50}, true, {300, 50}, {500, 100}}};
    for (const auto& c : cases) {
        ImageRecord record = c.cropped ? Cropped(FisheyeRecord(), c.size) : FisheyeRecord();
        record.OutputWidth = c.size.width;
        record.OutputHeight = c.size.height;
        const OutputFrame frame = FramesOf(record, photo).output;
        EXPECT_EQ(frame.size.width, c.result.width);
        EXPECT_EQ(frame.size.height, c.result.height);
        EXPECT_EQ(frame.Whole().width, c.whole.width);
        EXPECT_EQ(frame.Whole().height, c.whole.height);
    }
}

TEST(OutputFrame, ACropIsWhatTheWholeFrameHasThere) {
    for (const Projection projection : AllProjections()) {
        for (const ImageRecord& record : RecordsOf(projection)) {
            for (const PixelSize& size : {PixelSize{0, 0}, PixelSize{120, 0}, PixelSize{90, 110}}) {
                SCOPED_TRACE(ToText(projection).toStdString() + std::to_string(size.width));
                const ImageRecord cropped = Cropped(record, size);
                const OutputFrame frame = FramesOf(cropped, photo).output;
                OutputFrame whole = frame;
                whole.size = frame.Whole();
                whole.corner = {};
                const BitmapHandle part = Drawn(&Render, projection, cropped, {});
                const BitmapHandle all =
                    Drawn(&Render, projection, record, [&](const SourceFrame&) { return whole; });
                const BitmapHandle loops = Drawn(&reference::Render, projection, cropped, {});
                EXPECT_LE(Compare(part.get(), loops.get()).largest, 1);
                BitmapHandle cut = testing::Flat(frame.size);
                for (int row = 0; row < frame.size.height; ++row) {
                    const auto line = ScanLine(all.get(), row + frame.corner.y);
                    std::copy_n(line.data() + 3 * frame.corner.x, 3 * frame.size.width,
                                ScanLine(cut.get(), row).data());
                }
                EXPECT_LE(Compare(part.get(), cut.get()).largest, 1);
            }
        }
    }
}

TEST(OutputFrame, OfAnotherShapeHoldsTheSpecifiedOneInItsMiddle) {
    for (const Projection projection :
         {Projection::Varnel, Projection::Equidistance, Projection::Horizon}) {
        ImageRecord record = FisheyeRecord();
        record.OfsetX = 20.0F;
        const BitmapHandle own = Drawn(&Render, projection, record, {});
        record.OutputWidth = photo.width;
        record.OutputHeight = photo.height + 60;
        const BitmapHandle higher = Drawn(&Render, projection, record, {});
        const InverseMapping places(projection, record, photo);
        for (int y = 0; y < photo.height + 60; ++y) {
            const auto line = ScanLine(higher.get(), y);
            if (y < 30 || y >= photo.height + 30) {
                EXPECT_EQ(std::ranges::count(line, 0), std::ssize(line)) << y;
                EXPECT_FALSE(places.ReadAt(100, y));
            } else {
                EXPECT_TRUE(std::ranges::equal(line, ScanLine(own.get(), y - 30))) << y;
            }
        }
    }
}

}  // namespace
}  // namespace varnel
