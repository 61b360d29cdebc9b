// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Which part of a picture is seen, and how large. Picture points are in pixels from its top left
// corner, view points in device pixels from the view's, both with y down. Throws nothing.
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <optional>

namespace varnel {

class PictureZoom {
  public:
    // One of another size is shown whole.
    void SetPicture(QSize picture);
    void SetView(QSize view);

    // The whole picture, as large as the view allows.
    bool Fit() const { return !scale_; }
    // Device pixels to a picture pixel.
    double Scale() const { return scale_.value_or(FitScale()); }
    double FitScale() const;
    // Where the picture's top left corner is in the view: whole, so that a scale of 1 shows every
    // pixel as it is.
    QPoint Corner() const;
    QPointF Centre() const { return centre_; }  // picture point in the middle of the view
    QRectF Visible() const;                     // the part that is in the view, picture pixels
    QPointF ToView(QPointF point) const { return point * Scale() + Corner(); }
    QPointF ToPicture(QPointF point) const { return (point - Corner()) / Scale(); }

    void ShowAll();
    // The picture point comes to the view point, as far as the picture's edges stay outside the
    // view. A scale not above the whole picture's shows that, unless the whole one is enlarged:
    // then there are all from 1 on.
    void Show(double scale, QPointF picturePoint, QPointF viewPoint);
    void Pan(QPointF by);  // device pixels that the picture moves
    // At the same scale and the same share of the way, however large the pictures are.
    void ShowLike(const PictureZoom& other);

    // The scale that many steps of the menu further.
    double Stepped(int steps) const;
    // The scale times the factor; on the way past 1 it stops there.
    double Scaled(double factor) const;
    // The largest there is.
    double Largest() const;

  private:
    bool IsBelowFit(double scale) const;
    QPointF Middle() const { return {view_.width() / 2.0, view_.height() / 2.0}; }
    void Clamp();

    QSize picture_{1, 1};
    QSize view_{1, 1};
    std::optional<double> scale_;
    QPointF centre_{0.5, 0.5};
};

}  // namespace varnel
