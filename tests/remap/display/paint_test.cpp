// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/display/paint.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/bitmaps.h"

namespace varnel {
namespace {

TEST(ImageOf, OwnsItsPixelsWhateverItsSize) {
    for (const PixelSize size : {PixelSize{1, 1}, {1, 2}, {2, 1}, {3, 2}, {1, 3000}, {3000, 1}}) {
        std::vector<std::byte> memory(static_cast<std::size_t>((size.width * 3 + 3) / 4 * 4) *
                                      static_cast<std::size_t>(size.height));
        BitmapHandle bitmap = BitmapOver(memory.data(), size);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                SetPixelColor(bitmap.get(), x, y,
                              {static_cast<BYTE>(x), static_cast<BYTE>(y), 7, 0});
            }
        }
        const QImage image = ImageOf(bitmap.get());
        bitmap.reset();
        std::ranges::fill(memory, std::byte{99});
        ASSERT_EQ(image.size(), QSize(size.width, size.height));
        for (const QPoint point : {QPoint(), image.rect().bottomRight()}) {
            const int row = size.height - 1 - point.y();
            EXPECT_EQ(image.pixel(point), qRgb(7, row % 256, point.x() % 256))
                << size.width << " x " << size.height;
        }
    }
}

}  // namespace
}  // namespace varnel
