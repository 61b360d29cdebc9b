// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The clean crop and what is filled outside the photo, against pictures of white photos that the
// plain loops draw.

#include "remap/analysis/clean_crop.h"

#include <gtest/gtest.h>

#include <random>

#include "remap/projection/projection_info.h"
#include "remap/render/outside.h"
#include "remap/render/reference/render.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize photo{90, 60};

struct Random {
    std::mt19937 bits{20};
    int Whole(int least, int most) { return std::uniform_int_distribution(least, most)(bits); }
    float Number(double least, double most) {
        return static_cast<float>(std::uniform_real_distribution(least, most)(bits));
    }
};

ImageRecord RandomRecord(Random& random) {
    ImageRecord record = testing::FisheyeRecord();
    record.Width = photo.width;
    record.Height = photo.height;
    record.Projection =
        static_cast<std::int16_t>(random.Whole(0, static_cast<int>(AllProjections().size()) - 1));
    record.Ratio = random.Number(70.0, 190.0);
    record.OfsetX = random.Number(-60.0, 60.0);
    record.OfsetY = random.Number(-60.0, 60.0);
    record.InputAOV = random.Number(60.0, 200.0);
    record.OutputAOV = random.Number(30.0, 170.0);
    record.EffectVarnel = random.Number(50.0, 150.0);
    record.EffectRectilinear = random.Number(60.0, 100.0);
    if (random.Whole(0, 2) > 0) {
        record.RotateX = random.Number(-60.0, 60.0);
        record.RotateY = random.Number(-60.0, 60.0);
        record.RotateZ = random.Number(-180.0, 180.0);
        record.TranslateX = random.Number(-20.0, 20.0);
    }
    return record;
}

