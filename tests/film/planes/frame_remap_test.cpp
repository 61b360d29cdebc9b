// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/frame_remap.h"

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "film/frames/frame_buffer.h"
#include "tests/film/planes/plain_remap.h"
#include "tests/support/records.h"
#include "tests/support/runners.h"

namespace varnel {
namespace {

using namespace testing;

FrameFormat Yuv(PixelSize size, ChromaLayout chroma = ChromaLayout::C420, int bits = 8) {
    FrameFormat format;
    format.size = size;
    format.chroma = chroma;
    format.bits = static_cast<std::uint8_t>(bits);
    return format;
}

ImageRecord View(float angle) {
    ImageRecord record = FisheyeRecord();
    record.OutputAOV = angle;
    record.RotateX = 7.0F;
    record.RotateY = -4.0F;
    return record;
}

FrameBuffer Drawn(const FrameRemap& remap, const FrameView& source, BlockRunner& runner) {
    FrameBuffer result(remap.ResultFormat());
    remap.Draw(source, result.Target(), runner);
    return result;
}

FrameBuffer Remapped(Projection projection, const ImageRecord& image, const FrameView& source) {
    FrameRemap remap;
    SerialRunner runner;
    remap.Set(projection, image, source.format, runner);
    return Drawn(remap, source, runner);
}

bool AreEqual(const FrameBuffer& a, const FrameBuffer& b) {
    bool equal = a.Format() == b.Format();
    ForEachSample(a.Format(), [&](int plane, int column, int row) {
        equal = equal &&
                SampleOf(a.View(), plane, column, row) == SampleOf(b.View(), plane, column, row);
    });
    return equal;
}

TEST(RemappedFormat, IsTheRecordsSizeMadeEvenWhereColourIsShared) {
    struct Case {
        ChromaLayout chroma;
        PixelSize wish, expected;
    };
    using enum ChromaLayout;
    for (const Case& c : {Case{C420, {0, 0}, {100, 60}}, Case{C420, {51, 33}, {50, 32}},
                          Case{C422, {51, 33}, {50, 33}}, Case{C444, {51, 33}, {51, 33}},
                          Case{Grey, {51, 33}, {51, 33}}, Case{C420, {1, 1}, {1, 1}}}) {
        ImageRecord image = FisheyeRecord();
        image.OutputWidth = c.wish.width;
        image.OutputHeight = c.wish.height;
        FrameFormat source = Yuv({101, 61}, c.chroma, 10);
        source.fullRange = true;
        source.matrix = 9;
        FrameFormat expected = source;
        expected.size = c.wish.width == 0 ? PixelSize{100, 60} : c.expected;
        EXPECT_EQ(RemappedFormat(source, image), expected) << c.wish.width;
    }
}

TEST(FrameRemap, IsTheSameInAnyOrderAndOnThreads) {
    const FrameBuffer source = Noise(Yuv({640, 400}));
    const ImageRecord image = View(120.0F);
    const FrameBuffer expected = Remapped(Projection::Panini, image, source.View());
    ShuffledRunner shuffled(3);
    ThreadRunner threads(2);
    for (BlockRunner* runner :
         {static_cast<BlockRunner*>(&shuffled), static_cast<BlockRunner*>(&threads)}) {
        FrameRemap remap;
        remap.Set(Projection::Panini, image, source.Format(), *runner);
        EXPECT_TRUE(AreEqual(Drawn(remap, source.View(), *runner), expected));
    }
}

TEST(FrameRemap, IsTheSameOnEveryInstructionSet) {
    for (const int bits : {8, 10}) {
        const FrameBuffer source = Noise(Yuv({320, 206}, ChromaLayout::C420, bits));
        for (const Projection projection : {Projection::Horizon, Projection::Equirectangular}) {
            const FrameBuffer expected = Remapped(projection, View(150.0F), source.View());
            for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
                hwy::SetSupportedTargetsForTest(target);
                EXPECT_TRUE(AreEqual(Remapped(projection, View(150.0F), source.View()), expected))
                    << hwy::TargetName(target);
            }
            hwy::SetSupportedTargetsForTest(0);
        }
    }
}

// Rows that end at the very end of memory, and rows from the lowest up, which have a negative
// pitch.
TEST(FrameRemap, ReadsNothingBesideTheFrame) {
    const FrameFormat format = Yuv({222, 130}, ChromaLayout::Grey);
    const FrameBuffer source = Noise(format);
    const FrameBuffer expected = Remapped(Projection::Stereographic, View(90.0F), source.View());
    for (const bool upward : {false, true}) {
        std::vector<std::byte> bytes(std::size_t{222} * 130);  // the sanitizers look at its ends
        FrameView view{format, {}};
        FrameTarget target{format, {}};
        std::byte* const first = upward ? bytes.data() + std::ptrdiff_t{222} * 129 : bytes.data();
        const std::ptrdiff_t pitch = upward ? -222 : 222;
        view.planes[0] = {first, pitch};
        target.planes[0] = {first, pitch};
        ForEachSample(format, [&](int plane, int column, int row) {
            PutSampleOf(target, plane, column, row, SampleOf(source.View(), plane, column, row));
        });
        EXPECT_TRUE(AreEqual(Remapped(Projection::Stereographic, View(90.0F), view), expected));
    }
}

TEST(FrameRemap, FollowsEachChangeOfSettings) {
    SerialRunner runner;
    const FrameBuffer source = Noise(Yuv({200, 120}));
    const FrameBuffer deep = Noise(Yuv({200, 120}, ChromaLayout::C422, 10));
    FrameRemap remap;
    for (const float angle : {60.0F, 200.0F, 60.0F}) {
        for (const FrameBuffer* frame : {&source, &deep}) {
            for (const Projection projection : {Projection::Horizon, Projection::Stereographic}) {
                remap.Set(projection, View(angle), frame->Format(), runner);
                EXPECT_TRUE(AreEqual(Drawn(remap, frame->View(), runner),
                                     Remapped(projection, View(angle), frame->View())));
            }
        }
    }
}

TEST(FrameRemap, ForgetsSettingsThatMakeNoPicture) {
    SerialRunner runner;
    const FrameBuffer source = Noise(Yuv({64, 48}));
    ImageRecord impossible = View(90.0F);
    impossible.SensorWidth = 0.0F;
    FrameRemap remap;
    remap.Set(Projection::Rectilinear, View(90.0F), source.Format(), runner);
    EXPECT_THROW(remap.Set(Projection::Rectilinear, impossible, source.Format(), runner),
                 RunTimeError);
    EXPECT_THROW(remap.Set(Projection::Rectilinear, impossible, source.Format(), runner),
                 RunTimeError);
    remap.Set(Projection::Rectilinear, View(90.0F), source.Format(), runner);
    EXPECT_TRUE(AreEqual(Drawn(remap, source.View(), runner),
                         Remapped(Projection::Rectilinear, View(90.0F), source.View())));
}

// An equisolid view of an equisolid lens, as wide as its photo.
TEST(FrameRemap, KeepsEveryValueOfAnIdentity) {
    using enum ChromaLayout;
    for (const ChromaLayout chroma : {Grey, C420, C422, C444, Colours}) {
        for (const int bits : {8, 10, 16}) {
            const FrameBuffer source = Noise(Yuv({330, 210}, chroma, bits));
            ImageRecord image = FisheyeRecord();
            image.Ratio = 0.0F;
            image.LensMapScale = 32.0F;
            // 36 mm are 4 * 16 mm * sin(aov / 4).
            image.OutputAOV = static_cast<float>(4.0 * std::asin(18.0 / 32.0) * 180.0 / 3.14159265);
            const FrameBuffer result = Remapped(Projection::FisheyeEquisolid, image, source.View());
            int apart = 0;
            ForEachSample(result.Format(), [&](int plane, int column, int row) {
                apart += SampleOf(result.View(), plane, column, row) !=
                         SampleOf(source.View(), plane, column, row);
            });
            EXPECT_EQ(apart, 0) << static_cast<int>(chroma) << " " << bits;
        }
    }
}

TEST(FrameRemap, LeavesFlatFramesFlat) {
    FrameBuffer source(Yuv({320, 200}));
    ForEachSample(source.Format(), [&](int plane, int column, int row) {
        PutSampleOf(source.Target(), plane, column, row, 90 + 30 * plane);
    });
    ImageRecord image = View(60.0F);
    const FrameBuffer result = Remapped(Projection::Rectilinear, image, source.View());
    ForEachSample(result.Format(), [&](int plane, int column, int row) {
        ASSERT_EQ(SampleOf(result.View(), plane, column, row), 90 + 30 * plane);
    });
}

TEST(FrameRemap, TakesFramesOfAnySize) {
    SerialRunner runner;
    for (const PixelSize size : {PixelSize{2, 2}, {2, 1}, {3, 5}, {17, 1}, {2, 40}, {33, 31}}) {
        for (const int wish : {0, 1, 7, 90}) {
            ImageRecord image = View(100.0F);
            image.OutputWidth = image.OutputHeight = wish;
            const FrameBuffer source = Noise(Yuv(size));
            FrameRemap remap;
            remap.Set(Projection::Stereographic, image, source.Format(), runner);
            const FrameBuffer result = Drawn(remap, source.View(), runner);
            const PlainRemap plain(Projection::Stereographic, image, source.View());
            const PixelSize drawn = result.Format().size;
            for (int row = 0; row < drawn.height; ++row) {
                for (int column = 0; column < drawn.width; ++column) {
                    ASSERT_NEAR(SampleOf(result.View(), 0, column, row),
                                std::floor(plain.LevelAt(0, column, row)), 1.0);
                }
            }
        }
    }
}

}  // namespace
}  // namespace varnel
