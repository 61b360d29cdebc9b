// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/metadata_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "base/error_text.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/encode/exif_writer.h"
#include "remap/encode/thumbnail.h"
#include "remap/image/photo_metadata.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using testing::Number;
using testing::Order;
using testing::TiffBytes;
using enum testing::TiffType;

constexpr auto orders = {Order::Little, Order::Big};
constexpr int room = 6000;  // bytes for the thumbnail

std::uint32_t NumberAt(QByteArray bytes, qsizetype place, int length, Order order) {
    bytes = bytes.mid(place, length);
    if (order == Order::Big) {
        std::ranges::reverse(bytes);
    }
    std::uint32_t number = 0;
    for (qsizetype n = bytes.size() - 1; n >= 0; --n) {
        number = number << 8 | static_cast<std::uint8_t>(bytes[n]);
    }
    return number;
}

constexpr std::uint32_t ValuePlace(std::uint32_t directory, std::uint32_t entry) {
    return directory + 2 + 12 * entry + 8;
}

// Of another picture of 1 x 2 pixels.
PhotoMetadata Metadata(Order order) {
    TiffBytes tiff(order);
    const std::uint32_t exif =
        tiff.Directory({{0x829a, Fraction, {1, 250}}, {0xa002, Long, {1}}, {0xa003, Long, {2}}});
    const std::uint32_t thumbnail = tiff.Data(QByteArray(room, 't'));
    const std::uint32_t second = tiff.Directory({{513, Long, {thumbnail}}, {514, Long, {room}}});
    const std::uint32_t first = tiff.Directory({{259, Short, {7}},
                                                {271, Text, {}, QByteArray("a maker", 8)},
                                                {274, Short, {1}},
                                                {282, Fraction, {300, 1}},
                                                {0x8769, Long, {exif}}},
                                               second);
    PhotoMetadata metadata;
    metadata.exif = {tiff.Finish(first), ValuePlace(exif, 1),   ValuePlace(exif, 2),
                     thumbnail,          ValuePlace(second, 1), std::uint32_t{room}};
    metadata.tiffEntries = metadata.exif.bytes.mid(first + 2, 5 * 12);
    metadata.iptc = QByteArray("\x1c\2\5\0\1T", 6) + '!';
    metadata.xmp = "<rdf:RDF>a title</rdf:RDF>";
    metadata.xmpPlace = 16;
    return metadata;
}

// 61 x 43 pixels with metadata of the library's, too.
BitmapHandle Photo(const PhotoMetadata& metadata) {
    BitmapHandle photo = testing::In24Bits(testing::DescribedPicture().get());
    photo->metadata.photo = metadata;
    photo->metadata.settings = {{QStringLiteral("A"), QStringLiteral("<\1&")}};
    return photo;
}

const QByteArray packetWithSettings =
    "<rdf:RDF>a title<rdf:Description rdf:about=\"\" "
    "xmlns:varnel=\"http://ns.varnel.example/settings/1.0/\">\n"
    "<varnel:A>&lt;&amp;</varnel:A>\n</rdf:Description>\n</rdf:RDF>";
const QByteArray iptcResource("8BIM\4\4\0\0\0\0\0\7\x1c\2\5\0\1T!\0", 20);

// The bytes are the block's own with the size and the thumbnail of the seeds' picture.
void ExpectNewExif(QByteArray bytes, const PhotoMetadata& metadata, Order order) {
    const ExifBlock& exif = metadata.exif;
    ASSERT_EQ(bytes.size(), exif.bytes.size());
    EXPECT_EQ(NumberAt(bytes, exif.width, 4, order), 61U);
    EXPECT_EQ(NumberAt(bytes, exif.height, 4, order), 43U);
    const auto length = static_cast<int>(NumberAt(bytes, exif.thumbnailLength, 4, order));
    const BitmapHandle thumbnail = testing::FromFile(FIF_JPEG, bytes.mid(exif.thumbnail, length));
    ASSERT_TRUE(thumbnail);
    EXPECT_EQ(SizeOf(thumbnail.get()).width, 61);
    EXPECT_EQ(SizeOf(thumbnail.get()).height, 43);
    EXPECT_EQ(bytes.mid(exif.thumbnail + length, room - length), QByteArray(room - length, '\0'));
    for (const auto& [place, count] : std::map<std::uint32_t, int>{{exif.width, 4},
                                                                   {exif.height, 4},
                                                                   {exif.thumbnailLength, 4},
                                                                   {exif.thumbnail, room}}) {
        bytes.replace(place, count, exif.bytes.mid(place, count));
    }
    EXPECT_EQ(bytes, exif.bytes);
}

