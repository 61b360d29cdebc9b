// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Records whose loops run over millions of lines that are not on the picture, and conversions that
// are ended half way: neither keeps anybody waiting.

#include <gtest/gtest.h>

#include <string>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/line_range.h"
#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "remap/projection/projection_info.h"
#include "remap/render/reference/render.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::Compare;
using testing::FisheyeRecord;
using testing::PhotoLike;

using Renderer = void (*)(Projection, const ImageRecord&, SizeKind, RenderProgress&,
                          RenderContext&);
using Change = void (*)(ImageRecord&);

class CountedProgress : public RenderProgress {
  public:
    void Begin(float /*maximum*/) override {}
    void Advance(float /*value*/) override { ++steps; }
    void Pause() override {
        if (++pauses == lastPause) {
            throw std::bad_alloc();
        }
    }
    void End() override {}
    long steps = 0;
    long pauses = 0;
    long lastPause = -1;
};

struct Drawing {
    Bitmaps bitmaps;
    CountedProgress progress;
    std::string error;  // empty when there is none

    Drawing(Renderer renderer, Projection projection, const ImageRecord& record, PixelSize size,
            SizeKind kind, bool smooth = true) {
        bitmaps.FullSourceBitmap = PhotoLike(size);
        bitmaps.PreviewSourceBitmap = PhotoLike(size);
        RenderContext context{bitmaps, [smooth] { return smooth; }};
        try {
            renderer(projection, record, kind, progress, context);
        } catch (const RunTimeError& thrown) {
            error = ErrorText(ReasonFor(thrown)).toStdString();
        }
    }
    const Bitmap* Result() const { return bitmaps.ResultBitmap.get(); }
};

void ExpectTheLoopsPicture(Projection projection, const ImageRecord& record, PixelSize size) {
    const Drawing wanted(&reference::Render, projection, record, size, SizeKind::Large);
    const Drawing drawn(&Render, projection, record, size, SizeKind::Large);
    EXPECT_EQ(drawn.error, wanted.error);
    EXPECT_LE(Compare(drawn.Result(), wanted.Result()).largest, 1);
    const Drawing nearest(&Render, projection, record, size, SizeKind::Thumbnails, false);
    EXPECT_EQ(nearest.error, wanted.error);
    if (wanted.error.empty()) {
        const Drawing wantedNearest(&reference::Render, projection, record, size,
                                    SizeKind::Thumbnails, false);
        EXPECT_EQ(Compare(nearest.Result(), wantedNearest.Result()).largest, 0);
        RegionRenderer part;
        const BitmapHandle source = PhotoLike(size);
        part.Start(projection, record, source.get());
        part.DrawSome({0, size.height - 1}, std::chrono::hours(1));
        EXPECT_EQ(Compare(part.Result(), drawn.Result()).largest, 0);
    }
}

TEST(FarCentre, TheLoopsPicture) {
    const std::pair<const char*, Change> changes[] = {
        {"right", [](ImageRecord& r) { r.OfsetX = 1e7F; }},
        {"left", [](ImageRecord& r) { r.OfsetX = -1e7F; }},
        {"down", [](ImageRecord& r) { r.OfsetY = 1e7F; }},
        {"up", [](ImageRecord& r) { r.OfsetY = -1e7F; }},
        {"aside and up", [](ImageRecord& r) { r.OfsetX = -3e4F, r.OfsetY = -2e4F; }},
        {"turned", [](ImageRecord& r) { r.OfsetX = 3e4F, r.OfsetY = 2e4F, r.RotateZ = 9.0F; }},
        {"turned, aside", [](ImageRecord& r) { r.OfsetX = 1e7F, r.RotateY = 9.0F; }},
        {"turned, up", [](ImageRecord& r) { r.OfsetY = -1e7F, r.RotateX = 9.0F; }},
        {"shifted", [](ImageRecord& r) { r.TranslateX = 1e7F, r.TranslateY = -1e7F; }},
        {"shifted beyond 32 bits", [](ImageRecord& r) { r.TranslateY = 1e12F; }},
        {"tiny circle", [](ImageRecord& r) { r.Ratio = 1e30F, r.OfsetY = 1e6F; }},
        {"huge circle", [](ImageRecord& r) { r.Ratio = 1e-30F; }},
    };
    for (const PixelSize size : {PixelSize{7, 5}, PixelSize{1, 1}, PixelSize{1, 3}}) {
        for (const Projection projection : AllProjections()) {
            for (const auto& [name, change] : changes) {
                SCOPED_TRACE(ToText(projection).toStdString() + " " + name + " " +
                             std::to_string(size.width));
                ImageRecord record = FisheyeRecord();
                change(record);
                ExpectTheLoopsPicture(projection, record, size);
            }
        }
    }
}

