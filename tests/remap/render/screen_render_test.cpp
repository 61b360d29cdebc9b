// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the screen shows beside the saved picture reduced to the same size.

#include "remap/render/screen_render.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

#include "remap/render/region_renderer.h"
#include "remap/render/render.h"
#include "tests/support/bitmaps.h"
#include "tests/support/likeness.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

// Waves of all directions, from some pixels to some hundreds long, and hard edges.
BitmapHandle Textured(PixelSize size) {
    return testing::Painted(size, [](int x, int y) {
        const double waves = std::sin(x / 3.1 + y / 7.0) + std::sin((x - 2 * y) / 9.0) +
                             std::sin(x * y / 40000.0) + ((x / 90 + y / 70) % 2 == 0 ? 1.0 : -1.0);
        const auto level = static_cast<BYTE>(128.0 + 28.0 * waves);
        return PixelColor{level, static_cast<BYTE>(255 - level), static_cast<BYTE>(level / 2), 0};
    });
}

struct Case {
    Projection projection;
    PixelSize photo;
    float rotateX, rotateY, offset;
    PixelSize size{};  // of the result; 0: as the photo
    float crop = 0.0F;
};

BitmapHandle OnScreen(const Case& c, const ImageRecord& image, const Bitmap& photo,
                      PixelSize shown) {
    SerialRunner serial;
    const ScreenPlan plan = ScreenPlanFor(image, photo.Size(), shown);
    EXPECT_TRUE(plan.Reduces());
    const BitmapHandle reduced = NewBitmap(plan.source);
    AverageAreas(photo, ReducedPlace(image, plan), *reduced, serial);
    RegionRenderer rows;
    rows.Start(c.projection, image, reduced.get(), DrawnWish(image, plan));
    rows.DrawSome({0, plan.drawn.height - 1}, std::chrono::hours(1));
    BitmapHandle picture = NewBitmap(shown);
    AverageAreas(*rows.Result(), ShownPlace(image, plan, shown), *picture, serial);
    return picture;
}

TEST(ScreenRender, IsAsSharpAsTheSavedPictureReduced) {
    const Case cases[] = {
        {Projection::Rectilinear, {1500, 1000}, 0.0F, 0.0F, 0.0F},
        {Projection::Rectilinear, {1500, 1000}, 20.0F, -15.0F, 13.0F},
        {Projection::Rectilinear, {1001, 1503}, -10.0F, 5.0F, -7.0F},
        {Projection::Varnel, {1500, 1000}, 0.0F, 0.0F, 9.0F},
        {Projection::Equidistance, {1500, 1000}, 0.0F, 0.0F, 0.0F},
        {Projection::Horizon, {1500, 1000}, 0.0F, 0.0F, 0.0F},
        {Projection::Rectilinear, {1500, 1000}, 20.0F, -15.0F, 13.0F, {2000, 900}},
        {Projection::Rectilinear, {1500, 1000}, 5.0F, 8.0F, -7.0F, {}, 0.7F},
        {Projection::Varnel, {1500, 1000}, 0.0F, 0.0F, 9.0F, {900, 900}},
        {Projection::Varnel, {1500, 1000}, 0.0F, 0.0F, 9.0F, {1800, 1200}, 0.75F},
        {Projection::Stereographic, {1500, 1000}, 0.0F, 30.0F, 9.0F, {1400, 1400}, 0.75F},
    };
    for (const Case& c : cases) {
        ImageRecord image = testing::FisheyeRecord();
        image.Landscape = c.photo.width >= c.photo.height;
        image.Projection = static_cast<std::int16_t>(c.projection);
        image.RotateX = c.rotateX;
        image.RotateY = c.rotateY;
        image.OfsetX = image.OfsetY = c.offset;
        image.OutputWidth = c.size.width;
        image.OutputHeight = c.size.height;
        image.CropLeft = image.CropTop = c.crop / 7.0F;
        image.CropWidth = image.CropHeight = c.crop;
        Bitmaps bitmaps;
        bitmaps.FullSourceBitmap = Textured(c.photo);
        const Bitmap& photo = *bitmaps.FullSourceBitmap;
        const PixelSize result = ResultSizeOf(image, c.photo);
        const PixelSize shown{result.width / 4, result.height / 4};
        const BitmapHandle seen = OnScreen(c, image, photo, shown);
        SilentProgress silent;
        RenderContext context{bitmaps};
        Render(c.projection, image, SizeKind::Large, silent, context);
        SerialRunner serial;
        const BitmapHandle saved = NewBitmap(shown);
        AverageAreas(
            *bitmaps.ResultBitmap,
            {{0.0, 1.0 * result.width / shown.width}, {0.0, 1.0 * result.height / shown.height}},
            *saved, serial);
        // Photos reach more: such texture is rare. Half a pixel of the screen aside gives 25 dB.
        EXPECT_GT(testing::Likeness(*seen, *saved), 35.0)
            << static_cast<int>(c.projection) << " " << c.offset << " " << c.size.width << " "
            << c.crop;
    }
}

}  // namespace
}  // namespace varnel
