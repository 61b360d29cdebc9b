// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/picture_zoom.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varnel {

namespace {

constexpr std::array stops{1.0 / 16, 1.0 / 12, 1.0 / 8, 1.0 / 6, 1.0 / 4, 1.0 / 3, 1.0 / 2, 2.0 / 3,
                           1.0,      1.5,      2.0,     3.0,     4.0,     6.0,     8.0};
constexpr double hair = 1e-6;  // scales closer than that are the same

double ClampedAxis(double centre, double picture, double view) {
    return picture <= view ? picture / 2.0 : std::clamp(centre, view / 2.0, picture - view / 2.0);
}

}  // namespace

void PictureZoom::SetPicture(QSize picture) {
    if (picture != picture_ && !picture.isEmpty()) {
        picture_ = picture;
        ShowAll();
    }
}

void PictureZoom::SetView(QSize view) {
    view_ = view.expandedTo({1, 1});
    if (scale_ && IsBelowFit(*scale_)) {
        ShowAll();
    }
    Clamp();
}

double PictureZoom::FitScale() const {
    return std::min(static_cast<double>(view_.width()) / picture_.width(),
                    static_cast<double>(view_.height()) / picture_.height());
}

double PictureZoom::Largest() const {
    return std::max(stops.back(), FitScale());
}

bool PictureZoom::IsBelowFit(double scale) const {
    const double fit = FitScale();
    return std::fabs(scale - fit) <= hair || scale < std::min(fit, 1.0) - hair;
}

QPoint PictureZoom::Corner() const {
    const QPointF corner = Middle() - centre_ * Scale();
    return {static_cast<int>(std::floor(corner.x() + 0.5)),
            static_cast<int>(std::floor(corner.y() + 0.5))};
}

QRectF PictureZoom::Visible() const {
    const QRectF seen(ToPicture({0.0, 0.0}), QSizeF(view_) / Scale());
    return seen & QRectF(QPointF(), QSizeF(picture_));
}

void PictureZoom::ShowAll() {
    scale_.reset();
    Clamp();
}

void PictureZoom::Show(double scale, QPointF picturePoint, QPointF viewPoint) {
    if (IsBelowFit(scale)) {
        return ShowAll();
    }
    scale_ = std::min(scale, Largest());
    centre_ = picturePoint + (Middle() - viewPoint) / *scale_;
    Clamp();
}

void PictureZoom::Pan(QPointF by) {
    centre_ -= by / Scale();
    Clamp();
}

void PictureZoom::ShowLike(const PictureZoom& other) {
    const QPointF point(other.centre_.x() / other.picture_.width() * picture_.width(),
                        other.centre_.y() / other.picture_.height() * picture_.height());
    Show(other.Scale(), picture_ == other.picture_ ? other.centre_ : point, Middle());
}

double PictureZoom::Stepped(int steps) const {
    double scale = Scale();
    for (; steps > 0; --steps) {
        const auto next = std::ranges::upper_bound(stops, scale + hair);
        scale = next == stops.end() ? stops.back() : *next;
    }
    for (; steps < 0; ++steps) {
        const auto next = std::ranges::lower_bound(stops, scale - hair);
        scale = next == stops.begin() ? 0.0 : *std::prev(next);
    }
    return scale;
}

double PictureZoom::Scaled(double factor) const {
    const double scale = Scale() * factor;
    const bool past = (Scale() - 1.0) * (scale - 1.0) < 0.0 && std::fabs(Scale() - 1.0) > hair;
    return past ? 1.0 : scale;
}

void PictureZoom::Clamp() {
    centre_ = {ClampedAxis(centre_.x(), picture_.width(), view_.width() / Scale()),
               ClampedAxis(centre_.y(), picture_.height(), view_.height() / Scale())};
}

}  // namespace varnel
