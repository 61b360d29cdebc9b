// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF files with LZW: the image library's coder and ours, on one thread and on two. The names of
// photos may be given after the options; without them a made-up photo of 24 megapixels is coded.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/tiff_coder.h"
#include "remap/image/freeimage_bitmap.h"

namespace varnel {
namespace {

// Soft rings with the grain of a sensor: coded to about half the bytes, as a photo is.
BitmapHandle Rings(PixelSize size) {
    BitmapHandle bitmap = NewBitmap(size);
    unsigned grain = 1;
    const auto noise = [&grain] {
        grain = grain * 1664525U + 1013904223U;
        return static_cast<double>(grain >> 24) / 256.0;
    };
    for (int y = 0; y < size.height; ++y) {
        const auto row = ScanLine(bitmap.get(), y);
        for (std::size_t x = 0; x < row.size(); ++x) {
            const double ring = std::sin(std::hypot(static_cast<double>(x) / 3.0, y) / 50.0);
            const double level = 128 + ring * 90 + 3 * (noise() + noise() + noise() - 1.5);
            row[x] = static_cast<std::uint8_t>(level);
        }
    }
    return bitmap;
}

void Library(benchmark::State& state, const Bitmap* photo) {
    for (auto _ : state) {
        const EncodedBitmap file = LibraryFile(FIF_TIFF, photo, TIFF_LZW);
        state.counters["MB"] = static_cast<double>(file.bytes.size()) / 1e6;
    }
}

void Ours(benchmark::State& state, const Bitmap* photo) {
    ThreadRunner runner(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const EncodedBitmap file = EncodeTiff(photo, OutputType::Tiff, {.runner = &runner});
        state.counters["MB"] = static_cast<double>(file.bytes.size()) / 1e6;
    }
}

void Measure(const std::string& name, const Bitmap* photo) {
    const auto set = [](benchmark::internal::Benchmark* timing) {
        timing->Unit(benchmark::kMillisecond)->UseRealTime();
    };
    set(benchmark::RegisterBenchmark((name + "/library").c_str(), Library, photo));
    set(benchmark::RegisterBenchmark((name + "/ours/threads").c_str(), Ours, photo)
            ->Arg(1)
            ->Arg(2));
}

}  // namespace
}  // namespace varnel

int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    std::vector<varnel::BitmapHandle> photos;
    for (int n = 1; n < count; ++n) {
        photos.push_back(varnel::TakeOver(
            varnel::LibraryBitmap(FreeImage_Load(FreeImage_GetFileType(words[n]), words[n]))));
        if (!photos.back()) {
            std::fprintf(stderr, "%s: not loaded\n", words[n]);
            return 1;
        }
        varnel::Measure(words[n], photos.back().get());
    }
    if (photos.empty()) {
        photos.push_back(varnel::Rings({6000, 4000}));
        varnel::Measure("rings", photos.back().get());
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
