// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos in printing inks.
#include <gtest/gtest.h>

#include <array>

#include "base/error_text.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/profiles.h"

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

// 16 rows, 16 columns of each colour.
QByteArray Inked(FREE_IMAGE_FORMAT format, int flags, bool withProfile) {
    const LibraryBitmap bitmap(FreeImage_Allocate(side * std::size(colours), side, 32));
    for (int y = 0; y < side; ++y) {
        BYTE* row = FreeImage_GetScanLine(bitmap.get(), y);
        for (int x = 0; x < side * static_cast<int>(std::size(colours)); ++x) {
            for (const int ink : colours[x / side].inks) {
                *row++ = static_cast<BYTE>((ink * 255 + 50) / 100);
            }
        }
    }
    QByteArray profile = withProfile ? testing::InkProfile() : QByteArray();
    FreeImage_CreateICCProfile(bitmap.get(), profile.data(), static_cast<long>(profile.size()));
    FreeImage_GetICCProfile(bitmap.get())->flags |= FIICC_COLOR_IS_CMYK;
    return LibraryFile(format, bitmap.get(), flags).bytes;
}

TEST(DecodePicture, InksBecomeColoursByTheirProfileAndLoseIt) {
    for (const QByteArray& file :
         {Inked(FIF_JPEG, 100, true), Inked(FIF_TIFF, TIFF_CMYK | TIFF_LZW, true)}) {
        const LoadedPicture picture = testing::Decode(file);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        EXPECT_TRUE(picture.bitmap->metadata.colourProfile.isEmpty());
        for (std::size_t n = 0; n < std::size(colours); ++n) {
            const PixelColor colour =
                testing::PixelAt(picture.bitmap.get(), static_cast<int>(n) * side + side / 2, 5);
            for (const int value : {colour.red, colour.green, colour.blue}) {
                EXPECT_NEAR(value, colours[n].grey, 2)
                    << n << (file.startsWith("\xFF") ? 'j' : 't');
            }
        }
    }
}

// Inks of 16 bits in steps that 8 bits do not have: the slope keeps rising.
TEST(DecodePicture, DeepInksStayDeepWhereThatIsWanted) {
    constexpr int columns = 64;
    const LibraryBitmap inks(FreeImage_AllocateT(FIT_RGBA16, columns, 1));
    auto* const row = reinterpret_cast<std::uint16_t*>(FreeImage_GetScanLine(inks.get(), 0));
    for (int x = 0; x < columns; ++x) {
        row[4 * x + 3] = static_cast<std::uint16_t>(32000 - 40 * x);  // black alone
    }
    QByteArray profile = testing::InkProfile();
    FreeImage_CreateICCProfile(inks.get(), profile.data(), static_cast<long>(profile.size()));
    FreeImage_GetICCProfile(inks.get())->flags |= FIICC_COLOR_IS_CMYK;
    const QByteArray file = LibraryFile(FIF_TIFF, inks.get(), TIFF_CMYK | TIFF_LZW).bytes;
    const LoadedPicture deep = testing::Decode(file, {.path = {}, .depth = ReadDepth::Own});
    ASSERT_TRUE(deep.bitmap) << ErrorText(deep.reason).toStdString();
    ASSERT_EQ(deep.bitmap->Format(), PixelFormat::Bgr16);
    EXPECT_EQ(testing::Decode(file).bitmap->Format(), PixelFormat::Bgr8);
    const std::uint8_t* const samples = deep.bitmap->ScanLine(0).data();
    for (std::size_t x = 1; x < columns; ++x) {
        EXPECT_GT(SampleAt<std::uint16_t>(samples, 3 * x),
                  SampleAt<std::uint16_t>(samples, 3 * x - 3))
            << x;
    }
    EXPECT_NEAR(SampleAt<std::uint16_t>(samples, 0) / 257.0, 121.5, 2.0);
}

TEST(DecodePicture, InksWithoutAProfileAreTakenByRuleOfThumb) {
    const LoadedPicture picture = testing::Decode(Inked(FIF_JPEG, 100, false));
    ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
    const PixelColor cyan = testing::PixelAt(picture.bitmap.get(), 3 * side + side / 2, 5);
    EXPECT_LT(cyan.red, 20);
    EXPECT_GT(cyan.blue, 200);
}

}  // namespace
}  // namespace varnel
