// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// make_inputs FOLDER COUNT
// Writes photo.jpg, 6000 x 4000 at quality 95 with 4:2:0 colour, about 8 MB as a camera's is:
// gradients, octaves of texture, hard edges and noise; and photo16.tif, the same with noise in 16
// bits, deflated. COUNT pieces of it each of 600 x 400 and of
// 1200 x 800 go into the folders small and middle. The same on every machine but for rounding.
// make_inputs --pieces WIDTH FOLDER COUNT
// Writes pieces alone, of that width, into the folder.

#include <FreeImage.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

constexpr int width = 6000;
constexpr int height = 4000;

std::uint32_t Hash(std::uint32_t x, std::uint32_t y, std::uint32_t kind) {
    std::uint32_t h = x * 0x9E3779B1U ^ y * 0x85EBCA77U ^ kind * 0xC2B2AE3DU;
    h = (h ^ (h >> 15)) * 0x2C1B3C6DU;
    h = (h ^ (h >> 12)) * 0x297A2D39U;
    return h ^ (h >> 15);
}

// -1 to 1.
float Grain(int x, int y, std::uint32_t kind) {
    return static_cast<float>(
               Hash(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y), kind) >> 8) /
               8388608.0F -
           1.0F;
}

// Grains so many pixels apart, smoothly joined.
float Texture(int x, int y, int spacing, std::uint32_t kind) {
    const int column = x / spacing;
    const int row = y / spacing;
    const float u = static_cast<float>(x % spacing) / static_cast<float>(spacing);
    const float v = static_cast<float>(y % spacing) / static_cast<float>(spacing);
    const float across = u * u * (3.0F - 2.0F * u);
    const float up = v * v * (3.0F - 2.0F * v);
    const float low = std::lerp(Grain(column, row, kind), Grain(column + 1, row, kind), across);
    const float high =
        std::lerp(Grain(column, row + 1, kind), Grain(column + 1, row + 1, kind), across);
    return std::lerp(low, high, up);
}

float Brightness(int x, int y) {
    float sum = 70.0F + 100.0F * static_cast<float>(y) / height;
    float strength = 24.0F;
    std::uint32_t kind = 1;
    for (int spacing = 512; spacing >= 8; spacing /= 2) {  // seven octaves
        sum += strength * Texture(x, y, spacing, kind++);
        strength *= 0.62F;
    }
    // Walls with windows.
    const bool wall =
        Hash(static_cast<std::uint32_t>(x / 500), static_cast<std::uint32_t>(y / 400), 77) % 3 == 0;
    if (wall) {
        sum += x % 100 < 45 && y % 80 < 50 ? 45.0F : -30.0F;
    }
    return sum;
}

BYTE Level(float value) {
    return static_cast<BYTE>(std::clamp(std::lround(value), 0L, 255L));
}

void Paint(FIBITMAP* photo) {
    constexpr float noise = 4.3F;
    for (int y = 0; y < height; ++y) {
        BYTE* to = FreeImage_GetScanLine(photo, y);
        for (int x = 0; x < width; ++x, to += 3) {
            const float light = Brightness(x, y) + noise * (Grain(x, y, 91) + Grain(x, y, 92));
            const float tint = 25.0F * Texture(x, y, 256, 93);
            to[FI_RGBA_BLUE] = Level(light + tint + noise * Grain(x, y, 94));
            to[FI_RGBA_GREEN] = Level(light);
            to[FI_RGBA_RED] = Level(light - tint + noise * Grain(x, y, 95));
        }
    }
}

// Of the levels of a photo of 8 bits, with noise below them.
bool SaveDeep(FIBITMAP* photo, const std::filesystem::path& file) {
    FIBITMAP* const deep = FreeImage_AllocateT(FIT_RGB16, width, height, 48);
    for (int y = 0; y < height; ++y) {
        const BYTE* from = FreeImage_GetScanLine(photo, y);
        auto* to = reinterpret_cast<FIRGB16*>(FreeImage_GetScanLine(deep, y));
        for (int x = 0; x < width; ++x, from += 3, ++to) {
            const auto below = [&](std::uint32_t kind) {
                return Hash(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y), kind) %
                       256;
            };
            to->red = static_cast<WORD>(from[FI_RGBA_RED] * 256U + below(96));
            to->green = static_cast<WORD>(from[FI_RGBA_GREEN] * 256U + below(97));
            to->blue = static_cast<WORD>(from[FI_RGBA_BLUE] * 256U + below(98));
        }
    }
    const bool good = FreeImage_Save(FIF_TIFF, deep, file.c_str(), TIFF_ADOBE_DEFLATE) != 0;
    FreeImage_Unload(deep);
    return good;
}

bool Save(FIBITMAP* bitmap, const std::filesystem::path& file) {
    return FreeImage_Save(FIF_JPEG, bitmap, file.c_str(), 95 | JPEG_SUBSAMPLING_420) != 0;
}

// Pieces from places all over the photo.
bool Cut(FIBITMAP* photo, const std::filesystem::path& folder, int pieceWidth, int count) {
    std::filesystem::create_directories(folder);
    const int pieceHeight = pieceWidth * 2 / 3;
    bool good = true;
    for (int n = 0; n < count; ++n) {
        const int left = n * 97 % (width - pieceWidth);
        const int top = n * 61 % (height - pieceHeight);
        FIBITMAP* const piece =
            FreeImage_Copy(photo, left, top, left + pieceWidth, top + pieceHeight);
        good = Save(piece, folder / ("piece" + std::to_string(10000 + n) + ".jpg")) && good;
        FreeImage_Unload(piece);
    }
    return good;
}

}  // namespace

int main(int argc, char** argv) {
    const bool piecesAlone = argc == 5 && std::string(argv[1]) == "--pieces";
    if (argc != 3 && !piecesAlone) {
        std::fputs("make_inputs FOLDER COUNT\nmake_inputs --pieces WIDTH FOLDER COUNT\n", stderr);
        return 2;
    }
    const std::filesystem::path folder = argv[argc - 2];
    const int count = std::stoi(argv[argc - 1]);
    FIBITMAP* const photo = FreeImage_Allocate(width, height, 24);
    Paint(photo);
    if (piecesAlone) {
        return Cut(photo, folder, std::stoi(argv[2]), count) ? 0 : 1;
    }
    const bool good =
        Save(photo, folder / "photo.jpg") && SaveDeep(photo, folder / "photo16.tif") &&
        Cut(photo, folder / "small", 600, count) && Cut(photo, folder / "middle", 1200, count);
    return good ? 0 : 1;
}
