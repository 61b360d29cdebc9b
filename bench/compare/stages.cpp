// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// stages FOLDER FILE...
// Decodes, remaps and encodes each file with Varnel's own libraries, one after the other on one
// thread in one process, and writes nothing but FOLDER/cpu: the seconds of processor time of the
// three stages alone, added up. That is what a batch of the same files costs at least.

#include <QString>
#include <cstdio>
#include <ctime>

#include "bench/compare/fisheye_record.h"
#include "decoder/formats/decode_picture.h"
#include "decoder/request/picture_limits.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/render/render.h"

namespace varnel::bench {
namespace {

struct Spent {
    double decode = 0.0;
    double remap = 0.0;
    double encode = 0.0;
    double Sum() const { return decode + remap + encode; }
};

double Now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

bool Convert(const char* name, Bitmaps& bitmaps, Spent& spent) {
    const double start = Now();
    std::FILE* const file = std::fopen(name, "rb");
    if (file == nullptr) {
        return false;
    }
    bitmaps.FullSourceBitmap =
        DecodePicture(file, {QString::fromLocal8Bit(name)}, MachineMemory()).bitmap;
    std::fclose(file);
    if (!bitmaps.FullSourceBitmap) {
        return false;
    }
    const double decoded = Now();
    RenderContext context{bitmaps};
    SilentProgress silent;
    Render(Projection::Rectilinear, FisheyeRecord(), SizeKind::Large, silent, context);
    const double remapped = Now();
    const bool encoded =
        !EncodeBitmap({OutputType::Jpeg, 95}, bitmaps.ResultBitmap.get()).bytes.isEmpty();
    spent.decode += decoded - start;
    spent.remap += remapped - decoded;
    spent.encode += Now() - remapped;
    return encoded;
}

}  // namespace
}  // namespace varnel::bench

int main(int argc, char** argv) {
    using namespace varnel;
    PrepareDecoding();
    Bitmaps bitmaps;
    bench::Spent spent;
    for (int n = 2; n < argc; ++n) {
        if (!bench::Convert(argv[n], bitmaps, spent)) {
            std::fprintf(stderr, "%s: not converted\n", argv[n]);
            return 1;
        }
    }
    std::fprintf(stderr, "decode %.3f, remap %.3f, encode %.3f s\n", spent.decode, spent.remap,
                 spent.encode);
    std::FILE* const figure =
        argc > 2 ? std::fopen((std::string(argv[1]) + "/cpu").c_str(), "w") : nullptr;
    if (figure == nullptr) {
        return 2;
    }
    std::fprintf(figure, "%.4f\n", spent.Sum());
    return std::fclose(figure) == 0 ? 0 : 1;
}
