// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos in printing inks.
#include <gtest/gtest.h>
#include <stdio.h>

#include <jpeglib.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

#include "decoder/decode_picture.h"
#include "tests/support/bitmaps.h"
#include "tests/support/jpeg_files.h"
#include "tests/support/profiles.h"

namespace varnel {
namespace {

// Inks in percent and what becomes of them by the profile: L* is 100 - black - 0.4 cyan.
constexpr struct {
    std::array<int, 4> inks;
    int grey;
} colours[] = {{{0, 0, 0, 0}, 255},      // paper
               {{0, 0, 0, 100}, 0},      //
               {{0, 100, 100, 0}, 255},  // would be red
               {{100, 0, 0, 0}, 145},    // L* 60, would be cyan
               {{0, 0, 0, 50}, 119}};    // L* 50, would be 128
constexpr int side = 16;                 // pixels of each colour

// 16 rows, 16 columns of each colour. A JPEG file has inks the other way round, as Photoshop does.
QByteArray InkedJpeg(bool withProfile) {
    jpeg_compress_struct coder{};
    jpeg_error_mgr errors{};
    coder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&coder);
    unsigned char* bytes = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&coder, &bytes, &length);
    coder.image_width = side * std::size(colours);
    coder.image_height = side;
    coder.input_components = 4;
    coder.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&coder);
    jpeg_set_quality(&coder, 100, TRUE);
    jpeg_start_compress(&coder, TRUE);
    std::vector<JSAMPLE> row;
    for (const auto& colour : colours) {
        for (int n = 0; n < side; ++n) {
            for (const int ink : colour.inks) {
                row.push_back(static_cast<JSAMPLE>(255 - (ink * 255 + 50) / 100));
            }
        }
    }
    for (int y = 0; y < side; ++y) {
        JSAMPLE* rows = row.data();
        jpeg_write_scanlines(&coder, &rows, 1);
    }
    jpeg_finish_compress(&coder);
    jpeg_destroy_compress(&coder);
    const QByteArray file(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(length));
    std::free(bytes);
    return withProfile ? QByteArray(file).insert(
                             2, testing::JpegSegment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) +
                                                               testing::InkProfile()))
                       : file;
}

QByteArray InkedTiff() {
    const BitmapHandle bitmap(FreeImage_Allocate(side * std::size(colours), side, 32));
    for (int y = 0; y < side; ++y) {
        BYTE* row = FreeImage_GetScanLine(bitmap.get(), y);
        for (int x = 0; x < side * static_cast<int>(std::size(colours)); ++x) {
            for (const int ink : colours[x / side].inks) {
                *row++ = static_cast<BYTE>((ink * 255 + 50) / 100);
            }
        }
    }
    QByteArray profile = testing::InkProfile();
    FreeImage_CreateICCProfile(bitmap.get(), profile.data(), static_cast<long>(profile.size()))
        ->flags = FIICC_COLOR_IS_CMYK;
    FIMEMORY* const memory = FreeImage_OpenMemory();
    FreeImage_SaveToMemory(FIF_TIFF, bitmap.get(), memory, TIFF_CMYK | TIFF_LZW);
    BYTE* bytes = nullptr;
    DWORD length = 0;
    FreeImage_AcquireMemory(memory, &bytes, &length);
    const QByteArray file(reinterpret_cast<const char*>(bytes), length);
    FreeImage_CloseMemory(memory);
    return file;
}

LoadedPicture Decode(QByteArray contents) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
        fmemopen(contents.data(), contents.size(), "rb"), &std::fclose);
    return DecodePicture(file.get(), {}, std::uint64_t{1} << 32);
}

TEST(DecodePicture, InksBecomeColoursByTheirProfileAndLoseIt) {
    for (const QByteArray& file : {InkedJpeg(true), InkedTiff()}) {
        const LoadedPicture picture = Decode(file);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << picture.reason.toStdString();
        EXPECT_EQ(FreeImage_GetICCProfile(picture.bitmap.get())->data, nullptr);
        for (std::size_t n = 0; n < std::size(colours); ++n) {
            const RGBQUAD colour =
                testing::PixelAt(picture.bitmap.get(), static_cast<int>(n) * side + side / 2, 5);
            for (const int value : {colour.rgbRed, colour.rgbGreen, colour.rgbBlue}) {
                EXPECT_NEAR(value, colours[n].grey, 2)
                    << n << (file.startsWith("\xFF") ? 'j' : 't');
            }
        }
    }
}

TEST(DecodePicture, InksWithoutAProfileAreTakenByRuleOfThumb) {
    const LoadedPicture picture = Decode(InkedJpeg(false));
    ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << picture.reason.toStdString();
    const RGBQUAD cyan = testing::PixelAt(picture.bitmap.get(), 3 * side + side / 2, 5);
    EXPECT_LT(cyan.rgbRed, 20);
    EXPECT_GT(cyan.rgbBlue, 200);
}

}  // namespace
}  // namespace varnel
