// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Walking through the list: neighbours are read ahead, and what was left is not read again.

#include "pipeline/photos/photo_shelf.h"

#include <gtest/gtest.h>

#include <QTest>
#include <utility>

#include "remap/encode/save_bitmap.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class PhotoShelfTest : public ::testing::Test {
  protected:
    QString Photo(const char* name, PixelSize size = {30, 20}) {
        return files.Picture(Text(name), OutputType::Bmp, size);
    }
    bool ReadsAhead(const QString& path) {
        return QTest::qWaitFor([&] { return shelf.Has(path); });
    }

    testing::PictureFolder files;
    GeneralSettings settings;
    PhotoShelf shelf{[] { return NewPictureReader(); }, settings,
                     [](PixelSize /*photo*/) {
                         return PixelSize{6, 4};
                     }};
};

TEST_F(PhotoShelfTest, NeighboursAreReadAheadTheFirstOneFirst) {
    const QString next = Photo("next.bmp");
    const QString before = Photo("before.bmp", {20, 30});
    shelf.ReadAhead({next, files.Path(Text("missing.bmp")), before});
    ASSERT_TRUE(ReadsAhead(before));
    ASSERT_TRUE(shelf.Has(next));
    const std::optional<ShelvedPhoto> taken = shelf.Take(before);
    ASSERT_TRUE(taken && taken->picture.bitmap && taken->reduced);
    EXPECT_EQ(taken->picture.bitmap->Size().height, 30);
    EXPECT_EQ(taken->reduced->Size().height, 4);
    EXPECT_FALSE(shelf.Take(before));
}

TEST_F(PhotoShelfTest, AChangedFileOrSettingIsReadAnew) {
    const QString path = Photo("a.bmp");
    shelf.ReadAhead({path});
    ASSERT_TRUE(ReadsAhead(path));
    settings.AutoOrient = !settings.AutoOrient;
    EXPECT_FALSE(shelf.Has(path));
    settings.AutoOrient = !settings.AutoOrient;
    EXPECT_TRUE(shelf.Has(path));
    Photo("a.bmp", {31, 20});
    EXPECT_FALSE(shelf.Take(path));
}

TEST_F(PhotoShelfTest, PhotosComeInTheDepthThatTheSettingsWant) {
    const QString path = files.Path(Text("deep.tif"));
    OutputEncoding encoding(OutputType::Tiff);
    encoding.depth = OutputDepth::Own;
    ASSERT_TRUE(SaveBitmap(encoding, NewBitmap({30, 20}, PixelFormat::Bgr16).get(), path));
    for (const auto& [keeps, format] :
         {std::pair{false, PixelFormat::Bgr8}, {true, PixelFormat::Bgr16}}) {
        settings.KeepDepth = keeps;
        shelf.ReadAhead({path});
        ASSERT_TRUE(ReadsAhead(path));
        settings.KeepDepth = !keeps;
        EXPECT_FALSE(shelf.Has(path));
        settings.KeepDepth = keeps;
        const std::optional<ShelvedPhoto> taken = shelf.Take(path);
        ASSERT_TRUE(taken && taken->picture.bitmap);
        EXPECT_EQ(taken->picture.bitmap->Format(), format);
    }
}

TEST_F(PhotoShelfTest, HoldsFourAndThoseThatWerePutLast) {
    std::vector<QString> paths;
    for (const char* const name : {"1.bmp", "2.bmp", "3.bmp", "4.bmp", "5.bmp"}) {
        paths.push_back(Photo(name));
        shelf.Put(paths.back(), {{LoadOutcome::Loaded, NewBitmap({3, 2}), {}, {3, 2}}, nullptr});
    }
    EXPECT_FALSE(shelf.Has(paths.front()));
    for (std::size_t n = 1; n < paths.size(); ++n) {
        EXPECT_TRUE(shelf.Has(paths[n])) << n;
    }
}

}  // namespace
}  // namespace varnel
