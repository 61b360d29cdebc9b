// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Remapped frames beside the plain loops, and beside the conversion of the same frame as a photo.

#include <gtest/gtest.h>

#include "film/frames/frame_buffer.h"
#include "film/planes/frame_remap.h"
#include "remap/image/pixel_access.h"
#include "remap/render/render.h"
#include "tests/film/planes/plain_remap.h"
#include "tests/remap/render/engine_pictures.h"
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

TEST(FrameTruth, EveryLayoutDepthAndSiteIsWithinALevelOfThePlainLoops) {
    using enum ChromaLayout;
    const std::vector<ChromaSite> sites{ChromaSite::Left,       ChromaSite::Centre,
                                        ChromaSite::TopLeft,    ChromaSite::Top,
                                        ChromaSite::BottomLeft, ChromaSite::Bottom};
    for (const Case& c : {cases[1], cases[3], cases[9]}) {
        for (const ChromaLayout chroma : {Grey, C420, C422, C444, Colours}) {
            for (const int bits : {8, 10, 12}) {
                for (const ChromaSite site : sites) {
                    FrameFormat format;
                    format.size = {179, 133};
                    format.chroma = chroma;
                    format.site = site;
                    format.bits = static_cast<std::uint8_t>(bits);
                    format.alpha = chroma == C444;
                    format.fullRange = site == ChromaSite::Top;
                    const auto [brightness, colour] = Compared(c, RecordOf(c), format);
                    EXPECT_LE(brightness.largest, 1) << static_cast<int>(chroma) << bits;
                    EXPECT_LE(colour.largest, 1) << static_cast<int>(chroma) << bits;
                    if (chroma != C420 && chroma != C422) {
                        break;
                    }
                }
            }
        }
    }
}

TEST(FrameTruth, CropsAndOtherSizesAreWithinALevelOfThePlainLoops) {
    struct Wish {
        int width, height;
        float cropLeft, cropWidth;
    };
    for (const Case& c : {cases[0], cases[1], cases[2], cases[4]}) {
        for (const Wish& wish : {Wish{500, 200, 0.0F, 0.0F},
                                 {90, 0, 0.0F, 0.0F},
                                 {0, 0, 0.3F, 0.4F},
                                 {700, 700, 0.1F, 0.7F}}) {
            ImageRecord image = RecordOf(c);
            image.OutputWidth = wish.width;
            image.OutputHeight = wish.height;
            image.CropLeft = image.CropTop = wish.cropLeft;
            image.CropWidth = image.CropHeight = wish.cropWidth;
            FrameFormat format;
            format.size = {320, 240};
            const auto [brightness, colour] = Compared(c, image, format);
            EXPECT_LE(brightness.largest, 1) << KeyOf(c.projection).toStdString();
            EXPECT_LE(colour.largest, 1) << KeyOf(c.projection).toStdString();
        }
    }
}

// ---- beside the conversion of the frame as a photo ----

constexpr PixelSize photoSize{480, 320};

PixelColor ColourAt(const Bitmap* bitmap, int column, int row) {
    PixelColor colour;
    GetPixelColor(bitmap, column, SizeOf(bitmap).height - 1 - row, colour);
    return colour;
}

BitmapHandle Converted(const Case& c, const ImageRecord& image, BitmapHandle photo) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::move(photo);
    SilentProgress progress;
    RenderContext context{bitmaps};
    Render(c.projection, image, SizeKind::Batch, progress, context);
    return std::move(bitmaps.ResultBitmap);
}

FrameBuffer Remapped(const Case& c, const ImageRecord& image, const FrameBuffer& source) {
    SerialRunner runner;
    FrameRemap remap;
    remap.Set(c.projection, image, source.Format(), runner);
    FrameBuffer result(remap.ResultFormat());
    remap.Draw(source.View(), result.Target(), runner);
    return result;
}

// Levels of a format of full size for each colour.
template <class Levels>
FrameBuffer FrameOf(const Bitmap* bitmap, ChromaLayout chroma, const Levels& levels) {
    FrameFormat format;
    format.size = SizeOf(bitmap);
    format.chroma = chroma;
    FrameBuffer frame(format);
    ForEachSample(format, [&](int plane, int column, int row) {
        PutSampleOf(frame.Target(), plane, column, row,
                    levels(ColourAt(bitmap, column, row))[static_cast<std::size_t>(plane)]);
    });
    return frame;
}

