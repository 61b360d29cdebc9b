// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/contact_sheet.h"

#include <gtest/gtest.h>

#include "remap/projection/projection_info.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

TEST(ContactTiles, AreTheProjectionsInThreeStrengthsAndKeepTheRest) {
    ImageRecord image = testing::FisheyeRecord();
    image.Projection = 1;
    image.EffectRectilinear = 75.0F;
    image.EffectVarnel = 90.0F;
    image.InputAOV = 265.0F;
    image.RotateX = -7.0F;
    const std::vector<ContactTile> tiles = ContactTiles(image);
    ASSERT_EQ(tiles.size(), 42U);
    const struct {
        std::size_t tile;
        const char* title;
        float effectVarnel, effectRectilinear, inputAov;
    } cases[] = {{0, "Varnel 50 %", 50, 75, 265},
                 {2, "Varnel 100 %", 100, 75, 265},
                 {4, "Rectilinear 75 %", 90, 75, 265},
                 {5, "Rectilinear 100 %", 90, 100, 265},
                 {6, "Equidistance 225° hAOV", 90, 75, 225},
                 {8, "Equidistance 280° hAOV", 90, 75, 280},  // the slider's end
                 {9, "Horizon 50 %", 50, 75, 265},
                 {14, "Stereographic 100 %", 90, 100, 265},
                 {26, "Equirectangular 360° hAOV", 90, 75, 265}};
    for (const auto& c : cases) {
        const ContactTile& tile = tiles[c.tile];
        EXPECT_EQ(tile.title, QString::fromUtf8(c.title));
        EXPECT_EQ(tile.record.EffectVarnel, c.effectVarnel) << c.title;
        EXPECT_EQ(tile.record.EffectRectilinear, c.effectRectilinear) << c.title;
        EXPECT_EQ(tile.record.InputAOV, c.inputAov) << c.title;
        EXPECT_EQ(tile.record.RotateX, -7.0F) << c.title;
        EXPECT_TRUE(tile.record.SettingsApplied) << c.title;
        EXPECT_EQ(tile.isCurrent, c.tile == 4) << c.title;
    }
}

TEST(TilePicture, IsThePreviewOfItsSettings) {
    ImageRecord image = testing::FisheyeRecord();
    image.RotateY = 12.0F;
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap = testing::PositionPicture({90, 60});
    RenderContext context{bitmaps, [] { return true; }};
    SilentProgress progress;
    for (const ContactTile& tile : ContactTiles(image)) {
        const BitmapHandle picture = TilePicture(tile, bitmaps.PreviewSourceBitmap.get(), true);
        ImageRecord adopted = image;
        Adopt(tile, adopted);
        Render(ProjectionFromIndex(adopted.Projection), adopted, SizeKind::Thumbnails, progress,
               context);
        EXPECT_TRUE(testing::SamePixels(picture.get(), bitmaps.ResultBitmap.get()))
            << tile.title.toStdString();
    }
}

}  // namespace
}  // namespace varnel
