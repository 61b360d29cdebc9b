// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is written as JPEG XL and as light, by the readers of photos.
#include <gtest/gtest.h>
#include <lcms2.h>

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/error_text.h"
#include "decoder/metadata/read_metadata.h"
#include "remap/encode/encode_bitmap.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/deep_bitmaps.h"
#include "tests/support/runners.h"
#include "tests/support/seeds/profiles.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

constexpr PixelFormat allFormats[] = {PixelFormat::Bgr8,     PixelFormat::Bgra8,
                                      PixelFormat::Bgr16,    PixelFormat::Bgra16,
                                      PixelFormat::BgrFloat, PixelFormat::BgraFloat};

BitmapHandle ReadBack(const QByteArray& file) {
    LoadedPicture picture = testing::Decode(file, {.path = {}, .depth = ReadDepth::Own});
    EXPECT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
    return picture.bitmap ? std::move(picture.bitmap) : NewBitmap({1, 1});
}

// The mean difference of the samples of two pictures of 24 bits.
double Apart(const Bitmap& one, const Bitmap& other) {
    double sum = 0.0;
    for (int y = 0; y < one.Size().height; ++y) {
        for (std::size_t n = 0; n < one.ScanLine(y).size(); ++n) {
            sum += std::abs(one.ScanLine(y)[n] - other.ScanLine(y)[n]);
        }
    }
    return sum / static_cast<double>(one.Size().height) /
           static_cast<double>(one.ScanLine(0).size());
}

PhotoMetadata MetadataIn(QByteArray file) {
    const MetadataRequest wanted = WantedFor(testing::Decode(file));
    const FileHandle opened(fmemopen(file.data(), static_cast<std::size_t>(file.size()), "rb"));
    return ReadMetadata(opened.get(), wanted).metadata;
}

// Made once for several alike.
TEST(MadeExif, IsAboutEachPhotoThatHasNone) {
    for (const PixelSize size : {PixelSize{30, 20}, {30, 20}, {30, 40}, {50, 40}, {30, 20}}) {
        const BitmapHandle bitmap = NewBitmap(size);
        const ExifBlock exif =
            MetadataIn(EncodeBitmap({OutputType::Jpeg, 90}, bitmap.get()).bytes).exif;
        ASSERT_TRUE(exif.width > 0 && exif.height > 0);
        EXPECT_EQ(qFromLittleEndian<qint32>(exif.bytes.constData() + exif.width), size.width);
        EXPECT_EQ(qFromLittleEndian<qint32>(exif.bytes.constData() + exif.height), size.height);
        bitmap->metadata.dotsPerMetreX = bitmap->metadata.dotsPerMetreY = 11811;  // 300 dpi
        EXPECT_NE(MetadataIn(EncodeBitmap({OutputType::Jpeg, 90}, bitmap.get()).bytes).exif.bytes,
                  exif.bytes);
    }
}

class Jxl : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!OutputTypeByName(u"jxl")) {
            GTEST_SKIP() << "its library was not there";
        }
    }
    static OutputEncoding With(int quality) { return {*OutputTypeByName(u"jxl"), quality}; }
};

TEST_F(Jxl, LosesNothingAtAQualityOf100) {
    const QByteArray profile = testing::RgbProfile();  // states when it was made
    for (const PixelFormat format : allFormats) {
        for (const PixelSize size : {PixelSize{1, 1}, {3, 2}, {701, 503}}) {
            for (const bool wide : {false, true}) {
                SCOPED_TRACE(BitsPerSample(format));
                const BitmapHandle bitmap = testing::Deep(size, format);
                bitmap->metadata.colourProfile = wide ? profile : QByteArray();
                testing::ShuffledRunner runner(5);
                const EncodedBitmap file =
                    EncodeBitmap(With(100), bitmap.get(), {.runner = &runner});
                EXPECT_TRUE(file.note.isEmpty()) << ErrorText(file.note).toStdString();
                EXPECT_EQ(file.samples, SampleKindOf(format));
                const BitmapHandle read = ReadBack(file.bytes);
                ASSERT_EQ(read->Format(), format);
                EXPECT_TRUE(testing::SamePixels(read.get(), bitmap.get()));
                EXPECT_TRUE(!wide || read->metadata.colourProfile == profile);
            }
        }
    }
}

TEST_F(Jxl, LosesLessTheHigherTheQuality) {
    BitmapHandle bitmap = testing::Grainy({400, 300});
    qsizetype before = 0;
    double farther = 255.0;
    for (const int quality : {10, 50, 75, 90, 99}) {
        SCOPED_TRACE(quality);
        const QByteArray file = EncodeBitmap(With(quality), bitmap.get()).bytes;
        EXPECT_GT(file.size(), before);
        before = file.size();
        const double apart = Apart(*bitmap, *ReadBack(file));
        EXPECT_LT(apart, farther);
        farther = apart;
    }
    EXPECT_LT(farther, 2.0);
}

