// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine against the plain loops for all that is not Bgr8.

#include <gtest/gtest.h>

#include <hwy/targets.h>
#include <string_view>

#include "base/thread_runner.h"
#include "remap/projection/projection_info.h"
#include "remap/render/reference/render.h"
#include "remap/render/reference/render_stretch.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/deep_pictures.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"
#include "tests/support/runners.h"

namespace varnel {
namespace {

using testing::Deepened;
using testing::LargestDistance;

struct Case {
    const char* name;
    Projection projection;
    std::function<void(ImageRecord&)> change = [](ImageRecord&) {};
};

// Each kind of map and of engine.
std::vector<Case> Cases() {
    const auto turned = [](ImageRecord& r) {
        r.RotateX = 20.0F, r.RotateY = -30.0F, r.TranslateY = 7.7F;
    };
    const auto fringed = [](ImageRecord& r) {
        SampledLens lens = testing::SampledLensOf(r);
        lens.red = {0.1, 0.2, -0.05};
        lens.blue = {-0.2, 0.0, 0.1};
        r.Lens = std::make_shared<const SampledLens>(lens);
    };
    const auto widest = [](ImageRecord& r) { r.OutputAOV = 353.7F; };
    return {{"fourfold", Projection::Rectilinear},
            {"turned", Projection::Rectilinear, turned},
            {"fringes", Projection::Rectilinear, fringed},
            {"whole sphere", Projection::Equirectangular, widest},
            {"equidistance", Projection::Equidistance},
            {"rows", Projection::Varnel},
            {"circles", Projection::Horizon}};
}

using Renderer = void (*)(Projection, const ImageRecord&, SizeKind, RenderProgress&,
                          RenderContext&);

ImageRecord RecordOf(const Case& c) {
    ImageRecord record = testing::FisheyeRecord();
    c.change(record);
    return record;
}

BitmapHandle Drawn(Renderer renderer, const Case& c, const Bitmap& source,
                   BlockRunner* runner = nullptr) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(&source);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .runner = runner};
    renderer(c.projection, RecordOf(c), SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

// One sample of 8 bits; of deeper ones one of 65,535, which single precision leaves of a photo's
// pixels however large it is.
double LeastStep(PixelFormat format) {
    return SampleKindOf(format) == SampleKind::Byte ? 1.001 / 255.0 : 1.001 / 65535.0;
}

void ExpectClose(const Case& c, const Bitmap& source, const std::vector<std::int64_t>& targets) {
    const BitmapHandle exact = Drawn(&reference::Render, c, source);
    for (const std::int64_t target : targets) {
        hwy::SetSupportedTargetsForTest(target);
        EXPECT_LE(LargestDistance(Drawn(&Render, c, source).get(), exact.get()),
                  LeastStep(source.Format()))
            << c.name << ", " << hwy::TargetName(target);
    }
    hwy::SetSupportedTargetsForTest(0);
}

class EngineDepth : public ::testing::TestWithParam<PixelFormat> {};

TEST_P(EngineDepth, AgreesWithThePlainLoopsOnEveryInstructionSet) {
    const BitmapHandle photo = Deepened(*testing::PhotoLike({301, 200}), GetParam());
    for (const Case& c : Cases()) {
        // Red of what is all but transparent where green is not is chance.
        if (!HasAlpha(GetParam()) || c.name != std::string_view("fringes")) {
            ExpectClose(c, *photo, hwy::SupportedAndGeneratedTargets());
        }
    }
}

TEST_P(EngineDepth, WorkersAndRowsChangeNoByte) {
    const BitmapHandle photo = Deepened(*testing::PhotoLike({301, 200}), GetParam());
    testing::ShuffledRunner shuffled(7);
    for (const Case& c : Cases()) {
        const BitmapHandle whole = Drawn(&Render, c, *photo);
        EXPECT_TRUE(testing::SamePixels(Drawn(&Render, c, *photo, &shuffled).get(), whole.get()));
        RegionRenderer part;
        part.Start(c.projection, RecordOf(c), photo.get());
        part.DrawSome({100, 101}, std::chrono::hours(1));
        part.DrawSome({0, 199}, std::chrono::hours(1));
        EXPECT_TRUE(testing::SamePixels(part.Result(), whole.get())) << c.name;
    }
}

TEST_P(EngineDepth, StretchAgreesWithItsPlainLoops) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = Deepened(*testing::PhotoLike({301, 200}), GetParam());
    SilentProgress silent;
    RenderContext context{bitmaps};
    for (const StretchCurve& curve : {StretchCurve{0.7, 0.3}, {-0.9, -0.2}, {0.5, 1.0}, {0, 0}}) {
        reference::RenderStretch(curve, SizeKind::Large, silent, context);
        const BitmapHandle exact = std::move(bitmaps.ResultBitmap);
        RenderStretch(curve, SizeKind::Large, silent, context);
        EXPECT_LE(LargestDistance(bitmaps.ResultBitmap.get(), exact.get()), LeastStep(GetParam()));
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, EngineDepth, ::testing::ValuesIn(testing::deepFormats));

TEST(EngineDepths, LargePhotosAreAsClose) {
    const BitmapHandle photo = Deepened(*testing::Noise({4100, 1000}), PixelFormat::Bgr16);
    for (const Case& c : Cases()) {
        if (c.name == std::string_view("turned") || c.name == std::string_view("whole sphere")) {
            ExpectClose(c, *photo, {0});
        }
    }
}

// As of a sun: what is between it and the dark is bright, and nothing is no number.
TEST(EngineDepths, InfiniteLightLeavesNumbers) {
    const BitmapHandle photo = Deepened(*testing::PhotoLike({301, 200}), PixelFormat::BgrFloat);
    for (int n = 0; n < 400; ++n) {
        const float infinite = std::numeric_limits<float>::infinity();
        PutSample(photo->ScanLine(90 + n / 20).data() + (140 + n % 20) * 12, 1, infinite);
    }
    for (const Case& c : Cases()) {
        const BitmapHandle drawn = Drawn(&Render, c, *photo);
        double brightest = 0.0;
        for (int n = 0; n < 301 * 200; ++n) {
            const double green = GetLevels(drawn.get(), n % 301, n / 301).green;
            ASSERT_TRUE(std::isfinite(green)) << c.name;
            brightest = std::max(green, brightest);
        }
        EXPECT_GT(brightest, 1e20);
    }
}

// All 65,536 levels through a view that changes nothing: straight lines as straight lines.
TEST(EngineDepths, ARampOf16BitsComesBackValueForValue) {
    constexpr int side = 256;
    const BitmapHandle ramp = NewBitmap({side, side}, PixelFormat::Bgr16);
    for (int n = 0; n < side * side; ++n) {
        SetLevels(ramp.get(), n % side, n / side, {n * 1.0, 65535.0 - n, 65535.0 * (n % 2), 0.0});
    }
    const Case same{"same", Projection::Rectilinear, [](ImageRecord& r) {
                        r.LensBrand = QStringLiteral("Samyang");
                        r.LensMapFactor = 1.0F;
                        r.LensMapScale = 18.0F;
                        r.OutputAOV = 90.0F;
                    }};
    const BitmapHandle drawn = Drawn(&Render, same, *ramp);
    EXPECT_TRUE(testing::SamePixels(drawn.get(), ramp.get()));
}

}  // namespace
}  // namespace varnel
