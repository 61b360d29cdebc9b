// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process/frame_turn.h"

#include <gtest/gtest.h>

#include <vector>

#include "film/frames/frame_buffer.h"

namespace varnel {
namespace {

constexpr std::int32_t one = 1 << 16;

TEST(FrameTurn, DisplayMatricesAreQuarterTurnsAndMirrors) {
    const struct {
        std::array<std::int32_t, 9> matrix;
        FrameTurn turn;
        int degrees;
        // Of the picture 1 2 3 over 4 5 6.
        std::vector<std::uint8_t> turned;
    } rows[] = {
        {{one, 0, 0, 0, one}, {1, 0, 0, 1}, 0, {1, 2, 3, 4, 5, 6}},
        {{0, one, 0, -one, 0}, {0, 1, -1, 0}, 90, {4, 1, 5, 2, 6, 3}},
        {{-one, 0, 0, 0, -one}, {-1, 0, 0, -1}, 180, {6, 5, 4, 3, 2, 1}},
        {{0, -one, 0, one, 0}, {0, -1, 1, 0}, 270, {3, 6, 2, 5, 1, 4}},
        {{-one, 0, 0, 0, one}, {-1, 0, 0, 1}, 0, {3, 2, 1, 6, 5, 4}},
        {{one, 0, 0, 0, -one}, {1, 0, 0, -1}, 180, {4, 5, 6, 1, 2, 3}},
        {{0, one, 0, one, 0}, {0, 1, 1, 0}, 270, {1, 4, 2, 5, 3, 6}},
        {{0, -one, 0, -one, 0}, {0, -1, -1, 0}, 90, {6, 3, 5, 2, 4, 1}},
        // A little aslant, scaled, and nothing at all.
        {{900, -one, 0, one, 900}, {0, -1, 1, 0}, 270, {3, 6, 2, 5, 1, 4}},
        {{2 * one, 0, 0, 0, 2 * one}, {1, 0, 0, 1}, 0, {1, 2, 3, 4, 5, 6}},
        {{}, {1, 0, 0, 1}, 0, {1, 2, 3, 4, 5, 6}},
    };
    for (const auto& row : rows) {
        const FrameTurn turn = TurnOf(row.matrix);
        EXPECT_EQ(turn, row.turn) << row.degrees;
        EXPECT_EQ(DegreesOf(turn), row.degrees);
        const std::array<std::uint8_t, 6> picture{1, 2, 3, 4, 5, 6};
        const FrameView source{
            .format = {.size = {3, 2}, .chroma = ChromaLayout::Grey},
            .planes = {ConstPlane{reinterpret_cast<const std::byte*>(picture.data()), 3}}};
        const FrameBuffer result(TurnedFormat(source.format, turn));
        TurnFrame(source, turn, result.Target());
        std::vector<std::uint8_t> turned;
        const PixelSize size = result.Format().size;
        for (int y = 0; y < size.height; ++y) {
            const Plane& plane = result.Target().planes[0];
            const auto* const first =
                reinterpret_cast<const std::uint8_t*>(plane.first + y * plane.pitch);
            turned.insert(turned.end(), first, first + size.width);
        }
        EXPECT_EQ(turned, row.turned) << row.degrees;
    }
}

TEST(FrameTurn, TheSiteOfColourTurnsAsFarAsThereIsOne) {
    const FrameTurn right = TurnOf({0, one, 0, -one, 0});
    const FrameTurn left = TurnOf({0, -one, 0, one, 0});
    const FrameTurn half = TurnOf({-one, 0, 0, 0, -one});
    const struct {
        ChromaSite site;
        FrameTurn turn;
        ChromaSite turned;
    } rows[] = {
        {ChromaSite::Left, right, ChromaSite::Top},
        {ChromaSite::Left, left, ChromaSite::Bottom},
        {ChromaSite::Left, half, ChromaSite::Centre},  // the right has no name
        {ChromaSite::TopLeft, left, ChromaSite::BottomLeft},
        {ChromaSite::TopLeft, right, ChromaSite::Top},
        {ChromaSite::Top, half, ChromaSite::Bottom},
        {ChromaSite::Bottom, right, ChromaSite::Left},
        {ChromaSite::Centre, left, ChromaSite::Centre},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(TurnedFormat({.size = {4, 4}, .site = row.site}, row.turn).site, row.turned);
    }
}

// Of 4:2:2 turned sideways: every other row has the colour that was there, the others the means.
TEST(FrameTurn, HalfColourBecomesWholeWhereSidesAreSwapped) {
    std::array<std::uint8_t, 12> luma{};
    const std::array<std::uint8_t, 4> colour{10, 20, 30, 50};
    const auto* const bytes = reinterpret_cast<const std::byte*>(luma.data());
    const auto* const shared = reinterpret_cast<const std::byte*>(colour.data());
    const FrameView source{
        .format = {.size = {4, 2}, .chroma = ChromaLayout::C422},
        .planes = {ConstPlane{bytes, 4}, ConstPlane{shared, 2}, ConstPlane{shared, 2}}};
    const FrameTurn right = TurnOf({0, one, 0, -one, 0});
    const FrameBuffer result(TurnedFormat(source.format, right));
    TurnFrame(source, right, result.Target());
    const int expected[4][2] = {{30, 10}, {40, 15}, {50, 20}, {50, 20}};
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 2; ++x) {
            const Plane& plane = result.Target().planes[2];
            EXPECT_EQ(std::to_integer<int>(plane.first[y * plane.pitch + x]), expected[y][x])
                << x << y;
        }
    }
}

}  // namespace
}  // namespace varnel