// Of a JPEG file, up to the pixels: the marker and the data.
std::multimap<int, QByteArray> Segments(const QByteArray& file) {
    std::multimap<int, QByteArray> segments;
    for (qsizetype at = 2; at < file.size() && !segments.contains(0xda);) {
        const auto length = static_cast<qsizetype>(NumberAt(file, at + 2, 2, Order::Big));
        segments.insert({static_cast<std::uint8_t>(file[at + 1]), file.mid(at + 4, length - 2)});
        at += 2 + length;
    }
    return segments;
}

TEST(EncodeBitmap, SaysWhatThePictureCoversOfTheSphere) {
    BitmapHandle photo = testing::In24Bits(testing::DescribedPicture().get());
    photo->metadata.panorama =
        PanoramaInfo{PanoramaLayout::Equirectangular, 122, 61, 30, 9, 61, 43, 271.255};
    for (const OutputType type : {OutputType::Jpeg, OutputType::Png, OutputType::Tiff}) {
        const QByteArray file = EncodeBitmap({type, 90, false}, photo.get()).bytes;
        for (const char* part :
             {"<GPano:ProjectionType>equirectangular</GPano:ProjectionType>",
              "<GPano:FullPanoWidthPixels>122<", "<GPano:FullPanoHeightPixels>61<",
              "<GPano:CroppedAreaLeftPixels>30<", "<GPano:CroppedAreaTopPixels>9<",
              "<GPano:CroppedAreaImageWidthPixels>61<", "<GPano:CroppedAreaImageHeightPixels>43<",
              "<GPano:PoseHeadingDegrees>271.2"}) {
            EXPECT_EQ(file.count(part), 1) << part;
        }
    }
    const EncodedBitmap bmp = EncodeBitmap({OutputType::Bmp, 90, false}, photo.get());
    EXPECT_FALSE(bmp.note.isEmpty());
}

TEST(EncodeBitmap, PutsEachKindOfMetadataOnceIntoAJpegFile) {
    for (const Order order : orders) {
        for (const bool chroma444 : {false, true}) {
            const PhotoMetadata metadata = Metadata(order);
            const EncodedBitmap file =
                EncodeBitmap({OutputType::Jpeg, 90, chroma444}, Photo(metadata).get());
            EXPECT_TRUE(file.note.isEmpty());
            EXPECT_EQ(file.bytes.mid(2, 2), "\xff\xe0");
            const auto segments = Segments(file.bytes);
            ASSERT_EQ(segments.count(0xe1), 2U);
            const auto exif = segments.find(0xe1);
            EXPECT_TRUE(exif->second.startsWith(QByteArray("Exif\0\0", 6)));
            ExpectNewExif(exif->second.mid(6), metadata, order);
            EXPECT_EQ(std::next(exif)->second,
                      QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + packetWithSettings);
            ASSERT_EQ(segments.count(0xed), 1U);
            EXPECT_EQ(segments.find(0xed)->second,
                      QByteArray("Photoshop 3.0\0", 14) + iptcResource);
            EXPECT_EQ(segments.count(0xe0), 1U);  // no thumbnail of the old picture
            EXPECT_EQ(segments.count(0xe2), 1U);  // the colour profile
            EXPECT_TRUE(testing::FromFile(FIF_JPEG, file.bytes));
        }
    }
}

