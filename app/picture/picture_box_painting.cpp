// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a picture box paints.

#include <QPainter>
#include <QScopedValueRollback>

#include "app/picture/picture_box.h"
#include "remap/display/paint_part.h"

namespace varnel {

namespace {

constexpr QColor emptyBox(84, 84, 84);

}  // namespace

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage& image = Source().image_;
    if (image.isNull()) {
        painter.fillRect(rect(), emptyBox);
        painter.setPen(QColor(225, 225, 225));
        painter.drawText(
            rect().adjusted(pictureMargin, pictureMargin, -pictureMargin, -pictureMargin),
            Qt::AlignCenter | Qt::TextWordWrap, hintShown_ ? hint_ : QString());
        return;
    }
    painter.fillRect(rect(), pictureSurround);
    PaintPicture(painter, event->region());
    PaintDivided(painter, event->region());
    const QTransform toWidget = ToWidget();
    for (PictureOverlay* const overlay : overlays_) {
        painter.save();
        overlay->Paint(painter, toWidget, Source().picture_);
        painter.restore();
    }
    if (hasFocus()) {
        PaintFocus(painter);
    }
}

void PictureBox::PaintPicture(QPainter& painter, const QRegion& region) const {
    if (!Zoomed()) {
        PaintWhole(painter);
        return;
    }
    for (const QRect& part : region) {
        PaintZoomed(painter, part);
    }
}

// All that is left of the line: another picture may have another shape.
void PictureBox::PaintDivided(QPainter& painter, const QRegion& region) {
    const QRect divided = DividedPart().toAlignedRect();
    const PictureBox* const other = left_.other;
    if (divided.isEmpty() || standIn_ != nullptr || (other != nullptr && other->image_.isNull())) {
        return;
    }
    const QRect part(0, 0, divided.right() + 1, height());
    painter.save();
    painter.setClipRect(part);
    painter.fillRect(part, pictureSurround);
    const QScopedValueRollback standIn(standIn_, other);
    const QScopedValueRollback full(full_, other == nullptr ? left_.full : full_);
    PaintPicture(painter, region & part);
    painter.restore();
}

// Dark beside light, to be seen on any picture.
void PictureBox::PaintFocus(QPainter& painter) const {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 160), 4.0));
    painter.drawRect(QRectF(rect()).adjusted(2.0, 2.0, -2.0, -2.0));
    painter.setPen(QPen(QColor(255, 255, 255), 1.5));
    painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
}

// The draft is enlarged until there is the picture in this size.
void PictureBox::PaintWhole(QPainter& painter) const {
    const QRectF place = PictureRect();
    const QSize fit = Source().FitSizeIn(*this);
    const QImage* const sharp = Source().SharpFor(fit);
    QImage image = sharp != nullptr ? *sharp : Source().image_;
    if (sharp == nullptr) {
        colour_.Apply(image);
    }
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, image.size() != fit);
    painter.drawImage(place, image);
    painter.restore();
}

// What is around the picture stays as it is.
void PictureBox::ToScreenColours(QImage& part, const QRect& picture) const {
    colour_.Apply(part);
    QPainter around(&part);
    for (const QRect& rect : QRegion(part.rect()).subtracted(picture)) {
        around.fillRect(rect, pictureSurround);
    }
}

// In pixels of the screen, so that at a scale of 1 none is touched by another.
void PictureBox::PaintZoomed(QPainter& painter, const QRect& region) const {
    const double ratio = devicePixelRatioF();
    const QPointF grid = GridOffset();
    const QRect device =
        QRectF(QPointF(region.topLeft()) * ratio + grid, QSizeF(region.size()) * ratio)
            .toAlignedRect();
    QImage part(device.size(), QImage::Format_RGB32);
    part.fill(pictureSurround);
    const PartPlace place{Zoom()->Corner() - device.topLeft(), Zoom()->Scale()};
    const QRectF whole(place.corner, QSizeF(Source().picture_) * place.scale);
    const FullPicture full = Source().full_ ? Source().full_() : FullPicture{};
    if (full.bitmap == nullptr || full.rows != nullptr) {
        QPainter under(&part);
        under.setRenderHint(QPainter::SmoothPixmapTransform);
        under.drawImage(whole, Source().image_);
    }
    if (full.rows != nullptr) {
        PaintPart(full.bitmap, place, part, [&full](int row) { return full.rows->Has(row); });
    } else if (full.bitmap != nullptr) {
        PaintPart(full.bitmap, place, part);
    }
    ToScreenColours(part, whole.toAlignedRect());
    painter.save();
    painter.setWorldTransform(QTransform::fromTranslate(-grid.x() / ratio, -grid.y() / ratio)
                                  .scale(1 / ratio, 1 / ratio));
    painter.drawImage(device.topLeft(), part);
    painter.restore();
}

}  // namespace varnel
