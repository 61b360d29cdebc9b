// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/save_bitmap.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <atomic>

#include "base/error_text.h"
#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/image/photo_metadata.h"
#include "tests/support/bitmaps.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

// Large enough for several strips and bands.
BitmapHandle HalfTransparent() {
    BitmapHandle bitmap = NewBitmap({701, 400}, PixelFormat::Bgra8);
    std::uint32_t state = 1;
    for (int y = 0; y < 400; ++y) {
        for (std::uint8_t& byte : ScanLine(bitmap.get(), y)) {
            state = state * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(y % 2 == 0 ? state >> 24U : y);
        }
    }
    return bitmap;
}

TEST(EncodeBitmap, KeepsAlphaWhereTheTypeHoldsItAndElseSaysSo) {
    const BitmapHandle bitmap = HalfTransparent();
    ThreadRunner runner(2);
    for (const auto& [type, format] :
         {std::pair(OutputType::Tiff, FIF_TIFF), std::pair(OutputType::Png, FIF_PNG)}) {
        EncodedBitmap file = EncodeBitmap(type, bitmap.get(), {.runner = &runner});
        ASSERT_TRUE(file.reason.isEmpty() && file.note.isEmpty());
        FIMEMORY* const memory = FreeImage_OpenMemory(reinterpret_cast<BYTE*>(file.bytes.data()),
                                                      static_cast<DWORD>(file.bytes.size()));
        const LibraryBitmap read(FreeImage_LoadFromMemory(format, memory, 0));
        FreeImage_CloseMemory(memory);
        ASSERT_TRUE(read);
        ASSERT_EQ(FreeImage_GetBPP(read.get()), 32U);
        for (int y = 0; y < 400; ++y) {
            ASSERT_TRUE(
                std::ranges::equal(std::span(FreeImage_GetScanLine(read.get(), y), 4U * 701U),
                                   ScanLine(bitmap.get(), y)))
                << y;
        }
    }
    for (const OutputType type : {OutputType::Jpeg, OutputType::Bmp}) {
        const EncodedBitmap file = EncodeBitmap(type, bitmap.get());
        EXPECT_TRUE(file.reason.isEmpty());
        EXPECT_TRUE(file.note.Is(ReasonCode::TypeHoldsNoTransparency));
    }
    // A colour of which half is seen over black.
    const auto line = ScanLine(bitmap.get(), 129);
    const QByteArray bmp = EncodeBitmap(OutputType::Bmp, bitmap.get()).bytes;
    EXPECT_NEAR(testing::PixelAt(testing::FromFile(FIF_BMP, bmp).get(), 5, 129).green,
                line[21] * line[23] / 255.0, 0.51);
}

TEST(SaveBitmap, EveryTypeReadsBackAndReplacesAnOlderFile) {
    const QTemporaryDir folder;
    const BitmapHandle bitmap = testing::PositionPicture({40, 30});
    const std::pair<OutputType, FREE_IMAGE_FORMAT> types[] = {{OutputType::Tiff, FIF_TIFF},
                                                              {OutputType::Jpeg, FIF_JPEG},
                                                              {OutputType::Bmp, FIF_BMP},
                                                              {OutputType::Png, FIF_PNG}};
    for (const auto& [type, format] : types) {
        const QString name = folder.filePath(QStringLiteral("ä %1.x").arg(format));
        testing::WriteFile(name, "older");
        const SaveResult saved = SaveBitmap(type, bitmap.get(), name);
        EXPECT_TRUE(saved.ok) << ErrorText(saved.reason).toStdString();
        const QByteArray path = QFile::encodeName(name);
        EXPECT_EQ(FreeImage_GetFileType(path.constData(), 0), format);
        LibraryBitmap loaded(FreeImage_Load(format, path.constData(), 0));
        ASSERT_TRUE(loaded);
        const BitmapHandle read = TakeOver(std::move(loaded));
        EXPECT_NEAR(testing::PixelAt(read.get(), 25, 11).green, 11, 3);
    }
    EXPECT_EQ(testing::NamesIn(folder.path()).size(), 4);
}