std::array<int, 3> Planes(const PixelColor& colour) {
    return {colour.green, colour.blue, colour.red};
}

// BT.601 of limited range.
std::array<int, 3> Yuv(const PixelColor& colour) {
    const double red = colour.red / 255.0;
    const double green = colour.green / 255.0;
    const double blue = colour.blue / 255.0;
    const double bright = 0.299 * red + 0.587 * green + 0.114 * blue;
    const auto whole = [](double level) { return static_cast<int>(std::lround(level)); };
    return {whole(16.0 + 219.0 * bright), whole(128.0 + 224.0 * (blue - bright) / 1.772),
            whole(128.0 + 224.0 * (red - bright) / 1.402)};
}

std::array<Difference, 2> Apart(const FrameBuffer& a, const FrameBuffer& b) {
    std::array<Difference, 2> differences;
    EXPECT_EQ(a.Format(), b.Format());
    ForEachSample(a.Format(), [&](int plane, int column, int row) {
        differences[plane == 0 ? 0 : 1].Add(std::abs(SampleOf(a.View(), plane, column, row) -
                                                     SampleOf(b.View(), plane, column, row)));
    });
    return differences;
}

TEST(FrameTruth, ColoursAreThoseOfThePhotoWithinALevel) {
    for (const Case& c : cases) {
        const BitmapHandle photo = PhotoLike(photoSize);
        const FrameBuffer expected =
            FrameOf(Converted(c, RecordOf(c), CloneBitmap(photo.get())).get(),
                    ChromaLayout::Colours, Planes);
        const FrameBuffer got =
            Remapped(c, RecordOf(c), FrameOf(photo.get(), ChromaLayout::Colours, Planes));
        const auto [green, others] = Apart(got, expected);
        EXPECT_LE(green.largest, 1) << KeyOf(c.projection).toStdString();
        EXPECT_LE(others.largest, 1) << KeyOf(c.projection).toStdString();
        EXPECT_LT(green.Share(), 0.02) << KeyOf(c.projection).toStdString();
    }
}

TEST(FrameTruth, BrightnessIsThatOfThePhotoWithinALevel) {
    for (const Case& c : cases) {
        const BitmapHandle photo = PhotoLike(photoSize);
        const FrameBuffer expected = FrameOf(
            Converted(c, RecordOf(c), CloneBitmap(photo.get())).get(), ChromaLayout::C444, Yuv);
        const FrameBuffer got =
            Remapped(c, RecordOf(c), FrameOf(photo.get(), ChromaLayout::C444, Yuv));
        const auto [brightness, colour] = Apart(got, expected);
        EXPECT_LE(brightness.largest, 1) << KeyOf(c.projection).toStdString();
        EXPECT_LE(colour.largest, 2) << KeyOf(c.projection).toStdString();
    }
}

TEST(FrameTruth, AColourOutsideIsThatOfThePhoto) {
    for (const Case& c : {cases[0], cases[1], cases[8], cases[10], cases[12]}) {
        ImageRecord image = RecordOf(c);
        image.Outside = {OutsideFill::Kind::Colour, 200, 90, 40};
        const BitmapHandle photo = PhotoLike(photoSize);
        const BitmapHandle converted = Converted(c, image, CloneBitmap(photo.get()));
        const auto colours =
            Apart(Remapped(c, image, FrameOf(photo.get(), ChromaLayout::Colours, Planes)),
                  FrameOf(converted.get(), ChromaLayout::Colours, Planes));
        // Where little of the photo is shown its levels have lost much to rounding.
        EXPECT_LE(colours[0].largest, 3) << KeyOf(c.projection).toStdString();
        EXPECT_LE(colours[1].largest, 3) << KeyOf(c.projection).toStdString();
        EXPECT_LT(colours[0].Share(), 0.02) << KeyOf(c.projection).toStdString();
        const auto yuv = Apart(Remapped(c, image, FrameOf(photo.get(), ChromaLayout::C444, Yuv)),
                               FrameOf(converted.get(), ChromaLayout::C444, Yuv));
        EXPECT_LE(yuv[0].largest, 3) << KeyOf(c.projection).toStdString();
        EXPECT_LE(yuv[1].largest, 3) << KeyOf(c.projection).toStdString();
    }
}

}  // namespace
}  // namespace varnel
