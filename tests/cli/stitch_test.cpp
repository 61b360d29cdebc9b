// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert --stitch with circles cast by rays, 200 degrees across.

#include <gtest/gtest.h>

#include <QFile>
#include <cmath>
#include <cstring>
#include <numbers>
#include <sstream>

#include "cli/convert.h"
#include "remap/encode/save_bitmap.h"
#include "samples/fisheye_shot.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"

namespace varnel {
namespace {

constexpr int side = 320;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// The radius grows evenly with the angle, to the circle's 150 pixels.
BitmapHandle Circle(bool back) {
    FisheyeShot shot;
    shot.size = {side, side};
    shot.pixelsPerMillimetre = 1.0;
    shot.centreX = shot.centreY = side / 2;
    shot.circleRadius = 150.0;
    shot.curve = {static_cast<float>(150.0 / (0.001 * 100.0 * std::numbers::pi / 180.0)), 0.001F};
    shot.samples = 3;
    return TakeFisheye(
        [back](const Ray& ray) {
            return LookAtGradients(back ? Ray{-ray.x, ray.y, -ray.z} : ray);
        },
        shot);
}

BitmapHandle Beside(const Bitmap& left, const Bitmap& right) {
    BitmapHandle both = NewBitmap({2 * side, side});
    for (int y = 0; y < side; ++y) {
        std::memcpy(both->ScanLine(y).data(), left.ScanLine(y).data(), 3 * side);
        std::memcpy(both->ScanLine(y).data() + 3 * side, right.ScanLine(y).data(), 3 * side);
    }
    return both;
}

class Stitching : public ::testing::Test {
  protected:
    int Run(QStringList arguments) {
        err_.str({});
        arguments.prepend(Q("--stitch"));
        arguments.prepend(Q("varnel-convert"));
        return RunConvert(arguments, store_, {out_, err_, false});
    }
    QString Saved(const char* name, const Bitmap& picture) {
        EXPECT_TRUE(SaveBitmap(OutputType::Bmp, &picture, files_.Path(Q(name))));
        return files_.Path(Q(name));
    }
    // Mean and largest difference of the green levels from the sphere's own.
    void ExpectSphere(const QString& path, int width) {
        const LoadedPicture picture = testing::LoadPicture(path);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded);
        ASSERT_EQ(picture.size.width, width);
        ASSERT_EQ(picture.size.height, width / 2);
        double mean = 0.0;
        for (int y = 0; y < width / 2; ++y) {
            for (int x = 0; x < width; ++x) {
                const double across = (x - width / 2) * 2.0 * std::numbers::pi / width;
                const double up = (y - width / 4) * 2.0 * std::numbers::pi / width;
                const Colour expected =
                    LookAtGradients({std::sin(across) * std::cos(up), std::sin(up),
                                     std::cos(across) * std::cos(up)});
                PixelColor pixel;
                GetPixelColor(picture.bitmap.get(), x, y, pixel);
                mean += std::fabs(pixel.green + 0.5 - expected.green) / (width * width / 2);
            }
        }
        EXPECT_LT(mean, 1.0);  // the circle is found to a fraction of a pixel
    }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
};

TEST_F(Stitching, TwoCirclesOfOnePhotoOrOfTwoMakeTheSphere) {
    const BitmapHandle front = Circle(false);
    const BitmapHandle back = Circle(true);
    const QString both = Saved("both.bmp", *Beside(*front, *back));
    EXPECT_EQ(Run({Q("--input-aov"), Q("200"), Q("--size"), Q("400"), both}), exitAllWritten)
        << err_.str();
    ExpectSphere(files_.Path(Q("both.Equirectangular.TIF")), 400);
    const QString one = files_.Path(Q("one.png"));
    EXPECT_EQ(Run({Q("--input-aov"), Q("200"), Q("--output"), one, Saved("f.bmp", *front),
                   Saved("b.bmp", *back)}),
              exitAllWritten)
        << err_.str();
    // 150 px for 100 degrees: 540 px around, in steps of four.
    ExpectSphere(one, 540);
    EXPECT_TRUE(testing::Contents(one).contains("<GPano:FullPanoWidthPixels>540<"));
    EXPECT_EQ(Run({Q("--output-dir"), files_.Path({}), Q("--type"), Q("png"), both}),
              exitAllWritten);
    EXPECT_TRUE(QFile::exists(files_.Path(Q("both.Equirectangular_hAOV360.PNG"))));
    EXPECT_EQ(Run({Q("--output"), one, both}), exitSomeFailed);
    EXPECT_NE(err_.str().find("the file exists"), std::string::npos);
}

TEST_F(Stitching, CirclesWithoutOverlapLeaveAGapThatIsReported) {
    const BitmapHandle front = Circle(false);
    const QString both = Saved("both.bmp", *Beside(*front, *front));
    EXPECT_EQ(Run({Q("--input-aov"), Q("170"), both}), exitAllWritten);
    EXPECT_NE(err_.str().find("shows 170.0 degrees"), std::string::npos) << err_.str();
}

TEST_F(Stitching, WhatDoesNotGoWithItIsRefused) {
    for (const QStringList& arguments : {QStringList{},
                                         {Q("a"), Q("b"), Q("c")},
                                         {Q("--projection"), Q("varnel"), Q("a")},
                                         {Q("--crop"), Q("clean"), Q("a")},
                                         {Q("--size"), Q("400x300"), Q("a")}}) {
        EXPECT_EQ(Run(arguments), exitUsage) << arguments.join(u' ').toStdString();
        EXPECT_NE(err_.str().find("--stitch"), std::string::npos) << err_.str();
    }
    EXPECT_EQ(Run({files_.Path(Q("none.jpg"))}), exitSomeFailed);
}

}  // namespace
}  // namespace varnel
