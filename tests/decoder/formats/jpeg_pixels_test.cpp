// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/jpeg_pixels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include "decoder/formats/jpeg_frame.h"
#include "decoder/formats/profiles/rgb_profile.h"
#include "decoder/formats/true_colour.h"
#include "decoder/formats/truncation.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/jpeg_coder.h"
#include "remap/image/image_library.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/jpeg_files.h"
#include "tests/support/seeds/mutate.h"

namespace varnel {
namespace {

// All that becomes of a photo.
struct Photo {
    BitmapHandle bitmap;
    QStringList messages;
    Reason damage;

    void Finish(const PictureFile& file, const LibraryMessages& said) {
        messages = said.Lines();
        damage = DamageOf(InputFormat::Jpeg, file, messages);
    }
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File Opened(QByteArray& bytes) {
    return {fmemopen(bytes.data(), bytes.size(), "rb"), &std::fclose};
}

std::optional<Photo> ByLibrary(QByteArray bytes) {
    const File file = Opened(bytes);
    const PictureFile picture(file.get());
    const ImageLibraryMessages said;
    LibraryPicture loaded = LibraryReader(picture).Whole();
    if (!loaded.Exists()) {
        return std::nullopt;
    }
    BitmapMetadata metadata = loaded.Metadata();
    Photo photo{To24Bits(std::move(loaded), std::move(metadata)), {}, {}};
    photo.Finish(picture, said);
    return photo;
}

std::optional<Photo> Directly(QByteArray bytes) {
    const File file = Opened(bytes);
    const PictureFile picture(file.get());
    const std::optional<PixelSize> size = JpegSize(picture);
    if (!size || size->width == 0 || size->height == 0 || size->width > 2000 ||
        size->height > 2000) {
        return std::nullopt;
    }
    const ImageLibraryMessages said;
    Photo photo{NewBitmap(*size), {}, {}};
    std::optional<BitmapMetadata> metadata = ReadJpegPixels(
        file.get(), *size, {photo.bitmap->SharedPixels().get(), RowPitch(size->width)});
    if (!metadata) {
        EXPECT_TRUE(said.Lines().isEmpty());
        return std::nullopt;
    }
    photo.bitmap->metadata = std::move(*metadata);
    if (!IsProfileForRgb(photo.bitmap->metadata.colourProfile)) {
        photo.bitmap->metadata.colourProfile.clear();
    }
    photo.Finish(picture, said);
    return photo;
}

enum class Wanted { Read, Left, Any };

// Returns the damage that both saw.
Reason ExpectAsByLibrary(const QByteArray& bytes, Wanted wanted) {
    const std::optional<Photo> photo = Directly(bytes);
    if (wanted != Wanted::Any) {
        EXPECT_EQ(photo.has_value(), wanted == Wanted::Read);
    }
    if (!photo) {
        return {};
    }
    const std::optional<Photo> expected = ByLibrary(bytes);
    if (!expected) {
        ADD_FAILURE() << "refused by the library";
        return {};
    }
    EXPECT_TRUE(photo->bitmap->metadata == expected->bitmap->metadata);
    EXPECT_EQ(photo->messages, expected->messages);
    EXPECT_EQ(photo->damage, expected->damage);
    EXPECT_TRUE(testing::SamePixels(photo->bitmap.get(), expected->bitmap.get()));
    return photo->damage;
}

BitmapHandle Picture(PixelSize size) {
    return testing::Painted(size, [](int x, int y) {
        const int grain = (x * x * 31 + y * y * 17 + x * y) % 61;
        return PixelColor{static_cast<BYTE>(x * 4), static_cast<BYTE>(y * 5),
                          static_cast<BYTE>(100 + grain), 0};
    });
}

template <class AnyBitmap>
QByteArray Saved(AnyBitmap* bitmap, int flags) {
    return LibraryFile(FIF_JPEG, bitmap, flags).bytes;
}

TEST(ReadJpegPixels, GivesTheLibrarysPixelsOfEveryKind) {
    for (const PixelSize size : {PixelSize{1, 1}, {17, 33}, {16, 16}, {61, 43}, {300, 5}}) {
        const BitmapHandle bitmap = Picture(size);
        const LibraryBitmap grey(FreeImage_ConvertToGreyscale(testing::InLibrary(*bitmap).get()));
        for (const int flags : {90, 90 | JPEG_SUBSAMPLING_411, 60 | JPEG_SUBSAMPLING_422,
                                100 | JPEG_SUBSAMPLING_444, 5 | JPEG_OPTIMIZE}) {
            for (const int more : {0, JPEG_PROGRESSIVE, JPEG_BASELINE}) {
                SCOPED_TRACE(::testing::Message()
                             << size.width << " x " << size.height << ", " << (flags | more));
                ExpectAsByLibrary(Saved(bitmap.get(), flags | more), Wanted::Read);
                ExpectAsByLibrary(Saved(grey.get(), flags | more), Wanted::Read);
            }
        }
    }
    ExpectAsByLibrary(EncodeJpeg(Picture({1100, 1000}).get(), {OutputType::Jpeg, 80}, {}).bytes,
                      Wanted::Read);
}

TEST(ReadJpegPixels, GivesTheMetadataThatTheLibraryReads) {
    const BitmapHandle photo = Picture({61, 43});
    const LibraryBitmap bitmap = testing::InLibrary(*photo);
    FreeImage_SetThumbnail(bitmap.get(), testing::InLibrary(*Picture({20, 10})).get());
    const QByteArray plain = Saved(bitmap.get(), 90);
    const QByteArray progressive = Saved(bitmap.get(), 90 | JPEG_PROGRESSIVE);
    const QByteArray comment("\xFF\xFE\0\7later", 9);
    const QByteArray empty("\xFF\xFE\0\2\xFF\xE0\0\2\xFF\xE1\0\2\xFF\xED\0\2", 16);
    constexpr int version = 11, densityUnit = 13;  // in the JFIF segment after the start
    const auto changed = [&](int at, char value) {
        return QByteArray(plain).replace(at, 1, &value, 1);
    };
    const LibraryBitmap grey(FreeImage_ConvertToGreyscale(bitmap.get()));
    const QByteArray rows[] = {
        plain,
        testing::Described(plain),
        testing::Described(progressive),
        testing::Described(Saved(grey.get(), 80)),
        changed(densityUnit, '\0'),
        changed(densityUnit, '\2'),
        changed(version, '\2'),
        QByteArray(plain).insert(2, empty),
        QByteArray(plain).insert(plain.size() - 2, comment),
        QByteArray(progressive).insert(progressive.lastIndexOf("\xFF\xDA"), comment),
        QByteArray(progressive).insert(progressive.size() - 2, comment)};
    for (const QByteArray& row : rows) {
        SCOPED_TRACE(std::distance(std::begin(rows), &row));
        ExpectAsByLibrary(row, Wanted::Read);
    }
}

TEST(ReadJpegPixels, TakesRedGreenBlueAndLeavesOtherColoursAndCodings) {
    const BitmapHandle bitmap = Picture({61, 43});
    const QByteArray bare = Saved(bitmap.get(), 95 | JPEG_BASELINE | JPEG_SUBSAMPLING_444);
    const auto withAdobe = [&](char transform) {
        return QByteArray(bare).insert(2, QByteArray("\xFF\xEE\0\x0E"
                                                     "Adobe\0\x64\0\0\0\0",
                                                     15) +
                                              transform);
    };
    ExpectAsByLibrary(withAdobe('\0'), Wanted::Read);
    ExpectAsByLibrary(withAdobe('\1'), Wanted::Read);
    ExpectAsByLibrary(withAdobe('\7'), Wanted::Read);  // gives a warning
    const LibraryBitmap inks(FreeImage_ConvertTo32Bits(testing::InLibrary(*bitmap).get()));
    FreeImage_GetICCProfile(inks.get())->flags |= FIICC_COLOR_IS_CMYK;
    ExpectAsByLibrary(Saved(inks.get(), 90), Wanted::Left);
    QByteArray arithmetic = bare;
    arithmetic[arithmetic.indexOf("\xFF\xC0") + 1] = '\xC9';
    ExpectAsByLibrary(arithmetic, Wanted::Left);
    QByteArray bytes = bare;
    std::array<std::byte, 64 * 3 * 43> rows{};
    EXPECT_FALSE(ReadJpegPixels(Opened(bytes).get(), {60, 43}, {rows.data(), 64 * 3}));
}

TEST(ReadJpegPixels, SeesTheDamageThatTheLibrarySees) {
    const BitmapHandle small = Picture({61, 43});
    const BitmapHandle large = Picture({400, 300});
    const LibraryBitmap grey(FreeImage_ConvertToGreyscale(testing::InLibrary(*small).get()));
    std::vector<QByteArray> files;
    for (const int flags : {92, 92 | JPEG_PROGRESSIVE}) {
        files.push_back(Saved(small.get(), flags));
        files.push_back(Saved(large.get(), flags));
        files.push_back(Saved(grey.get(), flags));
    }
    int damaged = 0;
    const auto look = [&](const QByteArray& file) {
        damaged += ExpectAsByLibrary(file, Wanted::Any).isEmpty() ? 0 : 1;
    };
    for (const QByteArray& file : files) {
        for (int n = 1; n < 16; ++n) {
            SCOPED_TRACE(::testing::Message() << file.size() << " bytes, cut at " << n << "/16");
            look(file.left(file.size() * n / 16));
            look(testing::Described(file.left(file.size() * n / 16)));
        }
    }
    // Not in metadata: the library itself crashes over some.
    testing::Mutator mutator(5);
    for (std::size_t n = 0; n < 400; ++n) {
        SCOPED_TRACE(::testing::Message() << "damage " << n);
        look(mutator.Damaged(files[n % files.size()], files[n / 7 % files.size()]));
    }
    EXPECT_GT(damaged, 200);
}

}  // namespace
}  // namespace varnel
