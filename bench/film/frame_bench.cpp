// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The remap of a 4K frame (3840 x 2160, 4:2:0) on two cores: with settings that stay and with
// settings that change for each frame. Read the figures as ratios within one run: machines differ
// and are noisy.

#include <benchmark/benchmark.h>

#include "base/thread_runner.h"
#include "film/frames/frame_buffer.h"
#include "film/planes/frame_remap.h"

namespace varnel {
namespace {

constexpr int cores = 2;

FrameFormat Format(int bits, PixelSize size = {3840, 2160}) {
    FrameFormat format;
    format.size = size;
    format.bits = static_cast<std::uint8_t>(bits);
    return format;
}

// An action camera's wide view.
ImageRecord Record() {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 6.17F;
    record.SensorHeight = 4.55F;
    record.LensMapScale = 4.2F;
    record.LensMapFactor = 0.5F;
    record.ImageCircleRadius = 3.9F;
    record.Ratio = 83.0F;
    record.InputAOV = 120.0F;
    record.OutputAOV = 100.0F;
    record.EffectVarnel = 100.0F;
    record.EffectRectilinear = 100.0F;
    record.RotateX = 3.0F;
    return record;
}

FrameBuffer Texture(const FrameFormat& format) {
    FrameBuffer frame(format);
    frame.Blank();
    std::uint32_t grain = 1;
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const Plane& its = frame.Target().planes[static_cast<std::size_t>(plane)];
        const PixelSize size = PlaneSize(format, plane);
        for (int row = 0; row < size.height; ++row) {
            for (int n = 0; n < size.width * BytesPerSample(format); n += BytesPerSample(format)) {
                grain = grain * 1664525U + 1013904223U;
                its.first[row * its.pitch + n] = static_cast<std::byte>(60U + (grain >> 26));
            }
        }
    }
    return frame;
}

void Draw(benchmark::State& state, Projection projection, int bits) {
    ThreadRunner runner(cores);
    const FrameBuffer source = Texture(Format(bits));
    FrameRemap remap;
    remap.Set(projection, Record(), source.Format(), runner);
    const FrameBuffer result(remap.ResultFormat());
    for ([[maybe_unused]] auto _ : state) {
        remap.Draw(source.View(), result.Target(), runner);
    }
}

void SetAndDraw(benchmark::State& state, Projection projection, int bits) {
    ThreadRunner runner(cores);
    const FrameBuffer source = Texture(Format(bits));
    ImageRecord record = Record();
    FrameRemap remap;
    remap.Set(projection, record, source.Format(), runner);
    const FrameBuffer result(remap.ResultFormat());
    for ([[maybe_unused]] auto _ : state) {
        record.RotateY += 0.01F;
        record.OutputAOV -= 0.001F;
        record.InputAOV -= 0.001F;
        record.EffectVarnel -= 0.001F;
        remap.Set(projection, record, source.Format(), runner);
        remap.Draw(source.View(), result.Target(), runner);
    }
}

}  // namespace
}  // namespace varnel

int main(int argc, char** argv) {
    using namespace varnel;
    for (const Projection projection : AllProjections()) {
        const std::string name = KeyOf(projection).toStdString();
        for (const int bits : {8, 10}) {
            const std::string its = name + "/" + std::to_string(bits) + "bit";
            benchmark::RegisterBenchmark((its + "/fixed").c_str(), Draw, projection, bits)
                ->UseRealTime()
                ->MeasureProcessCPUTime()
                ->Unit(benchmark::kMillisecond);
            benchmark::RegisterBenchmark((its + "/moving").c_str(), SetAndDraw, projection, bits)
                ->UseRealTime()
                ->MeasureProcessCPUTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
