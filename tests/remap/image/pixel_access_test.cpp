// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/pixel_access.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace varnel {
namespace {

constexpr std::array formats{PixelFormat::Bgr8,   PixelFormat::Bgra8,    PixelFormat::Bgr16,
                             PixelFormat::Bgra16, PixelFormat::BgrFloat, PixelFormat::BgraFloat};

TEST(PixelFormats, BytesGoThroughEveryFormatUnchanged) {
    for (const PixelFormat format : formats) {
        const BitmapHandle bitmap = NewBitmap({256, 2}, format);
        for (int value = 0; value < 256; ++value) {
            const auto byte = static_cast<std::uint8_t>(value);
            const PixelColor colour{byte, static_cast<std::uint8_t>(255 - byte), 7, byte};
            ASSERT_TRUE(SetPixelColor(bitmap.get(), value, 1, colour));
            PixelColor read;
            ASSERT_TRUE(GetPixelColor(bitmap.get(), value, 1, read));
            EXPECT_EQ(read.blue, colour.blue);
            EXPECT_EQ(read.green, colour.green);
            EXPECT_EQ(read.red, colour.red);
        }
        bitmap->metadata.colourProfile = "a profile";  // otherwise floats are linear light
        std::array<std::uint8_t, 3 * 256> row{};
        CopyForScreen(bitmap.get(), 1, row.data());
        EXPECT_EQ(row[3 * 200], 200);
        EXPECT_EQ(row[3 * 200 + 1], 55);
        EXPECT_EQ(ScanLine(bitmap.get(), 0)[0], 0);
    }
}

TEST(PixelFormats, AreReadAsTheNearestByte) {
    EXPECT_EQ(ByteOf(std::uint16_t{128}), 0);
    EXPECT_EQ(ByteOf(std::uint16_t{129}), 1);
    EXPECT_EQ(ByteOf(std::uint16_t{65535}), 255);
    EXPECT_EQ(ByteOf(-0.5F), 0);
    EXPECT_EQ(ByteOf(3.0F), 255);
    EXPECT_EQ(ByteOf(0.5F), 128);
    EXPECT_EQ(ByteOf(std::nanf("")), 0);
}

}  // namespace
}  // namespace varnel
