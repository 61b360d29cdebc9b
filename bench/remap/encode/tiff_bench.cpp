// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF files with LZW: the image library's coder and ours, on one thread and on two; ours of 16
// bits with each compression. The names of photos may be given after the options; without them a
// made-up photo of 24 megapixels is coded.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/tiff_coder.h"
#include "remap/image/freeimage_bitmap.h"
#include "remap/image/pixel_access.h"

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

// The same in 16 bits, with noise in the bits that are new.
BitmapHandle Deeper(const Bitmap& photo) {
    BitmapHandle deep = NewBitmap(photo.Size(), PixelFormat::Bgr16);
    unsigned grain = 1;
    for (int y = 0; y < photo.Size().height; ++y) {
        const auto row = photo.ScanLine(y);
        for (std::size_t n = 0; n < row.size(); ++n) {
            grain = grain * 1664525U + 1013904223U;
            PutSample(deep->ScanLine(y).data(), n,
                      static_cast<std::uint16_t>(row[n] * 256U + (grain >> 24)));
        }
    }
    return deep;
}

void Ours(benchmark::State& state, const Bitmap* photo, TiffCompression compression) {
    ThreadRunner runner(static_cast<int>(state.range(0)));
    OutputEncoding encoding(OutputType::Tiff);
    encoding.compression = compression;
    for (auto _ : state) {
        const EncodedBitmap file = EncodeTiff(photo, encoding, {.runner = &runner});
        state.counters["MB"] = static_cast<double>(file.bytes.size()) / 1e6;
    }
}

void Measure(const std::string& name, const Bitmap* photo, const Bitmap* deep) {
    const auto set = [](benchmark::internal::Benchmark* timing) {
        timing->Unit(benchmark::kMillisecond)->UseRealTime();
    };
    set(benchmark::RegisterBenchmark((name + "/library").c_str(), Library, photo));
    set(benchmark::RegisterBenchmark((name + "/ours/threads").c_str(), Ours, photo,
                                     TiffCompression::Lzw)
            ->Arg(1)
            ->Arg(2));
    for (const TiffCompression compression : {TiffCompression::Lzw, TiffCompression::Deflate,
                                              TiffCompression::Zstd, TiffCompression::None}) {
        const std::string row = name + "/16 bits/" + ToText(compression).toStdString();
        set(benchmark::RegisterBenchmark((row + "/threads").c_str(), Ours, deep, compression)
                ->Arg(1)
                ->Arg(2));
    }
}

}  // namespace
}  // namespace varnel

int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    std::vector<varnel::BitmapHandle> photos;
    const auto measure = [&](const std::string& name, varnel::BitmapHandle photo) {
        photos.push_back(varnel::Deeper(*photo));
        photos.push_back(std::move(photo));
        varnel::Measure(name, photos.back().get(), photos[photos.size() - 2].get());
    };
    for (int n = 1; n < count; ++n) {
        varnel::BitmapHandle photo = varnel::TakeOver(
            varnel::LibraryBitmap(FreeImage_Load(FreeImage_GetFileType(words[n]), words[n])));
        if (!photo) {
            std::fprintf(stderr, "%s: not loaded\n", words[n]);
            return 1;
        }
        measure(words[n], std::move(photo));
    }
    if (photos.empty()) {
        measure("rings", varnel::Rings({6000, 4000}));
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
