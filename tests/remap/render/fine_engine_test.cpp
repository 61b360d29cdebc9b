// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fine engine beside its plain loops, and that nothing but the picture decides about its bytes.

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include <algorithm>
#include <cmath>

#include "base/thread_runner.h"
#include "remap/render/reference/fine.h"
#include "remap/render/region_renderer.h"
#include "remap/render/render.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

struct Case {
    std::string name;
    Projection projection = Projection::Rectilinear;
    PixelSize size{151, 100};
    std::function<void(ImageRecord&)> change = [](ImageRecord&) {};
    double times = 1.0;  // so many pixels of the result for each of the photo, along a side
};

ImageRecord RecordOf(const Case& c) {
    ImageRecord record = testing::FisheyeRecord();
    record.Sampling = SamplingKind::Fine;
    record.Landscape = c.size.width >= c.size.height;
    c.change(record);
    return record;
}

OutputWish WishOf(const Case& c) {
    if (c.times == 1.0) {
        return {};
    }
    return [&c](const SourceFrame& photo) {
        const auto side = [&c](std::int32_t n) {
            return static_cast<std::int32_t>(std::lround(n * c.times));
        };
        return OutputFrameOf(RecordOf(c), photo, {side(photo.size.width), side(photo.size.height)});
    };
}

// With samples of that kind, of a picture of bytes.
BitmapHandle InFormat(const Bitmap& bytes, PixelFormat format) {
    BitmapHandle bitmap = NewBitmap(bytes.Size(), format);
    for (int y = 0; y < bytes.Size().height; ++y) {
        for (int x = 0; x < bytes.Size().width; ++x) {
            PixelColor colour;
            GetPixelColor(&bytes, x, y, colour);
            colour.reserved = static_cast<std::uint8_t>(x * 3 + y);
            SetPixelColor(bitmap.get(), x, y, colour);
        }
    }
    return bitmap;
}

BitmapHandle Drawn(const Case& c, const Bitmap& source, BlockRunner* runner = nullptr) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(&source);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .runner = runner, .output = WishOf(c)};
    Render(c.projection, RecordOf(c), SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

std::vector<Case> Cases() {
    std::vector<Case> cases;
    const auto turned = [](ImageRecord& r) {
        r.OutputAOV = 110.0F, r.RotateX = 25.0F, r.RotateY = -20.0F, r.RotateZ = 40.0F;
    };
    const auto fringed = [](ImageRecord& r) {
        SampledLens lens = testing::SampledLensOf(r);
        lens.red = {0.1, 0.2, -0.05};
        lens.blue = {-0.2, 0.0, 0.1};
        r.Lens = std::make_shared<const SampledLens>(lens);
    };
    const auto halfPixel = [](ImageRecord& r) { r.RotateX = 5.0F, r.TranslateX = 0.331F; };
    for (const Projection projection : AllProjections()) {
        const std::string name = ToText(projection).toStdString();
        cases.push_back({name, projection});
        cases.push_back({name + " upright", projection, {100, 151}});
        cases.push_back({name + " turned", projection, {151, 100}, turned});
        cases.push_back({name + " fringes", projection, {151, 100}, fringed});
        cases.push_back({name + " reduced", projection, {151, 100}, turned, 0.3});
        cases.push_back({name + " enlarged", projection, {151, 100}, turned, 1.6});
    }
    cases.push_back({"half a pixel", Projection::Rectilinear, {151, 100}, halfPixel});
    return cases;
}

struct Apart {
    double most = 0.0;   // of the range of samples
    double share = 0.0;  // of samples that are far apart
};

Apart Compare(const Bitmap& a, const Bitmap& b, double far) {
    Apart apart;
    const auto samples = static_cast<std::size_t>(a.Size().width) * 3;
    for (int y = 0; y < a.Size().height; ++y) {
        WithSample(SampleKindOf(a.Format()), [&](auto kind) {
            using Sample = decltype(kind);
            constexpr double range = std::is_same_v<Sample, float>
                                         ? 1.0
                                         : static_cast<double>(std::numeric_limits<Sample>::max());
            for (std::size_t n = 0; n < samples; ++n) {
                const double difference =
                    std::fabs(static_cast<double>(SampleAt<Sample>(a.ScanLine(y).data(), n)) -
                              static_cast<double>(SampleAt<Sample>(b.ScanLine(y).data(), n))) /
                    range;
                apart.most = std::max(apart.most, difference);
                apart.share += difference > far ? 1.0 : 0.0;
            }
        });
    }
    apart.share /= static_cast<double>(samples) * a.Size().height;
    return apart;
}

// Where the plain loops show a pixel wholly or not at all, and where a pixel's neighbours are not
// beside it on the photo.
bool HasEdges(Projection projection) {
    return projection == Projection::Varnel || projection == Projection::Horizon ||
           projection == Projection::Equidistance || projection == Projection::Orthographic ||
           projection == Projection::LittlePlanet || projection == Projection::Unrolled;
}

TEST(FineEngine, AgreesWithThePlainLoops) {
    for (const Case& c : Cases()) {
        for (const PixelFormat format :
             {PixelFormat::Bgr8, PixelFormat::Bgr16, PixelFormat::BgrFloat}) {
            SCOPED_TRACE(c.name + " " + std::to_string(BitsPerSample(format)));
            const BitmapHandle source = InFormat(*testing::PhotoLike(c.size), format);
            const BitmapHandle drawn = Drawn(c, *source);
            const BitmapHandle plain =
                reference::RenderFine(c.projection, RecordOf(c), *source, WishOf(c));
            const Apart apart = Compare(*drawn, *plain, 1.5 / 255.0);
            EXPECT_LT(apart.share, HasEdges(c.projection) ? 0.04 : 0.002);
            if (!HasEdges(c.projection) && c.times >= 1.0) {
                EXPECT_LT(apart.most, format == PixelFormat::Bgr8 ? 1.5 / 255.0 : 32.0 / 65535.0);
            }
        }
    }
}

bool Same(const Bitmap& a, const Bitmap& b) {
    return a.Format() == b.Format() && a.Size().width == b.Size().width &&
           a.Size().height == b.Size().height &&
           std::equal(a.Bits(), a.Bits() + a.Pitch() * static_cast<std::size_t>(a.Size().height),
                      b.Bits());
}

TEST(FineEngine, InstructionSetsThreadsAndRowsChangeNoByte) {
    ThreadRunner runner(3);
    for (const Case& c : Cases()) {
        SCOPED_TRACE(c.name);
        const BitmapHandle source = InFormat(*testing::PhotoLike(c.size), PixelFormat::Bgr16);
        const BitmapHandle drawn = Drawn(c, *source);
        EXPECT_TRUE(Same(*drawn, *Drawn(c, *source, &runner)));
        for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
            hwy::SetSupportedTargetsForTest(target);
            SCOPED_TRACE(hwy::TargetName(target));
            EXPECT_TRUE(Same(*drawn, *Drawn(c, *source)));
        }
        hwy::SetSupportedTargetsForTest(0);
    }
}

