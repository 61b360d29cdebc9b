// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/paint.h"

#include <QPainter>

namespace varnel {

QImage ImageOf(FIBITMAP* bitmap) {
    if (bitmap == nullptr) {
        return {};
    }
    const PixelSize size = SizeOf(bitmap);
    const QImage upsideDown(FreeImage_GetBits(bitmap), size.width, size.height,
                            static_cast<qsizetype>(FreeImage_GetPitch(bitmap)),
                            QImage::Format_BGR888);
    return upsideDown.mirrored();
}

int PaintBitmapToDC(FIBITMAP* bitmap, QPainter& painter, int x, int y) {
    const QImage image = ImageOf(bitmap);
    painter.drawImage(QRectF(x, y, image.width(), image.height()), image);
    return image.height();
}

}  // namespace varnel
