// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/panorama.h"

#include <gtest/gtest.h>

#include "tests/support/records.h"
#include "tests/support/seeds/file_bytes.h"

namespace varnel {
namespace {

TEST(PanoramaOf, HandWorkedPlaces) {
    using enum PanoramaLayout;
    const OutputFrame whole{{4000, 2000}};
    EXPECT_EQ(PanoramaOf(Equirectangular, 360.0, whole),
              (PanoramaInfo{Equirectangular, 4000, 2000, 0, 0, 4000, 2000}));
    EXPECT_EQ(PanoramaOf(Equirectangular, 180.0, {{3000, 2000}}),
              (PanoramaInfo{Equirectangular, 6000, 3000, 1500, 500, 3000, 2000}));
    OutputFrame cut{{1000, 600}};
    cut.whole = {3000, 2000};
    cut.corner = {200, 300};  // from the lower left: 1100 rows are above
    EXPECT_EQ(PanoramaOf(Equirectangular, 180.0, cut),
              (PanoramaInfo{Equirectangular, 6000, 3000, 1700, 1600, 1000, 600}));
    EXPECT_EQ(PanoramaOf(Cylindrical, 120.0, cut),
              (PanoramaInfo{Cylindrical, 9000, 600, 3200, 0, 1000, 600}));
    EXPECT_FALSE(PanoramaOf(Equirectangular, 360.0, {{3000, 2000}})) << "beyond the poles";
    EXPECT_FALSE(PanoramaOf(None, 360.0, whole));
    EXPECT_FALSE(PanoramaOf(Equirectangular, 0.0, whole));
}

// A photo whose camera looked to that fraction of degrees.
PhotoMetadata Looking(testing::Order order, std::uint32_t numerator, std::uint32_t denominator) {
    using enum testing::TiffType;
    testing::TiffBytes tiff(order);
    const std::uint32_t gps =
        tiff.Directory({{0x0010, Text, {}, "M"}, {0x0011, Fraction, {numerator, denominator}}});
    PhotoMetadata photo;
    photo.exif.bytes = tiff.Finish(tiff.Directory({{0x8825, Long, {gps}}}));
    return photo;
}

TEST(HeadingOf, IsTheDirectionOfTheExifWithThePan) {
    for (const auto order : {testing::Order::Little, testing::Order::Big}) {
        const PhotoMetadata photo = Looking(order, 2705, 10);
        EXPECT_EQ(HeadingOf(photo), 270.5);
        ImageRecord record = testing::FisheyeRecord();
        record.OutputAOV = 180.0F;
        record.RotateY = 120.0F;
        const auto info =
            PanoramaOfResult(Projection::Equirectangular, record, {{3000, 1000}}, photo);
        ASSERT_TRUE(info && info->heading);
        EXPECT_NEAR(*info->heading, 30.5, 1e-4);
        EXPECT_FALSE(HeadingOf(Looking(order, 1, 0)));
        EXPECT_FALSE(HeadingOf(Looking(order, 361, 1)));
    }
    EXPECT_FALSE(HeadingOf({}));
    PhotoMetadata cut = Looking(testing::Order::Little, 90, 1);
    cut.exif.bytes.chop(30);
    EXPECT_FALSE(HeadingOf(cut));
}

}  // namespace
}  // namespace varnel