TEST(FineEngine, RowsByThemselvesAreThoseOfTheWhole) {
    for (const Case& c : Cases()) {
        SCOPED_TRACE(c.name);
        const BitmapHandle source = testing::PhotoLike(c.size);
        const BitmapHandle drawn = Drawn(c, *source);
        RegionRenderer region;
        region.Start(c.projection, RecordOf(c), source.get(), WishOf(c));
        const int last = drawn->Size().height - 1;
        while (region.DrawSome({0, last}, std::chrono::seconds(1)).last >= 0) {
        }
        EXPECT_TRUE(Same(*drawn, *region.Result()));
    }
}

TEST(FineEngine, DraftsStayClassic) {
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap = testing::PhotoLike({151, 100});
    SilentProgress silent;
    RenderContext context{bitmaps, [] { return true; }};
    ImageRecord record = testing::FisheyeRecord();
    Render(Projection::Rectilinear, record, SizeKind::Thumbnails, silent, context);
    const BitmapHandle classic = std::move(bitmaps.ResultBitmap);
    record.Sampling = SamplingKind::Fine;
    Render(Projection::Rectilinear, record, SizeKind::Thumbnails, silent, context);
    EXPECT_TRUE(Same(*classic, *bitmaps.ResultBitmap));
}

// A wide view of a white photo: white up to its border, and nothing but shares of it beyond.
TEST(FineEngine, ThePhotosBorderIsNeitherDarkNorStepped) {
    for (const PixelFormat format : {PixelFormat::Bgr8, PixelFormat::Bgra16}) {
        const Case wide{"", Projection::Rectilinear, {300, 200}, [](ImageRecord& r) {
                            r.LensMapScale = 40.0F, r.OutputAOV = 130.0F, r.RotateZ = 10.0F;
                        }};
        const BitmapHandle white = NewBitmap(wide.size, format);
        for (int y = 0; y < wide.size.height; ++y) {
            std::ranges::fill(white->ScanLine(y), std::uint8_t{255});
        }
        const BitmapHandle drawn = Drawn(wide, *white);
        int shares = 0;
        for (int x = 100; x < 200; ++x) {
            bool beyond = false;
            for (int y = 100; y < 200; ++y) {
                const std::uint8_t* const pixel = drawn->ScanLine(y).data() + x * PixelStep(format);
                const int level =
                    HasAlpha(format) ? SampleAt<std::uint16_t>(pixel, 3) / 257 : pixel[0];
                EXPECT_TRUE(!beyond || level < 255) << x << " " << y;
                shares += level > 0 && level < 255 ? 1 : 0;
                beyond = beyond || level < 255;
                if (HasAlpha(format) && level > 0) {
                    EXPECT_EQ(SampleAt<std::uint16_t>(pixel, 0), 65535);
                }
            }
            EXPECT_TRUE(beyond);
        }
        EXPECT_GT(shares, 80);
    }
}

}  // namespace
}  // namespace varnel
