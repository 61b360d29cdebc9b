// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/frames/frame_bitmap.h"

#include <gtest/gtest.h>

#include <cstring>

#include "film/frames/bitmap_frame.h"

namespace varnel {
namespace {

using Levels = std::array<int, 3>;  // of the planes, or red, green and blue

FrameBuffer Filled(const FrameFormat& format, const Levels& levels) {
    FrameBuffer buffer(format);
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const Plane& to = buffer.Target().planes[static_cast<std::size_t>(plane)];
        const PixelSize size = PlaneSize(format, plane);
        for (int n = 0; n < size.width * size.height; ++n) {
            const auto level = static_cast<std::uint16_t>(levels[static_cast<std::size_t>(plane)]);
            std::byte* const place =
                to.first + n / size.width * to.pitch + n % size.width * BytesPerSample(format);
            std::memcpy(place, &level, static_cast<std::size_t>(BytesPerSample(format)));
        }
    }
    return buffer;
}

Levels ColourOf(const Bitmap& bitmap, int x, int y) {
    Levels levels{};
    for (std::size_t n = 0; n < 3; ++n) {
        const std::size_t place = static_cast<std::size_t>(x) * 3 + n;
        if (bitmap.Format() == PixelFormat::Bgr8) {
            levels[2 - n] = bitmap.ScanLine(y)[place];
        } else {
            std::uint16_t sample = 0;
            std::memcpy(&sample, bitmap.ScanLine(y).data() + place * 2, 2);
            levels[2 - n] = sample;
        }
    }
    return levels;
}

// The codes of the colour bars of BT.601, BT.709 and BT.2020, and of what full range and grey are.
TEST(FrameToBitmap, GivesTheColoursOfTheMatrices) {
    const struct {
        ChromaLayout chroma;
        std::uint8_t matrix, bits;
        bool full;
        PixelSize size;
        Levels planes, colour;
    } rows[] = {{ChromaLayout::C420, 6, 8, false, {4, 4}, {81, 90, 240}, {254, 0, 0}},
                {ChromaLayout::C420, 5, 8, false, {4, 4}, {145, 54, 34}, {0, 255, 1}},
                {ChromaLayout::C422, 1, 8, false, {4, 4}, {63, 102, 240}, {255, 1, 0}},
                {ChromaLayout::C444, 1, 8, false, {4, 4}, {32, 240, 118}, {1, 0, 255}},
                {ChromaLayout::C420, 2, 8, false, {4, 4}, {81, 90, 240}, {254, 0, 0}},
                {ChromaLayout::C420, 2, 8, false, {1280, 4}, {63, 102, 240}, {255, 1, 0}},
                {ChromaLayout::C420, 9, 10, false, {4, 4}, {940, 512, 512}, {65535, 65535, 65535}},
                {ChromaLayout::C420, 1, 8, true, {4, 4}, {77, 128, 128}, {77, 77, 77}},
                {ChromaLayout::Grey, 1, 8, false, {5, 3}, {126, 0, 0}, {128, 128, 128}},
                {ChromaLayout::Colours, 0, 8, true, {4, 4}, {10, 20, 30}, {30, 10, 20}}};
    SerialRunner runner;
    for (const auto& row : rows) {
        FrameFormat format;
        format.size = row.size;
        format.chroma = row.chroma;
        format.matrix = row.matrix;
        format.bits = row.bits;
        format.fullRange = row.full;
        const FrameBuffer frame = Filled(format, row.planes);
        const BitmapHandle bitmap = FrameToBitmap(frame.View(), runner);
        EXPECT_EQ(bitmap->Format(), row.bits == 8 ? PixelFormat::Bgr8 : PixelFormat::Bgr16);
        const Levels got = ColourOf(*bitmap, row.size.width - 1, 2);
        for (std::size_t n = 0; n < 3; ++n) {
            EXPECT_NEAR(got[n], row.colour[n], row.bits == 8 ? 1 : 0) << int{row.matrix} << n;
        }
    }
    EXPECT_EQ(FrameToBitmap(Filled({{4, 4}, ChromaLayout::Grey}, {126, 0, 0}).View(), runner, true)
                  ->Format(),
              PixelFormat::Bgr8);
}

// One step of colour in the second column and row of its plane shows where its samples lie.
TEST(FrameToBitmap, TurnsTheRowsAndPutsColourWhereItsSamplesAre) {
    FrameFormat format;
    format.size = {8, 8};
    format.matrix = 6;
    format.fullRange = true;
    SerialRunner runner;
    const struct {
        ChromaSite site;
        std::array<int, 4> across, down;  // red in columns 1 to 4 and rows 1 to 4, from the top
    } rows[] = {{ChromaSite::Left, {140, 179, 140, 100}, {119, 159, 159, 119}},
                {ChromaSite::TopLeft, {140, 179, 140, 100}, {140, 179, 140, 100}},
                {ChromaSite::Centre, {119, 159, 159, 119}, {119, 159, 159, 119}},
                {ChromaSite::BottomLeft, {140, 179, 140, 100}, {100, 140, 179, 140}}};
    for (const auto& row : rows) {
        format.site = row.site;
        FrameBuffer frame = Filled(format, {100, 128, 128});
        const Plane& red = frame.Target().planes[2];
        for (int n = 0; n < 4; ++n) {                       // the column, and then the row
            red.first[n * red.pitch + 1] = std::byte{184};  // 56 * 1.402 = 79 more
        }
        BitmapHandle bitmap = FrameToBitmap(frame.View(), runner);
        for (int x = 1; x <= 4; ++x) {
            EXPECT_NEAR(ColourOf(*bitmap, x, 4)[0], row.across[static_cast<std::size_t>(x) - 1], 1)
                << x;
        }
        frame = Filled(format, {100, 128, 128});
        for (int n = 0; n < 4; ++n) {
            frame.Target().planes[2].first[frame.Target().planes[2].pitch + n] = std::byte{184};
        }
        bitmap = FrameToBitmap(frame.View(), runner);
        for (int y = 1; y <= 4; ++y) {
            EXPECT_NEAR(ColourOf(*bitmap, 4, 7 - y)[0], row.down[static_cast<std::size_t>(y) - 1],
                        1)
                << y;
        }
    }
}

// There and back: what colour loses by being shared is no more than a few levels on a slope.
TEST(BitmapToFrame, ComesBackAndLeavesOddBordersOut) {
    SerialRunner runner;
    const BitmapHandle picture = NewBitmap({33, 21});
    for (int y = 0; y < 21; ++y) {
        for (int x = 0; x < 33; ++x) {
            picture->ScanLine(y)[static_cast<std::size_t>(x) * 3] =
                static_cast<std::uint8_t>(7 * x);
            picture->ScanLine(y)[static_cast<std::size_t>(x) * 3 + 1] =
                static_cast<std::uint8_t>(12 * y);
            picture->ScanLine(y)[static_cast<std::size_t>(x) * 3 + 2] = 90;
        }
    }
    const FrameBuffer frame(StillFormat({33, 21}));
    BitmapToFrame(*picture, frame.Target(), runner);
    const BitmapHandle back = FrameToBitmap(frame.View(), runner);
    ASSERT_EQ(back->Size().width, 32);
    ASSERT_EQ(back->Size().height, 20);
    for (int y = 1; y < 19; ++y) {
        for (int x = 1; x < 31; ++x) {
            const Levels colour = ColourOf(*back, x, y);
            EXPECT_NEAR(colour[2], 7 * x, 6) << x << ' ' << y;
            EXPECT_NEAR(colour[1], 12 * (y + 1), 6) << x << ' ' << y;
            EXPECT_NEAR(colour[0], 90, 6) << x << ' ' << y;
        }
    }
}

}  // namespace
}  // namespace varnel
