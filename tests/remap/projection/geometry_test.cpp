// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/geometry.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <numbers>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/rounding.h"

namespace varnel {
namespace {

TEST(Rounding, TiesGoToEvenAndIntGoesDown) {
    EXPECT_EQ(CLng(0.5, ""), 0);
    EXPECT_EQ(CLng(1.5, ""), 2);
    EXPECT_EQ(CLng(-2.5, ""), -2);
    EXPECT_EQ(Int(-2.5), -3.0);
    EXPECT_EQ(Round8(0.0024142135), 0.00241421);
}

TEST(Rounding, WhatDoesNotFitIsAnOverflowThatNamesTheValue) {
    EXPECT_THROW(CLng(2147483647.6, ""), OverflowError);
    EXPECT_THROW(CLng(std::nan(""), ""), OverflowError);
    EXPECT_EQ(CInt(32767.4, ""), 32767);
    EXPECT_THROW(ToSingle(1e39, ""), OverflowError);
    try {
        CInt(32767.5, "OfsetX");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(ErrorText(ReasonFor(error)).toStdString(),
                  "Overflow: OfsetX does not fit 16 bits");
    }
    EXPECT_EQ(PixelIndex(3e9), std::nullopt);
    EXPECT_EQ(PixelIndex(-7.0), -7);
}

TEST(LensModel, KindFollowsBrandAndModelExactly) {
    struct {
        const char *brand, *model;
        LensKind engine, catalogue;
    } const rows[] = {
        {"GoPro", "Hero 3 Black", LensKind::Tan, LensKind::Tan},
        {"GoPro", "FCON-T01", LensKind::Tan, LensKind::Tan},
        {"Olympus", "FCON-T01", LensKind::Tan, LensKind::Sin},
        {"Samyang", "8 mm f/3.5", LensKind::Tan, LensKind::Tan},
        {"Samyang", "7.5 mm f/3.5", LensKind::Sin, LensKind::Sin},
        {"Nikon", "7.5 mm f/3.5", LensKind::Sin, LensKind::Sin},
        {"samyang", "8 mm f/3.5", LensKind::Sin, LensKind::Sin},
        {"", "", LensKind::Sin, LensKind::Sin},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(LensMappingKind(row.brand, row.model), row.engine) << row.brand << row.model;
        EXPECT_EQ(CatalogueMappingKind(row.brand, row.model), row.catalogue) << row.model;
    }
}

TEST(LensModel, FactorMultipliesForSinAndDividesForTan) {
    EXPECT_DOUBLE_EQ(LensRadius(LensKind::Sin, 1.0, {16.0F, 0.5F}), 16.0 * std::sin(0.5));
    EXPECT_DOUBLE_EQ(LensRadius(LensKind::Tan, 1.0, {26.0F, 4.0F}), 26.0 * std::tan(0.25));
}

TEST(LensModel, PiIsTheSinglePrecisionOne) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(Pi), 0x40490FDBU);
    EXPECT_EQ(static_cast<double>(Radians(90.0F)), 1.5707963705062866);
}

TEST(LensModel, UprightFramesMeasureTheirWidthAlongTheSensorsHeight) {
    EXPECT_DOUBLE_EQ(PixelsPerUnit(6000, true, {24.0F, 16.0F}), 250.0);
    EXPECT_DOUBLE_EQ(PixelsPerUnit(4000, false, {24.0F, 16.0F}), 250.0);
    EXPECT_THROW(PixelsPerUnit(6000, true, {0.0F, 16.0F}), DivisionByZeroError);
    EXPECT_THROW(PixelsPerUnit(6000, false, {24.0F, 0.0F}), DivisionByZeroError);
}

TEST(EffectRatio, IsOneAtFullEffectAndKeepsTheEdgeWhereItWas) {
    EXPECT_NEAR(EffectRatio(90.0F, 100.0F, 0.5F), 1.0, 1e-7);
    EXPECT_NEAR(EffectRatio(90.0F, 50.0F, 0.5F), 1.9615705586745433, 1e-12);
    EXPECT_NEAR(EffectRatio(110.0F, 80.0F, 3.0F), 0.34827533146096645, 1e-12);
    EXPECT_THROW(EffectRatio(90.0F, 0.0F, 0.5F), DivisionByZeroError);
}

