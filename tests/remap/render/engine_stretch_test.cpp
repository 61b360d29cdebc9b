// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The stretch against its plain loops, by the same contract as the projections.

#include <gtest/gtest.h>

#include <hwy/targets.h>

#include "base/thread_runner.h"
#include "remap/render/reference/render_stretch.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/runners.h"

namespace varnel {
namespace {

using testing::Compare;
using testing::Difference;

using Stretcher = void (*)(const StretchCurve&, SizeKind, RenderProgress&, RenderContext&);

BitmapHandle Stretched(Stretcher stretcher, const StretchCurve& curve, const Bitmap* source,
                       BlockRunner* runner = nullptr) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(source);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .runner = runner};
    stretcher(curve, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

void ExpectClose(const StretchCurve& curve, const Bitmap* source, double share) {
    SCOPED_TRACE(::testing::Message()
                 << curve.strength << " " << curve.middle << " " << SizeOf(source).width);
    const Difference difference =
        Compare(Stretched(&RenderStretch, curve, source).get(),
                Stretched(&reference::RenderStretch, curve, source).get());
    EXPECT_LE(difference.largest, 1);
    EXPECT_LT(difference.share, share);
}

// The dialog's sliders, in hundredths.
std::vector<StretchCurve> Curves() {
    std::vector<StretchCurve> curves;
    for (const int strength : {-100, -40, -1, 0, 1, 2, 25, 50, 63, 96, 100}) {
        for (const int middle : {-100, -33, 0, 1, 100}) {
            curves.push_back({strength / 100.0, middle / 100.0});
        }
    }
    return curves;
}

TEST(EngineStretch, AgreesWithThePlainLoops) {
    for (const PixelSize size : {PixelSize{301, 200}, {320, 121}, {21, 340}, {2, 7}, {1, 1}}) {
        const BitmapHandle soft = testing::Soft(size);
        const BitmapHandle flat = testing::Flat(size);
        for (const StretchCurve& curve : Curves()) {
            ExpectClose(curve, soft.get(), 0.001);
            ExpectClose(curve, flat.get(), 0.03);
        }
    }
}

TEST(EngineStretch, AgreesOnEveryInstructionSet) {
    const BitmapHandle photo = testing::PhotoLike({301, 200});
    for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        for (const StretchCurve& curve : {StretchCurve{0.7, 0.3}, {-0.9, -0.2}, {0.5, 1.0}}) {
            ExpectClose(curve, photo.get(), 0.001);
        }
    }
    hwy::SetSupportedTargetsForTest(0);
}

TEST(EngineStretch, WorkersAndTheirOrderChangeNoByte) {
    const BitmapHandle photo = testing::PhotoLike({301, 200});
    const StretchCurve curve{0.6, 0.2};
    const BitmapHandle serial = Stretched(&RenderStretch, curve, photo.get());
    ThreadRunner three(3);
    testing::ShuffledRunner shuffled(7);
    for (BlockRunner* const runner : std::initializer_list<BlockRunner*>{&three, &shuffled}) {
        EXPECT_EQ(Compare(serial.get(), Stretched(&RenderStretch, curve, photo.get(), runner).get())
                      .largest,
                  0);
    }
}

}  // namespace
}  // namespace varnel