// What the loops would leave after hours, worked out by hand: all reads are far off the picture but
// for the row through the circle's centre, which Varnel does not stretch.
TEST(FarCentre, OfAPhotoIsFoundAtOnce) {
    constexpr PixelSize size{301, 200};
    const BitmapHandle source = PhotoLike(size);
    const BitmapHandle black = testing::Painted(size, [](int, int) { return PixelColor{}; });
    const BitmapHandle row = testing::Painted(size, [&](int x, int y) {
        return y == 100 ? testing::PixelAt(source.get(), x, y) : PixelColor{};
    });
    for (const Projection projection : AllProjections()) {
        for (const float offset : {1e9F, -1e9F}) {
            for (const SizeKind kind : {SizeKind::Large, SizeKind::Thumbnails}) {
                SCOPED_TRACE(ToText(projection).toStdString());
                ImageRecord aside = FisheyeRecord();
                aside.OfsetX = offset;
                const Drawing drawn(&Render, projection, aside, size, kind);
                EXPECT_EQ(drawn.error, projection == Projection::Equidistance
                                           ? "Overflow: the progress value does not fit 16 bits"
                                           : "");
                if (drawn.error.empty()) {
                    const Bitmap* const wanted =
                        (projection == Projection::Varnel ? row : black).get();
                    EXPECT_EQ(Compare(drawn.Result(), wanted).largest, 0);
                    EXPECT_LE(drawn.progress.steps, batchLines + size.width);
                }
                ImageRecord up = FisheyeRecord();
                up.OfsetY = offset;
                const Drawing higher(&Render, projection, up, size, kind);
                EXPECT_EQ(Compare(higher.Result(), black.get()).largest, 0);
                EXPECT_LE(higher.progress.steps, batchLines + size.width);
            }
        }
    }
}

// However large the picture and however slow its map.
TEST(Pauses, AreNeverFarApart) {
    constexpr PixelSize size{2100, 1000};
    constexpr long pixels = 16L * batchLines * 4;  // at most, from one to the next
    for (const Projection projection : AllProjections()) {
        for (const float turn : {0.0F, 20.0F}) {
            ImageRecord record = FisheyeRecord();
            record.RotateX = turn;
            const Drawing drawn(&Render, projection, record, size, SizeKind::Large);
            EXPECT_GE(drawn.progress.pauses, size.width * size.height / pixels);
        }
    }
}

TEST(Pauses, EndTheConversion) {
    constexpr PixelSize size{301, 200};
    for (const Projection projection : AllProjections()) {
        for (const int cores : {1, 2}) {
            Bitmaps bitmaps;
            bitmaps.FullSourceBitmap = PhotoLike(size);
            ThreadRunner runner(cores);
            RenderContext context{.bitmaps = bitmaps, .runner = &runner};
            CountedProgress progress;
            // The other thread may be quick enough to leave no second block to this one.
            progress.lastPause = cores == 1 ? 2 : 1;
            EXPECT_THROW(Render(projection, FisheyeRecord(), SizeKind::Large, progress, context),
                         std::bad_alloc);
            EXPECT_EQ(progress.pauses, progress.lastPause);
            EXPECT_EQ(progress.steps, 0);
            EXPECT_EQ(Compare(bitmaps.ResultBitmap.get(), bitmaps.FullSourceBitmap.get()).largest,
                      0);
        }
    }
}

}  // namespace
}  // namespace varnel
