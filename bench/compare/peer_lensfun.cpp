// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// peer_lensfun THREADS PROCESSES TYPE FOLDER FILE...
// The job on lensfun, which says where to read: the bilinear loop is ours, files are read and
// written by the image library (jpg at quality 95, tif with LZW).

#include <FreeImage.h>
#include <lensfun.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "bench/compare/view.h"

namespace {

struct Picture {
    explicit Picture(FIBITMAP* of)
        : bitmap(of),
          width(static_cast<int>(FreeImage_GetWidth(of))),
          height(static_cast<int>(FreeImage_GetHeight(of))) {}
    BYTE* Row(int y) const { return FreeImage_GetScanLine(bitmap, y); }

    FIBITMAP* bitmap;
    int width;
    int height;
};

lfLens Fisheye() {
    lfLens lens;
    lens.Type = LF_FISHEYE_EQUISOLID;
    lens.CropFactor = 1.0F;
    lens.AspectRatio = 1.5F;
    lens.MinFocal = lens.MaxFocal = static_cast<float>(varnel::bench::focalLength);
    return lens;
}

// Weights of 1/256; black outside.
void Bilinear(const Picture& source, float x, float y, BYTE* to) {
    const int left = static_cast<int>(std::floor(x));
    const int below = static_cast<int>(std::floor(y));
    if (left < 0 || below < 0 || left + 1 >= source.width || below + 1 >= source.height) {
        to[0] = to[1] = to[2] = 0;
        return;
    }
    const int across = static_cast<int>((x - static_cast<float>(left)) * 256.0F);
    const int up = static_cast<int>((y - static_cast<float>(below)) * 256.0F);
    const BYTE* const low = source.Row(below) + 3 * left;
    const BYTE* const high = source.Row(below + 1) + 3 * left;
    for (int c = 0; c < 3; ++c) {
        const int lower = low[c] * (256 - across) + low[c + 3] * across;
        const int upper = high[c] * (256 - across) + high[c + 3] * across;
        to[c] = static_cast<BYTE>((lower * (256 - up) + upper * up + 32768) >> 16);
    }
}

void DrawRows(const Picture& source, const Picture& view, int first, int end) {
    const lfLens lens = Fisheye();
    lfModifier modifier(&lens, 1.0F, source.width, source.height);
    const double zoom =
        varnel::bench::ViewFocal(source.width) / varnel::bench::SourceFocal(source.width);
    modifier.Initialize(&lens, LF_PF_U8, static_cast<float>(varnel::bench::focalLength), 8.0F,
                        1000.0F, static_cast<float>(zoom), LF_RECTILINEAR,
                        LF_MODIFY_GEOMETRY | LF_MODIFY_SCALE, false);
    std::vector<float> places(2 * static_cast<std::size_t>(source.width));
    for (int y = first; y < end; ++y) {
        modifier.ApplyGeometryDistortion(0.0F, static_cast<float>(y), source.width, 1,
                                         places.data());
        BYTE* to = view.Row(y);
        for (std::size_t x = 0; x < places.size(); x += 2, to += 3) {
            Bilinear(source, places[x], places[x + 1], to);
        }
    }
}

bool Convert(const std::string& file, const std::filesystem::path& target, int threads) {
    FIBITMAP* const loaded = FreeImage_Load(FIF_JPEG, file.c_str(), JPEG_ACCURATE);
    if (loaded == nullptr || FreeImage_GetBPP(loaded) != 24) {
        return false;
    }
    const Picture source(loaded);
    const Picture view(FreeImage_Allocate(source.width, source.height, 24));
    std::vector<std::jthread> workers;
    for (int n = 0; n < threads; ++n) {
        workers.emplace_back(DrawRows, source, view, source.height * n / threads,
                             source.height * (n + 1) / threads);
    }
    workers.clear();
    const FREE_IMAGE_FORMAT format = FreeImage_GetFIFFromFilename(target.c_str());
    const bool saved = FreeImage_Save(format, view.bitmap, target.c_str(),
                                      format == FIF_JPEG ? 95 : TIFF_LZW) != 0;
    FreeImage_Unload(view.bitmap);
    FreeImage_Unload(source.bitmap);
    return saved;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 6) {
        return 2;
    }
    const int threads = std::stoi(argv[1]);
    const int processes = std::stoi(argv[2]);
    const std::string type = argv[3];
    const std::filesystem::path folder = argv[4];
    int process = 0;
    while (process + 1 < processes && fork() != 0) {
        ++process;  // the parent ends up with the last share
    }
    bool good = true;
    for (int n = 5 + process; n < argc; n += processes) {
        const auto name = std::filesystem::path(argv[n]).stem().concat("." + type);
        good = Convert(argv[n], folder / name, threads) && good;
    }
    for (int status = 0; wait(&status) > 0;) {
        good = good && status == 0;
    }
    return good ? 0 : 1;
}
