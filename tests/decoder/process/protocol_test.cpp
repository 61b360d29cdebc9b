// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is believed of a decoder's answer.
#include "decoder/process/protocol.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Each row spoils one number of an answer that is believed.
TEST(IsConsistent, OnlyAnswersWhoseNumbersAgree) {
    const DecoderRequest request{7, ReadKind::Whole, {}, std::uint64_t{1} << 32, 30};
    DecoderAnswer good;
    good.number = 7;
    good.size = good.bitmap = {101, 50};
    good.pitch = 304;
    good.attributesLength = 20;
    constexpr std::uint64_t length = 304 * 50 + 20;
    ASSERT_TRUE(IsConsistent(good, request, length));
    ASSERT_FALSE(IsConsistent(good, request, length - 1));
    const std::function<void(DecoderAnswer&)> spoil[] = {
        [](DecoderAnswer& a) { a.number = 6; },
        [](DecoderAnswer& a) { a.outcome = 3; },
        [](DecoderAnswer& a) { a.outcome = 2; },  // nothing loaded, and yet pixels
        [](DecoderAnswer& a) { a.bitmap = {}; },
        [](DecoderAnswer& a) { a.bitmap.height = -50; },
        [](DecoderAnswer& a) { a.size.width = 102; },
        [](DecoderAnswer& a) {
            a.size = a.bitmap = {101, 51};
        },
        [](DecoderAnswer& a) {
            a.size = a.bitmap = {40'000, 1};
        },
        [](DecoderAnswer& a) { a.pitch = 303; },
        [](DecoderAnswer& a) { a.pitch = 0x80000130; },
        [](DecoderAnswer& a) { a.attributesLength = 21; },
        [](DecoderAnswer& a) { a.attributesLength = ~std::uint64_t{0} - 15'000; },
        [](DecoderAnswer& a) { a.orientation = 0; },
        [](DecoderAnswer& a) { a.orientation = 9; },
        [](DecoderAnswer& a) { a.reasonLength = longestReason + 1; },
        [](DecoderAnswer& a) { a.reasonLength = 1; },
        [](DecoderAnswer& a) { a.outcome = 1; },  // damaged, and yet no reason
        [](DecoderAnswer& a) { SetReason(a, ReasonCode::FileCutShort); },
        [](DecoderAnswer& a) {
            a.outcome = 1;
            SetReason(a, ReasonCode::Cancelled);
        }};
    for (std::size_t n = 0; n < std::size(spoil); ++n) {
        DecoderAnswer spoilt = good;
        spoil[n](spoilt);
        EXPECT_FALSE(IsConsistent(spoilt, request, length)) << n;
    }
    DecoderRequest asStored = request;
    asStored.upright = false;
    EXPECT_TRUE(IsConsistent(good, asStored, length));
    DecoderAnswer turned = good;
    turned.orientation = 8;
    EXPECT_TRUE(IsConsistent(turned, request, length));
    EXPECT_FALSE(IsConsistent(turned, asStored, length));
    DecoderRequest small = request;
    small.kind = ReadKind::Small;
    small.box = {100, 100};
    EXPECT_FALSE(IsConsistent(good, small, length));
    small.kind = ReadKind::Size;
    EXPECT_FALSE(IsConsistent(good, small, length));
}

TEST(IsConsistent, OnlyWholePicturesThatWereAskedForInTheirDepthAreDeep) {
    DecoderRequest request{7, ReadKind::Whole, {60, 60}, std::uint64_t{1} << 32, 30};
    DecoderAnswer deep;
    deep.number = 7;
    deep.format = static_cast<std::uint32_t>(PixelFormat::Bgr16);
    deep.size = deep.bitmap = {50, 50};
    deep.pitch = 300;
    EXPECT_FALSE(IsConsistent(deep, request, 300 * 50));
    request.depth = ReadDepth::Own;
    EXPECT_TRUE(IsConsistent(deep, request, 300 * 50));
    EXPECT_FALSE(IsConsistent(deep, request, 300 * 50 - 1));
    request.kind = ReadKind::Small;
    EXPECT_FALSE(IsConsistent(deep, request, 300 * 50));
}

TEST(ReasonOf, CutsOnlyTextsThatAreTooLong) {
    for (const qsizetype length : {0, 512, 5000}) {
        const QString words(length, QChar(0xFFFD));
        DecoderAnswer answer;
        SetReason(answer, {ReasonCode::Added, ReasonCode::CannotBeDecoded, words});
        ASSERT_TRUE(ReasonOf(answer));
        EXPECT_EQ(*ReasonOf(answer), Reason(ReasonCode::Added, ReasonCode::CannotBeDecoded,
                                            words.left(length > 512 ? 500 : length)));
    }
}

TEST(UnpackAttributes, GivesWhatIsSoundOfAnyBytes) {
    const BitmapMetadata sound{.dotsPerMetreX = 5000,
                               .dotsPerMetreY = 6000,
                               .colourProfile = QByteArray(500, 'p'),
                               .comments = {{"Comment", "text"}, {"Title", "a lake"}},
                               .photo = {},
                               .settings = {}};
    const QByteArray block = PackAttributes(sound);
    EXPECT_EQ(UnpackAttributes(block), sound);
    for (qsizetype length = 0; length < block.size(); ++length) {
        const BitmapMetadata cut = UnpackAttributes(block.left(length));
        EXPECT_LT(cut.comments.size(), 2);
        EXPECT_TRUE(cut.colourProfile.isEmpty() || cut.colourProfile == sound.colourProfile);
    }
    for (qsizetype place = 8; place < block.size(); ++place) {  // after the resolution
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            QByteArray spoilt = block;
            spoilt[place] = value;
            const BitmapMetadata taken = UnpackAttributes(spoilt);
            EXPECT_LE(PackAttributes(taken).size(), block.size());
            EXPECT_FALSE(std::ranges::any_of(
                taken.comments.keys(), [](const QByteArray& key) { return key.contains('\0'); }));
        }
    }
}

TEST(UnpackFileMetadata, GivesWhatIsSoundOfAnyBytes) {
    FileMetadata file;
    file.colourProfile = QByteArray(30, 'p');
    PhotoMetadata& photo = file.metadata;
    photo.exif = {QByteArray("II*\0", 4) + QByteArray(56, 'e'), 8, 20, 32, 44, 10};
    photo.exifForJpeg = {QByteArray("MM\0*", 4) + QByteArray(36, 'j'), 8, 20, 0, 0, 0};
    photo.tiffEntries = QByteArray(24, 't');
    photo.iptc = "captions";
    photo.xmp = "<x:xmpmeta/>";
    photo.xmpPlace = 5;
    photo.origin.Make = Text("Nikon");
    photo.settings = {{Text("Projection"), Text("Horizon")}};
    const QByteArray block = PackFileMetadata(file);
    EXPECT_EQ(UnpackFileMetadata(block).metadata, photo);
    for (qsizetype length = 0; length < block.size(); ++length) {
        EXPECT_TRUE(UnpackFileMetadata(block.left(length)).metadata.IsEmpty()) << length;
    }
    for (qsizetype place = 0; place < block.size(); ++place) {
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            QByteArray spoilt = block;
            spoilt[place] = value;
            const PhotoMetadata taken = UnpackFileMetadata(spoilt).metadata;
            const qsizetype bytes = taken.exif.bytes.size();
            EXPECT_LE(qsizetype{taken.exif.thumbnail} + taken.exif.thumbnailRoom, bytes) << place;
            EXPECT_TRUE(bytes == 0 || taken.exif.bytes.startsWith("II*")) << place;
            EXPECT_LE(taken.xmpPlace, taken.xmp.size()) << place;
        }
    }
}

}  // namespace
}  // namespace varnel
