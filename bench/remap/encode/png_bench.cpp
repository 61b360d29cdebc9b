// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// PNG files: the image library's coder and ours, on one thread and on two. The names of photos may
// be given after the options; without them a made-up photo of 24 megapixels is coded. "grown" is
// the file's size over the library's.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/png_coder.h"
#include "remap/image/freeimage_bitmap.h"

namespace varnel {
namespace {

// A disc of soft rings with a little grain on black, as a circular fisheye's picture is.
BitmapHandle Disc(PixelSize size) {
    BitmapHandle bitmap = NewBitmap(size);
    unsigned grain = 1;
    for (int y = 0; y < size.height; ++y) {
        const auto row = ScanLine(bitmap.get(), y);
        for (std::size_t x = 0; x < row.size(); ++x) {
            const double radius =
                std::hypot(static_cast<double>(x / 3) - size.width / 2.0, y - size.height / 2.0);
            grain = grain * 1664525U + 1013904223U;
            if (radius < size.width / 2.2) {
                const double level = 128 + std::sin(radius / 50.0) * 90 + (grain >> 30);
                row[x] = static_cast<std::uint8_t>(level);
            }
        }
    }
    return bitmap;
}

double MegabytesOf(const QByteArray& file) {
    return static_cast<double>(file.size()) / 1e6;
}

void Library(benchmark::State& state, const Bitmap* photo, double* megabytes) {
    for (auto _ : state) {
        *megabytes = MegabytesOf(LibraryFile(FIF_PNG, photo, 0).bytes);
    }
    state.counters["MB"] = *megabytes;
}

void Ours(benchmark::State& state, const Bitmap* photo, const double* libraryMegabytes, int level) {
    ThreadRunner runner(static_cast<int>(state.range(0)));
    OutputEncoding encoding(OutputType::Png);
    encoding.level = level;
    for (auto _ : state) {
        const EncodedBitmap file = EncodePng(photo, encoding, {.runner = &runner});
        state.counters["MB"] = MegabytesOf(file.bytes);
        state.counters["grown"] = MegabytesOf(file.bytes) / *libraryMegabytes;
    }
}

struct Photo {
    std::string name;
    BitmapHandle bitmap;
    double libraryMegabytes = 0.0;
};

void Measure(Photo& photo) {
    const auto set = [](benchmark::internal::Benchmark* timing) {
        return timing->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
    };
    set(benchmark::RegisterBenchmark((photo.name + "/library").c_str(), Library, photo.bitmap.get(),
                                     &photo.libraryMegabytes));
    const auto ours = [&](const std::string& row, int level) {
        return set(benchmark::RegisterBenchmark((photo.name + row + "/threads").c_str(), Ours,
                                                photo.bitmap.get(), &photo.libraryMegabytes,
                                                level));
    };
    ours("/ours", OutputEncoding::usualLevel)->Arg(1)->Arg(2);
    for (int level = 1; level <= OutputEncoding::mostLevel; ++level) {
        ours("/level " + std::to_string(level), level)->Arg(2);
    }
}

}  // namespace
}  // namespace varnel

int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    std::vector<varnel::Photo> photos;
    for (int n = 1; n < count; ++n) {
        const varnel::LibraryBitmap photo(
            FreeImage_Load(FreeImage_GetFileType(words[n]), words[n]));
        photos.push_back({words[n], varnel::TakeOver(varnel::LibraryBitmap(
                                        FreeImage_ConvertTo24Bits(photo.get())))});
        if (!photos.back().bitmap) {
            std::fprintf(stderr, "%s: not loaded\n", words[n]);
            return 1;
        }
    }
    if (photos.empty()) {
        photos.push_back({"disc", varnel::Disc({6000, 4000})});
    }
    for (varnel::Photo& photo : photos) {
        varnel::Measure(photo);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
