// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Remapped frames beside the plain loops, and beside the conversion of the same frame as a photo.

#include <gtest/gtest.h>

#include "film/frames/frame_buffer.h"
#include "film/planes/frame_remap.h"
#include "tests/film/planes/plain_remap.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using namespace testing;
using enum Projection;

struct Difference {
    int largest = 0;
    long apart = 0, all = 0;

    void Add(int distance) {
        largest = std::max(largest, distance);
        apart += distance != 0 ? 1 : 0;
        ++all;
    }
    double Share() const { return static_cast<double>(apart) / static_cast<double>(all); }
};

struct Case {
    Projection projection;
    float angle;
    float turn = 0.0F;
};

ImageRecord RecordOf(const Case& c) {
    ImageRecord image = FisheyeRecord();
    image.OutputAOV = c.angle;
    image.RotateX = c.turn;
    image.RotateY = -c.turn / 2.0F;
    image.RotateZ = c.turn / 3.0F;
    image.OfsetX = 11.0F;
    return image;
}

// Of brightness and of colour.
std::array<Difference, 2> Compared(const Case& c, const ImageRecord& image,
                                   const FrameFormat& format) {
    SerialRunner runner;
    const FrameBuffer source = Noise(format);
    FrameRemap remap;
    remap.Set(c.projection, image, format, runner);
    FrameBuffer result(remap.ResultFormat());
    remap.Draw(source.View(), result.Target(), runner);
    const PlainRemap plain(c.projection, image, source.View());
    std::array<Difference, 2> differences;
    ForEachSample(result.Format(), [&](int plane, int column, int row) {
        const double level = plain.LevelAt(plane, column, row);
        const bool isColour = IsChromaPlane(format, plane);
        const bool roundsDown = format.bits == 8 && !isColour;
        const int expected = static_cast<int>(std::floor(level + (roundsDown ? 0.0 : 0.5)));
        differences[isColour ? 1 : 0].Add(
            std::abs(SampleOf(result.View(), plane, column, row) - expected));
    });
    return differences;
}

const std::vector<Case> cases{
    {Varnel, 90.0F},
    {Rectilinear, 100.0F, 9.0F},
    {Equidistance, 90.0F},
    {Horizon, 90.0F},
    {Stereographic, 150.0F, 9.0F},
    {Panini, 140.0F, 9.0F},
    {Cylindrical, 180.0F, 9.0F},
    {Mercator, 150.0F},
    {Equirectangular, 360.0F, 9.0F},
    {FisheyeEquidistant, 180.0F},
    {FisheyeEquisolid, 220.0F, 9.0F},
    {Orthographic, 170.0F},
    {LittlePlanet, 280.0F},
    {Unrolled, 360.0F},
};

TEST(FrameTruth, EveryProjectionIsWithinALevelOfThePlainLoops) {
    for (const Case& c : cases) {
        for (const PixelSize size : {PixelSize{640, 400}, {211, 157}}) {
            FrameFormat format;
            format.size = size;
            const auto [brightness, colour] = Compared(c, RecordOf(c), format);
            EXPECT_LE(brightness.largest, 1) << KeyOf(c.projection).toStdString();
            EXPECT_LE(colour.largest, 1) << KeyOf(c.projection).toStdString();
            EXPECT_LT(brightness.Share(), 0.06) << KeyOf(c.projection).toStdString();
            EXPECT_LT(colour.Share(), 0.06) << KeyOf(c.projection).toStdString();
        }
    }
}

}  // namespace
}  // namespace varnel