TEST(ImageCentre, OffsetsRoundDownAndOddSidesReachFurtherRight) {
    struct {
        PixelSize size;
        float x, y;
        std::array<int, 6> expected;  // the centre, columns to the left and right, rows down and up
    } const rows[] = {
        {{5, 4}, 0.0F, 0.0F, {2, 2, 2, 3, 2, 2}},
        {{5, 5}, -500.0F, 500.0F, {-1, 0, 5, 6, 4, 5}},  // Int(-2.5) = -3, -Int(2.5) = -2
        {{5, 5}, 500.0F, -500.0F, {4, 5, 4, 5, 5, 6}},   // Int(2.5) = 2, -Int(-2.5) = 3
        {{1000, 800}, -2.7F, -3.2F, {497, 403, 503, 503, 403, 403}},
    };
    for (const auto& row : rows) {
        const auto [cx, cy, left, right, bottom, top] = ImageCentre(row.size, row.x, row.y);
        EXPECT_EQ((std::array{cx, cy, left, right, bottom, top}), row.expected) << row.x;
    }
    EXPECT_THROW(ImageCentre({1000, 1000}, 3e9F, 0.0F), OverflowError);
}

TEST(RotateRay, PanComesFirstThenTiltThenRoll) {
    const float quarter = static_cast<float>(std::numbers::pi / 2);
    const Ray ahead{0.0, 0.0, 1.0};
    const Ray down = RotateRay(ahead, {quarter, 0.0F, 0.0F});
    EXPECT_NEAR(down.y, -1.0, 1e-6);
    const Ray right = RotateRay(ahead, {0.0F, quarter, 0.0F});
    EXPECT_NEAR(right.x, 1.0, 1e-6);
    const Ray rolled = RotateRay({1.0, 0.0, 0.0}, {0.0F, 0.0F, quarter});
    EXPECT_NEAR(rolled.y, 1.0, 1e-6);
    // Ahead -> right by the pan; the tilt about the horizontal axis leaves it; the roll lifts it.
    const Ray all = RotateRay(ahead, {quarter, quarter, quarter});
    EXPECT_NEAR(all.x, 0.0, 1e-6);
    EXPECT_NEAR(all.y, 1.0, 1e-6);
    EXPECT_NEAR(all.z, 0.0, 1e-6);
}

TEST(RotateRay, EffectScalesTiltAndPanButNotRoll) {
    const Rotation rotation = RotationAngles(10.0F, -20.0F, 5.0F, 50.0F);
    EXPECT_EQ(static_cast<double>(rotation.x), 0.0872664675116539);
    EXPECT_EQ(static_cast<double>(rotation.y), -0.1745329350233078);
    EXPECT_EQ(static_cast<double>(rotation.z), 0.0872664675116539);
}

TEST(PolarOffset, PointsWhereThePointIsInEveryDirection) {
    for (const auto& [x, y] : {std::pair{3.0, 4.0}, {-3.0, 4.0}, {-3.0, -4.0}, {3.0, -4.0}}) {
        const SourceOffset offset = PolarOffset(x, y, 10.0);
        EXPECT_NEAR(offset.u, 2.0 * x, 1e-12);
        EXPECT_NEAR(offset.v, 2.0 * y, 1e-12);
    }
    EXPECT_NEAR(PolarOffset(0.0, 2.0, 10.0).v, 10.0, 1e-9);
    EXPECT_NEAR(PolarOffset(0.0, -2.0, 10.0).v, -10.0, 1e-9);
    // A quarter turn by the single-precision pi is not quite one.
    EXPECT_NEAR(PolarOffset(0.0, 2.0, 10.0).u, -4.371139e-7, 1e-12);
    EXPECT_EQ(PolarOffset(0.0, 0.0, 10.0).u, 0.0);
}

TEST(ArcSin, IsAConstantOnAndBeyondTheEdge) {
    EXPECT_DOUBLE_EQ(ArcSin(0.5), 0.5235987755982989);
    for (const double x : {1.0, -1.0, 1.5, -7.0}) {
        EXPECT_EQ(ArcSin(x), 3.14159265359);
    }
}

}  // namespace
}  // namespace varnel