TEST(EncodeBitmap, PutsEachKindOfMetadataOnceIntoAPngFile) {
    for (const Order order : orders) {
        const PhotoMetadata metadata = Metadata(order);
        const BitmapHandle photo = Photo(metadata);
        const EncodedBitmap file = EncodeBitmap(OutputType::Png, photo.get());
        std::multimap<QByteArray, QByteArray> chunks;
        for (qsizetype at = 8; at < file.bytes.size() && !chunks.contains("IDAT");) {
            const QByteArray type = file.bytes.mid(at + 4, 4);
            const auto length = NumberAt(file.bytes, at, 4, Order::Big);
            const QByteArray data = file.bytes.mid(at + 8, length);
            EXPECT_EQ(file.bytes.mid(at, length + 12), testing::PngChunk(type.constData(), data));
            chunks.insert({type, data});
            at += length + 12;
        }
        ASSERT_EQ(chunks.count("eXIf"), 1U);
        ExpectNewExif(chunks.find("eXIf")->second, metadata, order);
        EXPECT_EQ(chunks.count("iTXt"), 2U);  // the comment
        EXPECT_TRUE(std::ranges::count(
            chunks,
            std::pair<const QByteArray, QByteArray>(
                "iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + packetWithSettings)));
        ASSERT_EQ(chunks.count("zTXt"), 1U);
        const QByteArray text = chunks.find("zTXt")->second;
        EXPECT_TRUE(text.startsWith(QByteArray("Raw profile type iptc\0\0", 23)));
        EXPECT_EQ(qUncompress(Number(1000, 4, Order::Big) + text.mid(23)),
                  "\niptc\n      20\n3842494d04040000000000071c02050001542100\n");
        EXPECT_TRUE(testing::SamePixels(testing::FromFile(FIF_PNG, file.bytes).get(), photo.get()));
    }
}

// Places in the block hold in the file, because the file begins with the block.
TEST(EncodeBitmap, PutsEachKindOfMetadataOnceIntoATiffFile) {
    for (const Order order : orders) {
        const PhotoMetadata metadata = Metadata(order);
        const ExifBlock& exif = metadata.exif;
        const BitmapHandle photo = Photo(metadata);
        const QByteArray file = EncodeBitmap(OutputType::Tiff, photo.get()).bytes;
        EXPECT_EQ(file.first(4), exif.bytes.first(4));
        EXPECT_EQ(NumberAt(file, exif.width, 4, order), 61U);
        EXPECT_EQ(NumberAt(file, exif.height, 4, order), 43U);
        EXPECT_EQ(file.mid(8, exif.width - 8), exif.bytes.mid(8, exif.width - 8));
        EXPECT_FALSE(file.contains("tttt"));
        const std::uint32_t directory = NumberAt(file, 4, 4, order);
        std::map<std::uint32_t, QByteArray> entries;
        const std::uint32_t count = NumberAt(file, directory, 2, order);
        for (std::uint32_t n = 0; n < count; ++n) {
            const QByteArray entry = file.mid(directory + 2 + n * 12, 12);
            entries.insert(entries.end(), {NumberAt(entry, 0, 2, order), entry});
        }
        ASSERT_EQ(entries.size(), count);  // in order, none twice
        EXPECT_EQ(NumberAt(file, directory + 2 + count * 12, 4, order), 0U);
        const QByteArray lzw = Number(259, 2, order) + Number(3, 2, order) + Number(1, 4, order) +
                               Number(5, 2, order) + QByteArray(2, '\0');
        EXPECT_EQ(entries[259], lzw);
        EXPECT_EQ(entries[271], metadata.tiffEntries.mid(12, 12));
        EXPECT_EQ(entries[282], metadata.tiffEntries.mid(36, 12));
        EXPECT_EQ(entries[0x8769], metadata.tiffEntries.last(12));
        EXPECT_FALSE(entries.contains(330) || entries.contains(513));  // thumbnails
        const auto value = [&](std::uint32_t tag, std::uint32_t bytes) {
            return file.mid(NumberAt(entries[tag], 8, 4, order),
                            bytes * NumberAt(entries[tag], 4, 4, order));
        };
        EXPECT_EQ(value(700, 1), packetWithSettings);
        EXPECT_EQ(order == Order::Big ? value(34377, 1) : value(33723, 4),
                  order == Order::Big ? iptcResource : metadata.iptc + '\0');
        EXPECT_FALSE(order == Order::Big && entries.contains(33723));
        EXPECT_EQ(value(258, 2), Number(8, 2, order).repeated(3));
        // Beside EXIF, the library takes the colour profile out of memory that it has let go.
        const QByteArray& profile = entries[34675];
        ASSERT_EQ(profile.size(), 12);
        const QByteArray hidden = Number(34674, 2, order) + profile.mid(2);
        const BitmapHandle read =
            testing::FromFile(FIF_TIFF, QByteArray(file).replace(profile, hidden));
        EXPECT_TRUE(testing::SamePixels(read.get(), photo.get()));
    }
}

TEST(EncodeBitmap, SaysWhatAFileCannotHold) {
    constexpr qsizetype segment = 65533;
    const struct {
        OutputType type;
        void (*change)(PhotoMetadata&);
        const char16_t* note;
        bool hasSettings;
    } cases[] = {
        {OutputType::Jpeg, [](PhotoMetadata& photo) { photo.exif.bytes.resize(segment - 6, '\0'); },
         u"", true},
        {OutputType::Jpeg, [](PhotoMetadata& photo) { photo.exif.bytes.resize(segment - 5, '\0'); },
         u"written without its EXIF: too long for a JPEG file", true},
        {OutputType::Jpeg,
         [](PhotoMetadata& photo) {
             photo.exifForJpeg = photo.exif;
             photo.exif.bytes.resize(segment, '\0');
         },
         u"written without part of its EXIF: too long for a JPEG file", true},
        {OutputType::Jpeg,
         [](PhotoMetadata& photo) { photo.iptc.resize(segment - 14 - 12 - 1, '\0'); }, u"", true},
        {OutputType::Jpeg, [](PhotoMetadata& photo) { photo.iptc.resize(segment - 14 - 12, '\0'); },
         u"written without its IPTC: too long for a JPEG file", true},
        {OutputType::Jpeg,
         [](PhotoMetadata& photo) {
             photo.xmp.resize(65400, ' ');
             photo.iptc.resize(segment, '\0');
         },
         u"written without its XMP: too long for a JPEG file; "
         u"written without its IPTC: too long for a JPEG file",
         true},
        {OutputType::Png, [](PhotoMetadata& photo) { photo.xmp.resize(segment + 1, ' '); }, u"",
         true},
        {OutputType::Tiff, [](PhotoMetadata& photo) { photo.xmpPlace = 0; },
         u"written without its settings: the photo's XMP has no place for them", false},
        {OutputType::Tiff, [](PhotoMetadata& photo) { photo = {}; }, u"", true},
        {OutputType::Bmp, [](PhotoMetadata&) {},
         u"BMP files hold no metadata, settings or colour profile", false},
        {OutputType::Bmp, [](PhotoMetadata& photo) { photo = {}; },
         u"BMP files hold no settings or colour profile", false},
        {OutputType::Bmp,
         [](PhotoMetadata& photo) {  // what every photo gets
             photo.tiffEntries = photo.tiffEntries.mid(24);
             photo.iptc.clear();
         },
         u"BMP files hold no settings or colour profile", false},
    };
    for (const auto& row : cases) {
        PhotoMetadata metadata = Metadata(Order::Big);
        row.change(metadata);
        const EncodedBitmap file = EncodeBitmap(row.type, Photo(metadata).get());
        EXPECT_EQ(ErrorText(file.note), QStringView(row.note)) << &row - cases;
        EXPECT_EQ(file.bytes.count("<varnel:A>&lt;&amp;</varnel:A>"), row.hasSettings)
            << &row - cases;
    }
}

TEST(EncodeBitmap, ABmpFileThatLosesOnlyItsProfileSaysSoAndOneThatLosesNothingIsSilent) {
    const BitmapHandle photo = Photo({});
    photo->metadata.settings = {};
    EXPECT_EQ(EncodeBitmap(OutputType::Bmp, photo.get()).note,
              Reason(ReasonCode::TypeHoldsNoProfile, QStringLiteral("BMP")));
    photo->metadata.colourProfile.clear();
    EXPECT_TRUE(EncodeBitmap(OutputType::Bmp, photo.get()).note.isEmpty());
}

TEST(EncodeBitmap, AProfileThatAnEncoderRefusesDoesNotCostTheMetadata) {
    const BitmapHandle photo = Photo(Metadata(Order::Little));
    photo->metadata.colourProfile = QByteArray(200, 'x');
    const EncodedBitmap png = EncodeBitmap(OutputType::Png, photo.get());
    EXPECT_TRUE(png.note.Is(ReasonCode::WithoutProfile));
    EXPECT_TRUE(png.bytes.startsWith("\x89PNG") && png.bytes.contains("eXIf") &&
                png.bytes.contains(packetWithSettings));
}

TEST(WrittenExif, HasNoThumbnailWithoutRoomAndTouchesNothingBeyondItsEnd) {
    const BitmapHandle photo = testing::PositionPicture({200, 100});
    const QByteArray bytes("II*\0....wwwwhhhhllll....tttttttt", 32);
    EXPECT_EQ(WrittenExif({bytes, 8, 12, 24, 16, 8}, photo.get()),
              QByteArray("II*\0....\xc8\0\0\0d\0\0\0\0\0\0\0....\0\0\0\0\0\0\0\0", 32));
    EXPECT_EQ(WrittenExifWithoutThumbnail({bytes, 8, 12, 24, 16, 8}, {5, 6}),
              QByteArray("II*\0....\5\0\0\0\6\0\0\0\0\0\0\0....", 24));
    EXPECT_EQ(WrittenExif({bytes, 29, 0xFFFFFFFE, 24, 40, 9}, photo.get()), bytes);
}

TEST(ThumbnailOf, FitsItsBoxAndAveragesThePicture) {
    const std::pair<PixelSize, PixelSize> sizes[] = {
        {{6000, 4000}, {160, 107}}, {{4000, 3000}, {160, 120}}, {{3000, 4000}, {120, 160}},
        {{700, 690}, {122, 120}},   {{9000, 20}, {160, 1}},     {{3, 900}, {1, 160}},
        {{50, 40}, {50, 40}}};
    for (const auto& [size, expected] : sizes) {
        const BitmapHandle thumbnail = ThumbnailOf(NewBitmap(size).get());
        EXPECT_EQ(SizeOf(thumbnail.get()).width, expected.width);
        EXPECT_EQ(SizeOf(thumbnail.get()).height, expected.height);
    }
    // Columns and rows of 3 pixels each become one pixel: every pixel counts.
    const BitmapHandle picture = testing::Painted({480, 360}, [](int x, int y) {
        return PixelColor{static_cast<BYTE>(x % 3 * 60 + x / 3), static_cast<BYTE>(y / 3),
                          static_cast<BYTE>(y % 3 == 2 ? 90 : 0), 0};
    });
    const BitmapHandle thumbnail = ThumbnailOf(picture.get());
    for (const auto& [x, y] : {std::pair{0, 0}, {7, 100}, {120, 119}}) {
        const PixelColor colour = testing::PixelAt(thumbnail.get(), x, y);
        EXPECT_EQ(int{colour.blue}, 60 + x);
        EXPECT_EQ(int{colour.green}, y);
        EXPECT_EQ(int{colour.red}, 30);
    }
}

}  // namespace
}  // namespace varnel
