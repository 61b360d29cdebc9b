// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstdio>
#include <ctime>

#include "bench/remap/render/fine_views.h"
#include "bench/remap/render/peer_remap.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/record_maps.h"

namespace varnel::bench {

namespace {

constexpr PixelSize photoSize{6000, 4000};
constexpr int rounds = 5;

BitmapHandle Grain(PixelFormat format) {
    BitmapHandle bitmap = NewBitmap(photoSize, format);
    unsigned grain = 1;
    for (int y = 0; y < photoSize.height; ++y) {
        for (std::uint8_t& byte : bitmap->ScanLine(y)) {
            grain = grain * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(120 + (grain >> 27) + ((y / 40) % 2) * 60);
        }
    }
    return bitmap;
}

// Processor seconds of the fastest of all runs so far.
template <class Function>
void Time(double& least, const Function& run) {
    const std::clock_t start = std::clock();
    run();
    least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
}

struct View {
    const char* name;
    Projection projection;
    float outputAov;
};

// In turns, so that what else runs slows all of them.
void CompareView(const View& view, Bitmaps& bytes, Bitmaps& words) {
    const auto draw = [&view](Bitmaps& bitmaps, SamplingKind sampling) {
        SilentProgress silent;
        RenderContext context{bitmaps};
        Render(view.projection, WideRecord(view.outputAov, sampling), SizeKind::Large, silent,
               context);
    };
    double classic = 1e9;
    double fine = 1e9;
    double deep = 1e9;
    for (int round = 0; round < rounds; ++round) {
        Time(classic, [&] { draw(bytes, SamplingKind::Classic); });
        Time(fine, [&] { draw(bytes, SamplingKind::Fine); });
        Time(deep, [&] { draw(words, SamplingKind::Fine); });
    }
    std::printf("%-16s classic %.3f s, fine %.3f s (%.2f), fine of 16 bits %.3f s (%.2f of 8)\n",
                view.name, classic, fine, fine / classic, deep, deep / fine);
}

#ifdef VARNEL_PEER
void ComparePeer(Bitmaps& bytes) {
    const ImageRecord record = WideRecord(120.0F, SamplingKind::Fine);
    const std::size_t size = bytes.FullSourceBitmap->Pitch() * std::size_t{photoSize.height};
    std::vector<std::uint8_t> source(bytes.FullSourceBitmap->Bits(),
                                     bytes.FullSourceBitmap->Bits() + size);
    std::vector<std::uint8_t> result(size);
    const PeerLanczos peer(RectilinearViewOf(record, FramesOf(record, photoSize)));
    double fine = 1e9;
    double lanczos = 1e9;
    for (int round = 0; round < rounds; ++round) {
        Time(fine, [&] {
            SilentProgress silent;
            RenderContext context{bytes};
            Render(Projection::Rectilinear, record, SizeKind::Large, silent, context);
        });
        Time(lanczos, [&] { peer.Draw(source.data(), result.data()); });
    }
    std::printf("%-16s fine %.3f s, OpenCV's Lanczos with its map ready %.3f s (%.2f)\n",
                "Rectilinear 120", fine, lanczos, fine / lanczos);
}
#else
void ComparePeer(Bitmaps& /*bytes*/) {}
#endif

}  // namespace

void CompareTimes(std::string_view start) {
    Bitmaps bytes;
    bytes.FullSourceBitmap = Grain(PixelFormat::Bgr8);
    Bitmaps words;
    words.FullSourceBitmap = Grain(PixelFormat::Bgr16);
    for (const View& view : {View{"Rectilinear 120", Projection::Rectilinear, 120.0F},
                             View{"Rectilinear 90", Projection::Rectilinear, 90.0F},
                             View{"Varnel", Projection::Varnel, 90.0F},
                             View{"Equidistance", Projection::Equidistance, 90.0F},
                             View{"Horizon", Projection::Horizon, 90.0F}}) {
        if (std::string_view(view.name).starts_with(start)) {
            CompareView(view, bytes, words);
        }
    }
    if (start.empty() || start == "OpenCV") {
        ComparePeer(bytes);
    }
}

}  // namespace varnel::bench
