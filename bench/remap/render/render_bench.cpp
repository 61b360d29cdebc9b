// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine beside the plain loops and across picture sizes. Read the figures as ratios within one
// run: machines differ and are noisy.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "base/thread_runner.h"
#include "bench/remap/render/peer_remap.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/record_maps.h"
#include "remap/render/drawn_rows.h"
#include "remap/render/reference/render.h"
#include "remap/render/reference/render_stretch.h"

namespace varnel {
namespace {

using Renderer = void (*)(Projection, const ImageRecord&, SizeKind, RenderProgress&,
                          RenderContext&);

// How the photo is looked at: turned and shifted or not, and how wide, degrees. What it is made of.
// And a turn about one axis more, degrees.
struct View {
    bool moved = false;
    float outputAov = 90.0F;
    PixelFormat format = PixelFormat::Bgr8;
    float tilt = 0.0F;
    float pan = 0.0F;
    float roll = 0.0F;
};

ImageRecord FisheyeRecord(const View& view) {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 36.0F;
    record.SensorHeight = 24.0F;
    record.LensMapScale = 30.59F;  // a 15 mm equisolid lens
    record.LensMapFactor = 0.5F;
    record.ImageCircleRadius = 21.63F;
    record.Ratio = 83.2F;
    record.InputAOV = 147.0F;
    record.OutputAOV = view.outputAov;
    record.EffectVarnel = 100.0F;
    record.EffectRectilinear = 100.0F;
    record.RotateX = view.tilt + (view.moved ? 10.0F : 0.0F);
    record.RotateY = view.pan - (view.moved ? 20.0F : 0.0F);
    record.RotateZ = view.roll + (view.moved ? 5.0F : 0.0F);
    record.TranslateX = view.moved ? 2.0F : 0.0F;
    return record;
}

BitmapHandle Texture(PixelSize size, PixelFormat format = PixelFormat::Bgr8) {
    BitmapHandle bitmap = NewBitmap(size, format);
    unsigned grain = 1;
    const auto level = [&](int y) {
        grain = grain * 1664525U + 1013904223U;
        return static_cast<std::uint8_t>(120 + (grain >> 27) + ((y / 40) % 2) * 60);
    };
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* pixel = ScanLine(bitmap.get(), y).data();
        for (int x = 0; x < size.width; ++x, pixel += PixelStep(format)) {
            PutColour(pixel, {level(y), level(y), level(y), 255}, format);
        }
    }
    return bitmap;
}

// The size of a 3:2 picture with so many megapixels.
PixelSize Megapixels(double millions) {
    const double height = std::sqrt(millions * 1e6 / 1.5);
    return {static_cast<std::int32_t>(std::lround(height * 1.5)),
            static_cast<std::int32_t>(std::lround(height))};
}

void Draw(benchmark::State& state, Renderer renderer, Projection projection, const View& view,
          PixelSize size, SizeKind kind, int workers) {
    Bitmaps bitmaps;
    (kind == SizeKind::Thumbnails ? bitmaps.PreviewSourceBitmap : bitmaps.FullSourceBitmap) =
        Texture(size, view.format);
    ThreadRunner runner(workers);
    RenderContext context{bitmaps, [] { return true; }, &runner};
    SilentProgress silent;
    ImageRecord record = FisheyeRecord(view);
    for (auto _ : state) {
        // new settings each time
        record.OutputAOV += record.OutputAOV == view.outputAov ? -1.0F : 1.0F;
        renderer(projection, record, kind, silent, context);
    }
    state.SetItemsProcessed(state.iterations() * size.width * size.height);
}

void Register(const std::string& name, Renderer renderer, Projection projection, const View& view,
              PixelSize size, SizeKind kind, int workers) {
    benchmark::RegisterBenchmark(name.c_str(), &Draw, renderer, projection, view, size, kind,
                                 workers)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

// Band after band, as the encoders ask for them.
void DrawBands(benchmark::State& state, Projection projection, const View& view, PixelSize size) {
    constexpr int bandRows = 128;
    const BitmapHandle photo = Texture(size, view.format);
    ImageRecord record = FisheyeRecord(view);
    for (auto _ : state) {
        record.OutputAOV += record.OutputAOV == view.outputAov ? -1.0F : 1.0F;
        const DrawnRows rows(projection, record, *photo);
        for (int row = 0; row < size.height; row += bandRows) {
            rows.WithRows({row, std::min(row + bandRows, size.height) - 1},
                          [](const Bitmap& band) { benchmark::DoNotOptimize(&band); });
        }
    }
}

void RegisterBands(PixelSize size) {
    for (const Projection projection : AllProjections()) {
        for (const bool moved : {false, true}) {
            if (!moved || InfoOf(projection).frame.turns) {
                const std::string name =
                    "bands/24MP/" + ToText(projection).toStdString() + (moved ? " turned" : "");
                benchmark::RegisterBenchmark(name.c_str(), &DrawBands, projection, View{moved},
                                             size)
                    ->Unit(benchmark::kMillisecond);
            }
        }
    }
}

using Stretcher = void (*)(const StretchCurve&, SizeKind, RenderProgress&, RenderContext&);

void Stretch(benchmark::State& state, Stretcher stretcher, PixelSize size, int workers) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = Texture(size);
    ThreadRunner runner(workers);
    RenderContext context{.bitmaps = bitmaps, .runner = &runner};
    SilentProgress silent;
    StretchCurve curve{0.4, 0.1};
    for (auto _ : state) {
        curve.strength = -curve.strength;  // new settings each time, widened and narrowed
        stretcher(curve, SizeKind::Large, silent, context);
    }
}

void RegisterStretch(const std::string& name, Stretcher stretcher, PixelSize size, int workers) {
    benchmark::RegisterBenchmark(name.c_str(), &Stretch, stretcher, size, workers)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

#ifdef VARNEL_PEER
void DrawWithPeer(benchmark::State& state, PixelSize size, int threads) {
    const std::size_t bytes =
        static_cast<std::size_t>(size.width) * 3 * static_cast<std::size_t>(size.height);
    std::vector<std::uint8_t> source(bytes, 100);
    std::vector<std::uint8_t> result(bytes);
    RectilinearView view = RectilinearViewOf(FisheyeRecord({}), FramesOf(FisheyeRecord({}), size));
    for (auto _ : state) {
        view.outputAov = view.outputAov == 90.0F ? 91.0F : 90.0F;
        bench::PeerRectilinear(view, source.data(), result.data(), threads);
    }
}

void RegisterPeer(PixelSize size) {
    for (const int threads : {1, 2}) {
        const std::string name = "OpenCV map and remap/24MP/" + std::to_string(threads) + " cores";
        benchmark::RegisterBenchmark(name.c_str(), &DrawWithPeer, size, threads)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
}
#else
void RegisterPeer(PixelSize /*size*/) {}
#endif

// All that can be turned, and the widest view of each.
void RegisterTurned(PixelSize size) {
    for (const int cores : {1, 2}) {
        const std::string start =
            "engine/24MP/" + std::to_string(cores) + (cores == 1 ? " core/" : " cores/");
        for (const Projection projection : AllProjections()) {
            const ProjectionInfo& row = InfoOf(projection);
            const std::string name = start + ToText(projection).toStdString();
            if (row.frame.turns) {
                Register(name + " turned", &Render, projection, {true}, size, SizeKind::Large,
                         cores);
            }
            if (row.Widest != nullptr) {
                Register(name + " widest", &Render, projection,
                         {true, row.Widest(FisheyeRecord({}))}, size, SizeKind::Large, cores);
            }
        }
    }
}

// About one axis each, straight ahead beside them.
void RegisterTurns(PixelSize size) {
    const auto add = [size](const std::string& name, const View& view) {
        Register("turns/24MP/" + name, &Render, Projection::Rectilinear, view, size,
                 SizeKind::Large, 1);
    };
    add("none", {});
    add("tilt 40", {.tilt = 40.0F});
    add("pan 40", {.pan = 40.0F});
    for (const int roll : {15, 45, 90}) {
        add("roll " + std::to_string(roll), {.roll = static_cast<float>(roll)});
    }
}

// The same photo in all depths, for each kind of map and of engine.
void RegisterDepths(PixelSize size) {
    const struct {
        const char* name;
        PixelFormat format;
    } depths[] = {{"8", PixelFormat::Bgr8},
                  {"16", PixelFormat::Bgr16},
                  {"16 alpha", PixelFormat::Bgra16},
                  {"float", PixelFormat::BgrFloat}};
    for (const Projection projection :
         {Projection::Rectilinear, Projection::Varnel, Projection::Horizon}) {
        for (const bool moved : {false, true}) {
            for (const auto& [depth, format] : depths) {
                const std::string name = "depth/24MP/" + ToText(projection).toStdString() +
                                         (moved ? " turned/" : "/") + depth;
                Register(name, &Render, projection, {moved, 90.0F, format}, size, SizeKind::Large,
                         1);
            }
        }
    }
}

void RegisterAll() {
    RegisterDepths(Megapixels(24.0));
    RegisterPeer(Megapixels(24.0));
    const PixelSize full = Megapixels(24.0);
    for (const Projection projection : AllProjections()) {
        const std::string name = ToText(projection).toStdString();
        Register("reference/24MP/" + name, &reference::Render, projection, {}, full,
                 SizeKind::Large, 1);
        Register("engine/24MP/1 core/" + name, &Render, projection, {}, full, SizeKind::Large, 1);
        Register("engine/24MP/2 cores/" + name, &Render, projection, {}, full, SizeKind::Large, 2);
    }
    RegisterTurned(full);
    RegisterTurns(full);
    RegisterBands(full);
    RegisterStretch("reference/24MP/Stretch", &reference::RenderStretch, full, 1);
    RegisterStretch("engine/24MP/1 core/Stretch", &RenderStretch, full, 1);
    RegisterStretch("engine/24MP/2 cores/Stretch", &RenderStretch, full, 2);
    for (const PixelSize box : {PixelSize{400, 300}, PixelSize{1000, 750}}) {
        for (const bool moved : {false, true}) {
            std::string view = std::to_string(box.width) + "x" + std::to_string(box.height);
            view += moved ? " turned" : "";
            Register("reference/preview/" + view, &reference::Render, Projection::Rectilinear,
                     {moved}, box, SizeKind::Thumbnails, 1);
            Register("engine/preview/" + view, &Render, Projection::Rectilinear, {moved}, box,
                     SizeKind::Thumbnails, 1);
        }
    }
    for (const double millions : {6.0, 12.0, 24.0, 48.0, 96.0}) {
        Register("engine/size/" + std::to_string(static_cast<int>(millions)) + "MP", &Render,
                 Projection::Rectilinear, {}, Megapixels(millions), SizeKind::Large, 1);
    }
}

}  // namespace
}  // namespace varnel

int main(int argc, char** argv) {
    varnel::RegisterAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
