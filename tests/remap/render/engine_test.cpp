// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine against the plain loops: the gate for every change of either.

#include <gtest/gtest.h>

#include <hwy/targets.h>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "remap/projection/projection_info.h"
#include "remap/render/reference/render.h"
#include "remap/render/region_renderer.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"
#include "tests/support/runners.h"

namespace varnel {
namespace {

using testing::Compare;
using testing::Difference;
using testing::FisheyeRecord;
using testing::Flat;
using testing::Painter;
using testing::PhotoLike;

using Renderer = void (*)(Projection, const ImageRecord&, SizeKind, RenderProgress&,
                          RenderContext&);

struct Case {
    std::string name;
    Projection projection = Projection::Rectilinear;
    PixelSize size{301, 200};
    std::function<void(ImageRecord&)> change = [](ImageRecord&) {};
};

BitmapHandle Drawn(Renderer renderer, const Case& c, Painter paint, SizeKind kind, bool smooth,
                   BlockRunner* runner) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = paint(c.size);
    bitmaps.PreviewSourceBitmap = paint(c.size);
    ImageRecord record = FisheyeRecord();
    record.Landscape = c.size.width >= c.size.height;
    c.change(record);
    SilentProgress silent;
    RenderContext context{bitmaps, [smooth] { return smooth; }, runner};
    renderer(c.projection, record, kind, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

void AddFringes(std::vector<Case>& cases) {
    // Fringes of up to 3 pixels; as whole and as fractional axis, which have engines of their own.
    const auto fringed = [](bool offCentre) {
        return [offCentre](ImageRecord& r) {
            SampledLens lens =
                offCentre ? *testing::OffCentreLensOf(r, {301, 200}) : testing::SampledLensOf(r);
            lens.red = {0.1, 0.2, -0.05};
            lens.blue = {-0.2, 0.0, 0.1};
            r.Lens = std::make_shared<const SampledLens>(lens);
            r.RotateX = offCentre ? 12.0F : 0.0F;
            r.TranslateY = offCentre ? 7.7F : 0.0F;
        };
    };
    for (const Projection projection : AllProjections()) {
        cases.push_back({"fringes", projection, {301, 200}, fringed(false)});
        cases.push_back({"fringes around an axis", projection, {301, 200}, fringed(true)});
    }
}

// Edges of the circle, of the lens and of the planes, poles and the seam behind the camera.
void AddSpheres(std::vector<Case>& cases) {
    for (const Projection projection : AllProjections()) {
        if (InfoOf(projection).Widest == nullptr) {
            continue;
        }
        const std::string name = ToText(projection).toStdString();
        // Not the whole turn: a lens of the same formula would have every blend on a whole level.
        const auto widest = [](ImageRecord& r) { r.OutputAOV = 353.7F; };
        const auto behind = [](ImageRecord& r) {
            r.OutputAOV = 200.0F, r.RotateX = 70.0F, r.RotateY = -150.0F, r.RotateZ = 30.0F;
        };
        const auto tangent = [](ImageRecord& r) {
            r.LensBrand = QStringLiteral("Samyang"), r.LensMapScale = 12.0F, r.Ratio = 0.0F;
            r.LensMapFactor = 1.5F, r.OutputAOV = 250.0F;
        };
        cases.push_back({name + " widest", projection, {301, 200}, widest});
        cases.push_back({name + " widest, large", projection, {4200, 160}, widest});
        cases.push_back({name + " behind", projection, {301, 200}, behind});
        cases.push_back({name + " tangent", projection, {301, 200}, tangent});
    }
    const auto partly = [](ImageRecord& r) {
        r.EffectRectilinear = 40.0F, r.PaniniD = 0.4F, r.PaniniSqueeze = 70.0F;
        r.OutputAOV = 200.0F, r.RotateY = 30.0F;
    };
    cases.push_back({"Stereographic partly", Projection::Stereographic, {301, 200}, partly});
    cases.push_back({"Panini partly", Projection::Panini, {301, 200}, partly});
}

std::vector<Case> Cases() {
    std::vector<Case> cases;
    const std::pair<const char*, PixelSize> sizes[] = {{"odd", {301, 201}},
                                                       {"even", {320, 240}},
                                                       {"upright", {200, 301}},
                                                       {"tiny", {7, 5}},
                                                       {"full", {1400, 900}}};
    for (const Projection projection : AllProjections()) {
        for (const auto& [name, size] : sizes) {
            cases.push_back({ToText(projection).toStdString() + " " + name, projection, size});
        }
        for (const float offset : {-180.0F, 33.3F, 700.0F}) {
            cases.push_back(
                {ToText(projection).toStdString() + " offset",
                 projection,
                 {301, 200},
                 [offset](ImageRecord& r) { r.OfsetX = offset, r.OfsetY = -offset / 2; }});
        }
    }
    const std::pair<const char*, std::function<void(ImageRecord&)>> rectilinear[] = {
        {"tilt", [](ImageRecord& r) { r.RotateX = -35.0F; }},
        {"pan", [](ImageRecord& r) { r.RotateY = 40.0F; }},
        {"roll", [](ImageRecord& r) { r.RotateZ = 17.0F; }},
        {"all turns",
         [](ImageRecord& r) { r.RotateX = 20.0F, r.RotateY = -30.0F, r.RotateZ = 11.0F; }},
        {"whole shift", [](ImageRecord& r) { r.TranslateX = 10.0F, r.TranslateY = -20.0F; }},
        {"uneven shift", [](ImageRecord& r) { r.TranslateX = 3.1F, r.TranslateY = 7.7F; }},
        {"half-pixel shift",
         [](ImageRecord& r) { r.TranslateX = 150.0F / 3.01F, r.TranslateY = 0.25F; }},
        {"far shift", [](ImageRecord& r) { r.TranslateX = 300.0F; }},
        {"behind the camera", [](ImageRecord& r) { r.OutputAOV = 170.0F, r.RotateY = 40.0F; }},
        {"backwards", [](ImageRecord& r) { r.RotateX = 170.0F; }},
        {"180 degrees", [](ImageRecord& r) { r.OutputAOV = 180.0F; }},
        {"180 degrees turned", [](ImageRecord& r) { r.OutputAOV = 180.0F, r.RotateZ = 5.0F; }},
        {"no effect", [](ImageRecord& r) { r.EffectRectilinear = 0.1F; }},
        {"half effect turned",
         [](ImageRecord& r) { r.EffectRectilinear = 50.0F, r.RotateX = 15.0F; }},
    };
    for (const auto& [name, change] : rectilinear) {
        cases.push_back(
            {std::string("Rectilinear ") + name, Projection::Rectilinear, {301, 200}, change});
    }
    for (const PixelSize size : {PixelSize{10, 2}, PixelSize{101, 61}, PixelSize{301, 200}}) {
        cases.push_back({"180 degrees to the side", Projection::Rectilinear, size,
                         [](ImageRecord& r) { r.OutputAOV = 180.0F, r.RotateY = 90.0F; }});
    }
    const auto tan = [](float factor) {
        return [factor](ImageRecord& r) {
            r.LensBrand = QStringLiteral("Samyang");
            r.LensMapFactor = factor;
            r.LensMapScale = 12.0F;
            r.OutputAOV = 120.0F;
        };
    };
    for (const Projection projection : {Projection::Rectilinear, Projection::Equidistance}) {
        cases.push_back({"Tan lens", projection, {301, 200}, tan(3.0F)});
        cases.push_back({"Tan lens past its pole", projection, {301, 200}, tan(0.5F)});
    }
    AddFringes(cases);
    AddSpheres(cases);
    const auto turned = [](ImageRecord& r) { r.RotateX = 20.0F, r.RotateY = -30.0F; };
    cases.push_back({"large", Projection::Rectilinear, {2100, 900}});
    cases.push_back({"large turned", Projection::Rectilinear, {4100, 1000}, turned});
    // Most of it lies between nodes that cannot stand for the map.
    const auto wide = [](ImageRecord& r) { r.OutputAOV = 165.0F; };
    const auto wideTurned = [](ImageRecord& r) { r.OutputAOV = 165.0F, r.RotateX = 20.0F; };
    cases.push_back({"large, wide", Projection::Rectilinear, {2100, 500}, wide});
    cases.push_back({"large, wide, turned", Projection::Rectilinear, {2100, 500}, wideTurned});
    cases.push_back({"large Equidistance", Projection::Equidistance, {4100, 1000}});
    for (const float effect : {0.1F, 40.0F, 250.0F}) {
        cases.push_back({"Varnel effect", Projection::Varnel, {301, 200}, [effect](ImageRecord& r) {
                             r.EffectVarnel = effect;
                         }});
        cases.push_back(
            {"Horizon effect", Projection::Horizon, {301, 200}, [effect](ImageRecord& r) {
                 r.EffectVarnel = effect;
             }});
    }
    return cases;
}

// A picture and how far the engine may be from the plain loops.
struct Agreement {
    Painter paint;
    SizeKind kind;
    bool smooth;
    int largest;
    double share;  // of pixels that differ, less than that
};

// The plain loops take their time: once for all instruction sets, of which 0 means those there are.
void ExpectClose(const Case& c, const std::vector<std::int64_t>& targets) {
    SCOPED_TRACE(c.name);
    for (const Agreement& wanted : {Agreement{&PhotoLike, SizeKind::Large, false, 1, 0.001},
                                    Agreement{&Flat, SizeKind::Batch, false, 1, 0.03},
                                    Agreement{&PhotoLike, SizeKind::Thumbnails, true, 1, 0.001},
                                    Agreement{&PhotoLike, SizeKind::Thumbnails, false, 0, 1.0}}) {
        const BitmapHandle reference =
            Drawn(&reference::Render, c, wanted.paint, wanted.kind, wanted.smooth, nullptr);
        for (const std::int64_t target : targets) {
            hwy::SetSupportedTargetsForTest(target);
            SCOPED_TRACE(hwy::TargetName(target));
            const BitmapHandle engine =
                Drawn(&Render, c, wanted.paint, wanted.kind, wanted.smooth, nullptr);
            const Difference difference = Compare(engine.get(), reference.get());
            EXPECT_LE(difference.largest, wanted.largest);
            EXPECT_LT(difference.share, wanted.share);
        }
        if (c.size.width > 1000) {
            break;
        }
    }
    hwy::SetSupportedTargetsForTest(0);
}

TEST(Engine, AgreesWithThePlainLoops) {
    for (const Case& c : Cases()) {
        ExpectClose(c, {0});
    }
}

TEST(Engine, AgreesOnEveryInstructionSet) {
    const std::int64_t supported = hwy::SupportedTargets();
    const std::vector<std::int64_t> targets = hwy::SupportedAndGeneratedTargets();
    for (const Case& c : Cases()) {
        if (c.size.width <= 301) {
            ExpectClose(c, targets);
        }
    }
    EXPECT_EQ(hwy::SupportedTargets(), supported);
}

TEST(Engine, WorkersAndTheirOrderChangeNoByte) {
    for (const Case& c : Cases()) {
        SCOPED_TRACE(c.name);
        if (c.size.width > 1000 && c.projection != Projection::Horizon) {
            continue;
        }
        const BitmapHandle serial = Drawn(&Render, c, &PhotoLike, SizeKind::Large, false, nullptr);
        ThreadRunner two(2);
        ThreadRunner three(3);
        testing::ShuffledRunner shuffled(7);
        for (BlockRunner* const runner :
             std::initializer_list<BlockRunner*>{&two, &three, &shuffled}) {
            const BitmapHandle other =
                Drawn(&Render, c, &PhotoLike, SizeKind::Large, false, runner);
            EXPECT_EQ(Compare(serial.get(), other.get()).largest, 0);
        }
    }
}

// Rows in pieces as one looks here and there, the result bitmap of another picture taken again.
TEST(RegionRenderer, RowsAreThoseOfTheWholePicture) {
    RegionRenderer part;
    for (const Case& c : Cases()) {
        SCOPED_TRACE(c.name);
        const BitmapHandle whole = Drawn(&Render, c, &PhotoLike, SizeKind::Large, false, nullptr);
        const BitmapHandle source = PhotoLike(c.size);
        ImageRecord record = FisheyeRecord();
        record.Landscape = c.size.width >= c.size.height;
        c.change(record);
        part.Start(c.projection, record, source.get());
        const int half = c.size.height / 2;
        part.DrawSome({half - 1, half}, std::chrono::hours(1));
        EXPECT_TRUE(part.Has(half) && part.Has(half - 1) && !part.Has(half - 2));
        part.DrawSome({-5, c.size.height + 5}, std::chrono::hours(1));
        EXPECT_EQ(Compare(part.Result(), whole.get()).largest, 0);
    }
}

TEST(RegionRenderer, DrawsFromTheMiddleAndForgetsWithANewStart) {
    const BitmapHandle source = PhotoLike({301, 200});
    RegionRenderer part;
    part.Start(Projection::Horizon, FisheyeRecord(), source.get());
    const RowSpan one = part.DrawSome({40, 60}, std::chrono::microseconds(0));
    EXPECT_EQ(std::pair(one.first, one.last), std::pair(50, 50));
    const RowSpan rest = part.DrawSome({49, 51}, std::chrono::hours(1));
    EXPECT_EQ(std::pair(rest.first, rest.last), std::pair(49, 51));
    EXPECT_LT(part.DrawSome({49, 51}, std::chrono::hours(1)).last, 0);
    part.Start(Projection::Varnel, FisheyeRecord(), source.get());
    EXPECT_FALSE(part.Has(50));
    ImageRecord impossible = FisheyeRecord();
    impossible.Ratio = 0.0F;
    EXPECT_THROW(part.Start(Projection::Varnel, impossible, source.get()), RunTimeError);
    EXPECT_EQ(part.Result(), nullptr);
}

TEST(Engine, AfterAFailureTheResultIsTheSource) {
    for (const Projection projection : AllProjections()) {
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = PhotoLike({301, 200});
        bitmaps.ResultBitmap = Flat({301, 200});
        ImageRecord record = FisheyeRecord();
        record.Ratio = 0.0F;
        record.SensorWidth = 0.0F;
        SilentProgress silent;
        RenderContext context{bitmaps};
        EXPECT_THROW(Render(projection, record, SizeKind::Large, silent, context), RunTimeError);
        EXPECT_EQ(Compare(bitmaps.ResultBitmap.get(), bitmaps.FullSourceBitmap.get()).largest, 0);
    }
}

TEST(ThreadRunner, WhatABlockThrowsReachesTheCallerAndTheNextRunIsWhole) {
    ThreadRunner runner(3);
    EXPECT_THROW(runner.Run(100,
                            [](int n) {
                                if (n == 7) {
                                    throw std::bad_alloc();
                                }
                            }),
                 std::bad_alloc);
    std::atomic<int> runs = 0;
    runner.Run(50, [&](int) { ++runs; });
    EXPECT_EQ(runs, 50);
}

TEST(ThreadRunner, SeveralCallersShareItsCores) {
    ThreadRunner runner(2);
    std::atomic<int> busy = 0, most = 0, done = 0;
    const std::function<void(int)> block = [&](int) {
        const int now = ++busy;
        most = std::max(most.load(), now);
        std::this_thread::sleep_for(std::chrono::microseconds(200));
        --busy;
        ++done;
    };
    std::thread other([&] {
        for (int n = 0; n < 20; ++n) {
            const CoreTaken core(runner);
            runner.Run(3, block);
            const CoreLent lent(runner);
        }
    });
    for (int n = 0; n < 40; ++n) {
        runner.Run(4, block);
    }
    runner.GiveCore();
    other.join();
    EXPECT_EQ(done, 20 * 3 + 40 * 4);
    EXPECT_EQ(most, 2);
}

TEST(ThreadRunner, RunsEachBlockOnceAndMayBeUsedAgain) {
    ThreadRunner runner(3);
    for (const int blocks : {0, 1, 2, 100}) {
        std::vector<std::atomic<int>> runs(static_cast<std::size_t>(blocks));
        runner.Run(blocks, [&](int n) { ++runs[static_cast<std::size_t>(n)]; });
        for (const auto& count : runs) {
            EXPECT_EQ(count, 1);
        }
    }
}

}  // namespace
}  // namespace varnel