BitmapHandle Drawn(decltype(&Render) renderer, const ImageRecord& record, BitmapHandle source,
                   const OutputWish& wish = {}, bool keepsTransparency = false) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::move(source);
    SilentProgress silent;
    RenderContext context{bitmaps};
    context.output = wish;
    context.keepsTransparency = keepsTransparency;
    renderer(ProjectionFromIndex(record.Projection), record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

BitmapHandle WhiteInCircle(const ImageRecord& record) {
    const auto circle = PhotoCircleOf(record, photo);
    return testing::Painted(photo, [&](int x, int y) {
        const bool isIn =
            !circle || circle->Holds({static_cast<double>(x), static_cast<double>(y)});
        return isIn ? PixelColor{255, 255, 255, 0} : black;
    });
}

// By the plain loops: how much of the photo each pixel shows.
BitmapHandle Mask(ImageRecord record, const OutputWish& wish = {}) {
    record.Outside = {};
    return Drawn(&reference::Render, record, WhiteInCircle(record), wish);
}

bool IsClean(const Bitmap* mask, int x, int y) {
    return IsInside(ScanLine(mask, y)[static_cast<std::size_t>(3 * x)]);
}

// The most pixels of a rectangle without outside, all of them tried.
int BruteForce(const Bitmap* mask, std::optional<double> shape) {
    const PixelSize size = SizeOf(mask);
    int most = 0;
    for (int bottom = 0; bottom < size.height; ++bottom) {
        std::vector<bool> clean(static_cast<std::size_t>(size.width), true);
        for (int top = bottom; top < size.height; ++top) {
            int run = 0;
            for (int x = 0; x < size.width; ++x) {
                const auto n = static_cast<std::size_t>(x);
                clean[n] = clean[n] && IsClean(mask, x, top);
                run = clean[n] ? run + 1 : 0;
                int width = run;
                int height = top - bottom + 1;
                if (shape) {
                    width = std::min(run, static_cast<int>(height * *shape));
                    height = std::min(height, static_cast<int>(run / *shape));
                }
                most = std::max(most, width * height);
            }
        }
    }
    return most;
}

TEST(ExactCleanCrop, HoldsNothingFromOutsideAndIsTheLargest) {
    Random random;
    SerialRunner runner;
    int found = 0;
    for (int n = 0; n < 1000; ++n) {
        const ImageRecord record = RandomRecord(random);
        const PixelSize frame{random.Whole(20, 90), random.Whole(20, 70)};
        const auto shape =
            n % 3 == 0 ? std::optional(static_cast<double>(random.Number(0.4, 2.5))) : std::nullopt;
        const OutputWish wish = [frame](const SourceFrame& source) {
            return OutputFrameOf({}, source, frame);
        };
        SCOPED_TRACE(std::to_string(n) + " " +
                     ToText(ProjectionFromIndex(record.Projection)).toStdString());
        const CleanCrop crop = ExactCleanCrop({{&record, 1}, photo, frame, shape}, runner);
        const BitmapHandle mask = Mask(record, wish);
        int outside = 0;
        for (int y = crop.bottom; y < crop.bottom + crop.height; ++y) {
            for (int x = crop.left; x < crop.left + crop.width; ++x) {
                outside += IsClean(mask.get(), x, y) ? 0 : 1;
            }
        }
        ASSERT_EQ(outside, 0);
        found += crop.width > 0 ? 1 : 0;
        if (n % 5 == 0) {
            ASSERT_GE(crop.width * crop.height, 0.98 * BruteForce(mask.get(), shape));
        }
    }
    EXPECT_GT(found, 900);
}

TEST(ExactCleanCrop, OfSeveralIsCleanInAll) {
    SerialRunner runner;
    std::vector<ImageRecord> records(2, testing::FisheyeRecord());
    for (ImageRecord& record : records) {
        record.Projection = 1;
        record.OutputAOV = 120.0F;
        record.Ratio = 180.0F;
    }
    records[0].RotateY = -55.0F;
    records[1].RotateY = 55.0F;
    const auto pixels = [&](std::span<const ImageRecord> some) {
        const CleanCrop crop = ExactCleanCrop({some, photo, photo}, runner);
        return crop.width * crop.height;
    };
    const std::span<const ImageRecord> all = records;
    EXPECT_LT(pixels(all), std::min(pixels(all.first(1)), pixels(all.last(1))));
}

TEST(FillOutside, BlendsByWhatThePlainLoopsShowOfThePhoto) {
    Random random;
    for (int n = 0; n < 60; ++n) {
        ImageRecord record = RandomRecord(random);
        record.OutputWidth = 120;
        const BitmapHandle plain = Drawn(&Render, record, testing::PhotoLike(photo));
        const BitmapHandle mask = Mask(record);
        record.Outside = {OutsideFill::Kind::Colour, 10, 200, 90};
        const BitmapHandle filled = Drawn(&Render, record, testing::PhotoLike(photo));
        record.Outside = {OutsideFill::Kind::Transparent};
        const BitmapHandle alpha = Drawn(&Render, record, testing::PhotoLike(photo), {}, true);
        ASSERT_EQ(alpha->Format(), PixelFormat::Bgra8);
        ASSERT_EQ(filled->Format(), PixelFormat::Bgr8);
        for (int y = 0; y < SizeOf(mask.get()).height; ++y) {
            for (std::size_t x = 0; x < 120; ++x) {
                const int shown = ScanLine(mask.get(), y)[3 * x];
                const auto own = ScanLine(plain.get(), y).subspan(3 * x, 3);
                const auto blend = ScanLine(filled.get(), y).subspan(3 * x, 3);
                const auto four = ScanLine(alpha.get(), y).subspan(4 * x, 4);
                ASSERT_NEAR(four[3], shown >= 254 ? 255 : shown, 2);
                if (shown == 255) {
                    ASSERT_TRUE(std::ranges::equal(blend, own));
                    ASSERT_TRUE(std::ranges::equal(four.first(3), own));
                } else if (shown == 0 && four[3] == 0) {
                    ASSERT_EQ(blend[0] * 65536 + blend[1] * 256 + blend[2],
                              90 * 65536 + 200 * 256 + 10);
                    ASSERT_EQ(four[0] + four[1] + four[2], 0);
                } else {
                    ASSERT_NEAR(blend[1], (four[1] * four[3] + 200 * (255 - four[3])) / 255.0, 1.5);
                }
            }
        }
        RegionRenderer part;
        record.Outside.kind = OutsideFill::Kind::Colour;
        const BitmapHandle source = testing::PhotoLike(photo);
        part.Start(ProjectionFromIndex(record.Projection), record, source.get());
        part.DrawSome({0, 999}, std::chrono::hours(1));
        const BitmapHandle whole = Drawn(&Render, record, testing::PhotoLike(photo));
        EXPECT_LE(testing::Compare(part.Result(), whole.get()).largest, 1);
    }
}

}  // namespace
}  // namespace varnel
