// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG of 24 megapixels: the library's coding beside ours, the same picture in memory.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>

#include "base/thread_runner.h"
#include "bench/pictures.h"
#include "decoder/formats/jpeg_pixels.h"
#include "decoder/formats/library_reader.h"
#include "decoder/formats/picture_file.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/jpeg_coder.h"

namespace varnel {
namespace {

constexpr PixelSize pictureSize{6000, 4000};

const Bitmap* Rings() {
    static const BitmapHandle rings = bench::Rings(pictureSize);
    return rings.get();
}

void EncodeByLibrary(benchmark::State& state) {
    const int quality = static_cast<int>(state.range(0));
    qsizetype bytes = 0;
    for (auto _ : state) {
        bytes = LibraryFile(FIF_JPEG, Rings(), quality).bytes.size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

void EncodeDirectly(benchmark::State& state) {
    const int quality = static_cast<int>(state.range(0));
    ThreadRunner runner(static_cast<int>(state.range(1)));
    qsizetype bytes = 0;
    for (auto _ : state) {
        bytes = EncodeJpeg(Rings(), {OutputType::Jpeg, quality}, {.runner = &runner}).bytes.size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

QByteArray Photo(const benchmark::State& state) {
    return LibraryFile(FIF_JPEG, Rings(), static_cast<int>(state.range(0))).bytes;
}

File Opened(QByteArray& photo) {
    return {fmemopen(photo.data(), photo.size(), "rb"), &std::fclose};
}

void DecodeByLibrary(benchmark::State& state) {
    QByteArray photo = Photo(state);
    const File file = Opened(photo);
    const PictureFile picture(file.get());
    for (auto _ : state) {
        benchmark::DoNotOptimize(LibraryReader(picture).Whole().Exists());
    }
}

// Into memory that is there already.
void DecodeDirectly(benchmark::State& state) {
    QByteArray photo = Photo(state);
    const File file = Opened(photo);
    const BitmapHandle bitmap = NewBitmap(pictureSize);
    for (auto _ : state) {
        if (!ReadJpegPixels(file.get(), pictureSize,
                            {bitmap->SharedPixels().get(), RowPitch(pictureSize.width)})) {
            state.SkipWithError("not decoded");
        }
    }
}

constexpr std::int64_t progressive = 90 | JPEG_PROGRESSIVE;

BENCHMARK(EncodeByLibrary)->Arg(95)->Arg(75)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(EncodeDirectly)
    ->ArgsProduct({{95, 75}, {1, 2}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(DecodeByLibrary)->Arg(95)->Arg(progressive)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(DecodeDirectly)->Arg(95)->Arg(progressive)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace varnel

BENCHMARK_MAIN();
