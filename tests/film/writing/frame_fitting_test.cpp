// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/module/frame_fitting.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/film/support/films.h"

namespace varnel {
namespace {

using testing::SlopeFrame;

std::vector<int> Column(const FrameView& frame, int plane) {
    const auto& [first, pitch] = frame.planes[static_cast<std::size_t>(plane)];
    std::vector<int> column;
    for (int y = 0; y < PlaneSize(frame.format, plane).height; ++y) {
        std::uint16_t value = 0;
        std::memcpy(&value, first + y * pitch,
                    static_cast<std::size_t>(BytesPerSample(frame.format)));
        column.push_back(value);
    }
    return column;
}

FrameBuffer Rows(const FrameFormat& format, const std::vector<int>& luma,
                 const std::vector<int>& chroma) {
    FrameBuffer frame(format);
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const auto& [first, pitch] = frame.Target().planes[static_cast<std::size_t>(plane)];
        const std::vector<int>& rows = plane == 0 ? luma : chroma;
        for (std::size_t y = 0; y < rows.size(); ++y) {
            const auto value = static_cast<std::uint16_t>(rows[y]);
            std::memcpy(first + static_cast<std::ptrdiff_t>(y) * pitch, &value,
                        static_cast<std::size_t>(BytesPerSample(format)));
        }
    }
    return frame;
}

FrameFormat Small(ChromaLayout chroma, int bits, bool full, ChromaSite site = ChromaSite::Left) {
    FrameFormat format;
    format.size = {1, 4};
    format.chroma = chroma;
    format.bits = static_cast<std::uint8_t>(bits);
    format.fullRange = full;
    format.site = site;
    return format;
}

TEST(FrameFitting, RowsOfColourLieWhereTheSiteSays) {
    struct Case {
        ChromaSite site;
        std::vector<int> expected;  // of colours 100 and 200
    };
    for (const auto& [site, expected] : {Case{ChromaSite::Left, {100, 125, 175, 200}},
                                         Case{ChromaSite::TopLeft, {100, 150, 200, 200}},
                                         Case{ChromaSite::Bottom, {100, 100, 150, 200}}}) {
        const FrameFormat from = Small(ChromaLayout::C420, 8, false, site);
        FrameFormat to = from;
        to.chroma = ChromaLayout::C422;
        FrameFitting fitting(from, to);
        const FrameBuffer frame = Rows(from, {1, 2, 3, 4}, {100, 200});
        const FrameView fitted = fitting.Fit(frame.View());
        EXPECT_EQ(Column(fitted, 1), expected);
        EXPECT_EQ(Column(fitted, 2), expected);
        EXPECT_EQ(Column(fitted, 0), (std::vector<int>{1, 2, 3, 4}));
    }
}

TEST(FrameFitting, MoreBitsKeepBlackWhiteAndTheMiddle) {
    for (const auto& [full, luma] : {std::pair{false, std::vector<int>{64, 940, 4, 1020}},
                                     std::pair{true, std::vector<int>{64, 943, 4, 1023}}}) {
        const FrameFormat from = Small(ChromaLayout::C444, 8, full);
        FrameFormat to = from;
        to.bits = 10;
        FrameFitting fitting(from, to);
        const FrameBuffer frame = Rows(from, {16, 235, 1, 255}, {0, 128, 240, 16});
        const FrameView fitted = fitting.Fit(frame.View());
        EXPECT_EQ(Column(fitted, 0), luma);
        EXPECT_EQ(Column(fitted, 1), (std::vector<int>{0, 512, 960, 64}));
    }
}

TEST(FrameFitting, GreyGetsNeutralColour) {
    const FrameFormat from = Small(ChromaLayout::Grey, 8, false);
    FrameFormat to = from;
    to.chroma = ChromaLayout::C420;
    FrameFitting fitting(from, to);
    const FrameBuffer frame = Rows(from, {9, 8, 7, 6}, {});
    const FrameView fitted = fitting.Fit(frame.View());
    EXPECT_EQ(Column(fitted, 0), (std::vector<int>{9, 8, 7, 6}));
    EXPECT_EQ(Column(fitted, 2), (std::vector<int>{128, 128}));
}

TEST(FrameFitting, FramesThatFitAreNotCopied) {
    const FrameBuffer frame = SlopeFrame(Small(ChromaLayout::C420, 8, false), 0);
    FrameFitting fitting(frame.Format(), frame.Format());
    EXPECT_EQ(fitting.Fit(frame.View()).planes[0].first, frame.View().planes[0].first);
}

}  // namespace
}  // namespace varnel