// Whatever the profile, the numbers mean the same colours afterwards.
TEST_F(Jxl, KeepsColoursThatSrgbDoesNotHave) {
    BitmapHandle green = testing::Painted({64, 64}, [](int, int) {
        return PixelColor{0, 255, 0, 0};
    });
    green->metadata.colourProfile = testing::RgbProfile();
    const BitmapHandle read = ReadBack(EncodeBitmap(With(95), green.get()).bytes);
    const auto lab = [](const Bitmap& bitmap) {
        const QByteArray& icc = bitmap.metadata.colourProfile;
        const cmsHPROFILE own =
            cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size()));
        const cmsHPROFILE labs = cmsCreateLab4Profile(nullptr);
        const cmsHTRANSFORM transform = cmsCreateTransform(own, TYPE_BGR_8, labs, TYPE_Lab_DBL,
                                                           INTENT_RELATIVE_COLORIMETRIC, 0);
        cmsCIELab colour{};
        cmsDoTransform(transform, bitmap.ScanLine(32).data() + 96, &colour, 1);
        cmsDeleteTransform(transform);
        cmsCloseProfile(labs);
        cmsCloseProfile(own);
        return colour;
    };
    ASSERT_FALSE(read->metadata.colourProfile.isEmpty());
    const cmsCIELab is = lab(*read);
    const cmsCIELab was = lab(*green);
    EXPECT_LT(cmsDeltaE(&is, &was), 2.0);
}

TEST_F(Jxl, HoldsExifAndXmpAndSaysThatItHasNoIptc) {
    const QByteArray photo = testing::Seed("jpeg/described");
    const BitmapHandle bitmap = NewBitmap(testing::Decode(photo).bitmap->Size());
    bitmap->metadata.photo = MetadataIn(photo);
    const EncodedBitmap file = EncodeBitmap(With(80), bitmap.get());
    EXPECT_TRUE(ErrorText(file.note).contains(QStringLiteral("IPTC: JPEG XL files hold none")));
    const PhotoMetadata back = MetadataIn(file.bytes);
    EXPECT_FALSE(back.exif.bytes.isEmpty());
    EXPECT_FALSE(back.xmp.isEmpty());
}

// The library itself would end the program.
TEST_F(Jxl, LeavesProfilesOutThatCannotBeConverted) {
    QByteArray damaged = testing::RgbProfile();
    damaged.replace("rTRC", "rTRX");
    for (const QByteArray& profile :
         {damaged, testing::InkProfile(), testing::GreyProfile(), QByteArray(200, 'p')}) {
        BitmapHandle bitmap = testing::Grainy({40, 30});
        bitmap->metadata.colourProfile = profile;
        for (const int quality : {80, 100}) {
            const EncodedBitmap file = EncodeBitmap(With(quality), bitmap.get());
            EXPECT_TRUE(file.reason.isEmpty());
            EXPECT_EQ(file.note, Reason(ReasonCode::WithoutProfile, ReasonCode::CannotBeEncoded));
            EXPECT_LT(Apart(*bitmap, *ReadBack(file.bytes)), 20.0);
        }
    }
}

TEST_F(Jxl, StopsWhereTheFileWouldBeTooLarge) {
    const EncodedBitmap file =
        EncodeBitmap(With(100), testing::Noise({600, 400}).get(), {.largest = 100'000});
    EXPECT_TRUE(file.bytes.isEmpty());
    EXPECT_EQ(file.reason, Reason(ReasonCode::FileTooLarge, 100'000LL));
}

TEST(Light, ComesBackValueForValue) {
    for (const PixelFormat format : {PixelFormat::BgrFloat, PixelFormat::BgraFloat}) {
        for (const char16_t* type : {u"tiff", u"exr"}) {
            const BitmapHandle bitmap = testing::Deep({70, 50}, format);
            const BitmapHandle read =
                ReadBack(EncodeBitmap(*OutputTypeByName(type), bitmap.get()).bytes);
            EXPECT_EQ(read->Format(), format);
            EXPECT_TRUE(testing::SamePixels(read.get(), bitmap.get()));
        }
    }
}

// Half of the last place of the brightest sample's 8 bits; the second time nothing is lost.
TEST(Hdr, RoundsToTheNearestAndKeepsThatForEver) {
    const OutputType hdr = *OutputTypeByName(u"hdr");
    const BitmapHandle bitmap = NewBitmap({4, 1}, PixelFormat::BgrFloat);
    const float pixels[4][3] = {{0.3F, 1.0F, 0.7F},
                                {0.9999F, 1e-9F, 0.5F},
                                {-1.0F, std::nanf(""), 3e6F},
                                {1e-40F, 0.0F, 0.0F}};
    const float expected[4][3] = {{38.0F / 128, 1.0F, 90.0F / 128},
                                  {1.0F, 0.0F, 0.5F},
                                  {0.0F, 0.0F, 183.0F * 16384.0F},
                                  {0.0F, 0.0F, 0.0F}};
    std::memcpy(bitmap->Bits(), pixels, sizeof pixels);
    const BitmapHandle once = ReadBack(EncodeBitmap(hdr, bitmap.get()).bytes);
    ASSERT_EQ(once->Format(), PixelFormat::BgrFloat);
    for (std::size_t n = 0; n < 12; ++n) {
        EXPECT_EQ(SampleAt<float>(once->Bits(), n), expected[n / 3][n % 3]) << n;
    }
    const BitmapHandle deep =
        ReadBack(EncodeBitmap(hdr, testing::Deep({70, 50}, PixelFormat::BgrFloat).get()).bytes);
    const BitmapHandle again = ReadBack(EncodeBitmap(hdr, deep.get()).bytes);
    EXPECT_TRUE(testing::SamePixels(again.get(), deep.get()));
}

}  // namespace
}  // namespace varnel
