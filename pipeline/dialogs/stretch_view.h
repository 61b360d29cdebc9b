// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A picture with the curve of its stretch beside it, row for row. Throws nothing.
#pragma once

#include <QImage>
#include <QWidget>

#include "remap/render/stretch.h"

namespace varnel {

class StretchView : public QWidget {
    Q_OBJECT

  public:
    explicit StretchView(QWidget* parent = nullptr);
    // One picture pixel to a pixel of the screen; an empty one shows a hint.
    void Show(const QImage& picture);
    void Show(const StretchCurve& curve);
    // The space for the picture, logical pixels.
    QSize Room() const;
    QSize sizeHint() const override { return {760, 420}; }
    QSize minimumSizeHint() const override { return {420, 200}; }

  Q_SIGNALS:
    void RoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QRectF PictureRect() const;
    void PaintCurve(QPainter& painter, const QRectF& panel) const;

    QImage picture_;
    StretchCurve curve_;
};

}  // namespace varnel