TEST(SaveBitmap, AFailureGivesItsReasonAndLeavesNothingBehind) {
    const QTemporaryDir folder;
    const BitmapHandle bitmap = testing::PositionPicture({4, 3});
    const SaveResult missing =
        SaveBitmap(OutputType::Png, bitmap.get(), folder.filePath(QStringLiteral("no/such.png")));
    EXPECT_FALSE(missing.ok);
    EXPECT_FALSE(missing.reason.isEmpty());
    EXPECT_FALSE(SaveBitmap(OutputType::Png, bitmap.get(), folder.path()).ok);  // a folder
    EXPECT_TRUE(testing::NamesIn(folder.path()).isEmpty());
}

// Whenever it is given up, in any of the moments in which that is asked.
TEST(SaveBitmap, AFileThatIsGivenUpLeavesTheOlderOneAsItWas) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("a"));
    const BitmapHandle bitmap = testing::Noise({500, 400});
    ThreadRunner runner(3);
    for (const OutputType type : AllOutputTypes()) {
        testing::WriteFile(name, "older");
        int before = 0;
        // Of types that ask hundreds of times, the later moments are samples.
        for (bool saved = false; !saved; before += before < 40 ? 1 : before / 4) {
            std::atomic<int> asked = 0;
            const StoppableFile file{name, [&] { return asked++ == before; }};
            saved = SaveBitmap(type, bitmap.get(), file, runner).ok;
            EXPECT_EQ(testing::Contents(name) == "older", !saved) << int(type) << ", " << before;
            EXPECT_EQ(testing::NamesIn(folder.path()).size(), 1) << int(type) << ", " << before;
            ASSERT_EQ(asked > before, !saved);
        }
        EXPECT_GE(before, 5) << int(type);
        EXPECT_EQ(testing::Contents(name), EncodeBitmap(type, bitmap.get()).bytes);
    }
}

TEST(LibraryFile, AFileLargerThanAllowedIsRefusedWhateverTheLibrarySays) {
    const BitmapHandle bitmap = testing::PositionPicture({40, 30});
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_JPEG, FIF_BMP, FIF_PNG}) {
        const QByteArray whole = LibraryFile(format, bitmap.get(), 0).bytes;
        for (const qint64 largest : {0LL, 1LL, whole.size() / 2, whole.size() - 1}) {
            const EncodedBitmap cut = LibraryFile(format, bitmap.get(), 0, largest);
            EXPECT_TRUE(cut.bytes.isEmpty());
            EXPECT_EQ(cut.reason, Reason(ReasonCode::FileTooLarge, largest));
        }
        EXPECT_EQ(LibraryFile(format, bitmap.get(), 0, whole.size()).bytes, whole);
    }
}

TEST(DropMetadata, LeavesNothingButProfileResolutionAndSettings) {
    const BitmapHandle bitmap = testing::PositionPicture({40, 30});
    const PictureSettings settings{{QStringLiteral("Projection"), QStringLiteral("1")}};
    bitmap->metadata.settings = settings;
    bitmap->metadata.colourProfile = QByteArray(200, 'p');
    const QByteArray plain = LibraryFile(FIF_JPEG, bitmap.get(), 90).bytes;
    PhotoMetadata metadata;
    metadata.iptc = "records";
    bitmap->metadata.photo = metadata;
    bitmap->metadata.comments["Comment"] = "a street in Bergen";
    ASSERT_TRUE(LibraryFile(FIF_JPEG, bitmap.get(), 90).bytes.contains("Bergen"));
    DropMetadata(bitmap.get());
    EXPECT_TRUE(bitmap->metadata.photo.IsEmpty());
    EXPECT_EQ(bitmap->metadata.settings, settings);
    EXPECT_EQ(LibraryFile(FIF_JPEG, bitmap.get(), 90).bytes, plain);
    EXPECT_TRUE(bitmap->metadata.comments.isEmpty());
}

TEST(EncodeBitmap, WhatCannotBeEncodedHasAReason) {
    EXPECT_FALSE(EncodeBitmap(OutputType::Png, nullptr).reason.isEmpty());
    const LibraryBitmap numbers(FreeImage_AllocateT(FIT_DOUBLE, 4, 3, 64, 0, 0, 0));
    EXPECT_FALSE(LibraryFile(FIF_JPEG, numbers.get(), 0).reason.isEmpty());
    EXPECT_FALSE(LibraryFile(FIF_UNKNOWN, numbers.get(), 0).reason.isEmpty());
}

}  // namespace
}  // namespace varnel
