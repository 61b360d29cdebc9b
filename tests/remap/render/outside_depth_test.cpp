// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What stands outside deep results, and marks on them: as on those of 8 bits, only finer.

#include <gtest/gtest.h>

#include "remap/image/levels/byte_coding.h"
#include "remap/render/outside.h"
#include "remap/render/region_renderer.h"
#include "remap/render/render.h"
#include "tests/remap/render/deep_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize size{300, 200};

// The circle's border on the result, and the photo's.
ImageRecord Bordered(OutsideFill fill) {
    ImageRecord record = testing::FisheyeRecord();
    record.OutputAOV = 340.0F;
    record.RotateY = 40.0F;
    record.Outside = fill;
    return record;
}

BitmapHandle Drawn(const ImageRecord& record, Projection projection, BitmapHandle photo,
                   bool keepsTransparency) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::move(photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .keepsTransparency = keepsTransparency};
    Render(projection, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

// The bytes of a photo in another format, linear light where that is what it has.
BitmapHandle InFormat(const Bitmap& bytes, PixelFormat format) {
    BitmapHandle photo = NewBitmap(bytes.Size(), format);
    const ByteCoding coding(*photo);
    for (int y = 0; y < bytes.Size().height; ++y) {
        for (int x = 0; x < bytes.Size().width; ++x) {
            SetLevels(photo.get(), x, y, coding.LevelsOf(testing::PixelAt(&bytes, x, y)));
        }
    }
    return photo;
}

// The largest difference in bytes, alpha with it where both have it.
int Apart(const Bitmap& a, const Bitmap& b) {
    const ByteCoding codingA(a);
    const ByteCoding codingB(b);
    double largest = 0.0;
    for (int y = 0; y < a.Size().height; ++y) {
        for (int x = 0; x < a.Size().width; ++x) {
            const PixelColor one =
                codingA.ColourAt(a.ScanLine(y).data() + x * PixelStep(a.Format()));
            const PixelColor other =
                codingB.ColourAt(b.ScanLine(y).data() + x * PixelStep(b.Format()));
            const double alphaA = HasAlpha(a.Format()) ? GetLevels(&a, x, y).alpha : 1.0;
            const double alphaB = HasAlpha(b.Format()) ? GetLevels(&b, x, y).alpha : 1.0;
            largest = std::max({largest, std::fabs(alphaA * one.green - alphaB * other.green),
                                std::fabs(alphaA * one.red - alphaB * other.red),
                                255.0 * std::fabs(alphaA - alphaB)});
        }
    }
    return static_cast<int>(std::lround(largest));
}

constexpr OutsideFill grey{OutsideFill::Kind::Colour, 90, 150, 200};
constexpr OutsideFill transparent{OutsideFill::Kind::Transparent, 0, 0, 0};

TEST(OutsideDepth, IsFilledAsOfBytes) {
    const BitmapHandle photo = testing::PhotoLike(size);
    for (const Projection projection : {Projection::Equirectangular, Projection::Varnel}) {
        for (const OutsideFill& fill : {grey, transparent}) {
            const ImageRecord record = Bordered(fill);
            for (const bool keeps : {false, true}) {
                const BitmapHandle bytes =
                    Drawn(record, projection, CloneBitmap(photo.get()), keeps);
                for (const PixelFormat format :
                     {PixelFormat::Bgr16, PixelFormat::Bgra16, PixelFormat::Bgra8}) {
                    const BitmapHandle deep =
                        Drawn(record, projection, InFormat(*photo, format), keeps);
                    EXPECT_LE(Apart(*deep, *bytes), 2) << static_cast<int>(format);
                }
            }
        }
    }
}

// A border that is mixed in linear light is another one, but the fill is the same colour.
TEST(OutsideDepth, TheFillIsSeenAsTheSameColourInLinearLight) {
    const BitmapHandle drawn =
        Drawn(Bordered(grey), Projection::Equirectangular,
              InFormat(*testing::PhotoLike(size), PixelFormat::BgrFloat), true);
    const PixelColor behind = ByteCoding(*drawn).ColourAt(drawn->ScanLine(100).data());
    EXPECT_EQ(behind.red, grey.red);
    EXPECT_EQ(behind.green, grey.green);
    EXPECT_EQ(behind.blue, grey.blue);
}

// More shades of alpha along the border than bytes have.
TEST(OutsideDepth, TransparencyHas16Bits) {
    const BitmapHandle drawn = Drawn(Bordered(transparent), Projection::Equirectangular,
                                     InFormat(*testing::PhotoLike(size), PixelFormat::Bgr16), true);
    ASSERT_EQ(drawn->Format(), PixelFormat::Bgra16);
    int between = 0;
    for (int n = 0; n < size.width * size.height; ++n) {
        const auto alpha =
            SampleAt<std::uint16_t>(drawn->ScanLine(n / size.width).data() + n % size.width * 8, 3);
        between += alpha % 257 != 0 ? 1 : 0;
    }
    EXPECT_GT(between, 100);
}

TEST(OutsideDepth, WhatIsTransparentOnThePhotoStaysSo) {
    BitmapHandle photo = NewBitmap(size, PixelFormat::Bgra16);
    for (int n = 0; n < size.width * size.height; ++n) {
        SetLevels(photo.get(), n % size.width, n / size.width, {1000.0, 2000.0, 3000.0, 0.25});
    }
    for (const OutsideFill& fill : {OutsideFill{}, grey, transparent}) {
        ImageRecord record = Bordered(fill);
        record.RotateY = 0.0F;
        const BitmapHandle drawn =
            Drawn(record, Projection::Equirectangular, CloneBitmap(photo.get()), true);
        EXPECT_NEAR(GetLevels(drawn.get(), 150, 100).alpha, 0.25, 1e-4);
        EXPECT_NEAR(GetLevels(drawn.get(), 150, 100).red, 3000.0, 1.0);
        const bool filled = fill.kind == OutsideFill::Kind::Colour;
        EXPECT_EQ(GetLevels(drawn.get(), 0, 100).alpha, filled ? 1.0 : 0.0);
    }
}

TEST(OutsideDepth, RowsInSightAreThoseOfTheWholePicture) {
    const BitmapHandle photo = testing::Deepened(*testing::PhotoLike(size), PixelFormat::Bgr16);
    const ImageRecord record = Bordered(grey);
    const BitmapHandle whole =
        Drawn(record, Projection::Equirectangular, CloneBitmap(photo.get()), false);
    RegionRenderer part;
    part.Start(Projection::Equirectangular, record, photo.get());
    part.DrawSome({90, 95}, std::chrono::hours(1));
    part.DrawSome({0, 199}, std::chrono::hours(1));
    EXPECT_TRUE(testing::SamePixels(part.Result(), whole.get()));
}

TEST(OutsideDepth, MarksAreThoseOfBytes) {
    ImageRecord record = testing::FisheyeRecord();
    record.OutputAOV = 360.0F;
    record.Marks = true;
    const BitmapHandle photo = testing::PhotoLike(size);
    const BitmapHandle bytes = Drawn(record, Projection::Unrolled, CloneBitmap(photo.get()), false);
    const BitmapHandle deep =
        Drawn(record, Projection::Unrolled, InFormat(*photo, PixelFormat::Bgr16), false);
    EXPECT_LE(Apart(*deep, *bytes), 1);
}

}  // namespace
}  // namespace varnel
