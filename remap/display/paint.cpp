// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/display/paint.h"

#include <QPainter>

#include "remap/image/pixel_access.h"

namespace varnel {

// Row by row: an image over the bitmap's memory, turned over by QImage, may still be over that
// memory, as one of a single pixel is.
QImage ImageOf(const Bitmap* bitmap) {
    if (bitmap == nullptr) {
        return {};
    }
    const PixelSize size = SizeOf(bitmap);
    QImage image(size.width, size.height, QImage::Format_BGR888);
    for (int y = 0; y < image.height(); ++y) {
        CopyForScreen(bitmap, size.height - 1 - y, image.scanLine(y));
    }
    return image;
}

int PaintBitmapToDC(const Bitmap* bitmap, QPainter& painter, int x, int y) {
    const QImage image = ImageOf(bitmap);
    painter.drawImage(QRectF(x, y, image.width(), image.height()), image);
    return image.height();
}

}  // namespace varnel
