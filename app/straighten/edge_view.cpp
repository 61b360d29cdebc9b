// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/edge_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/image/preview_size.h"

namespace varnel {

EdgeView::EdgeView(const StraightenModel& model, QWidget* parent)
    : PictureBox(tr("Add a photo with many straight edges, out to the rim."), parent),
      model_(model),
      overlay_(model) {
    setObjectName(QStringLiteral("PicEdges"));
    setAccessibleName(tr("The photo with its edges"));
    AddOverlay(&overlay_);
    FollowZoom(&zoom_, [this] { return FullPicture{FullBitmap(), nullptr}; });
    connect(this, &PictureBox::Released, this, &EdgeView::OnReleased);
    connect(this, &PictureBox::ZoomWanted, this, &EdgeView::Zoom);
    connect(this, &PictureBox::Dragged, this, [this](QPointF by) {
        dragged_ = true;
        zoom_.Pan(by);
        update();
    });
}

const Bitmap* EdgeView::FullBitmap() const {
    const auto photo = static_cast<std::size_t>(overlay_.Photo());
    return photo < model_.Photos().size() ? model_.Photos()[photo].bitmap.get() : nullptr;
}

void EdgeView::ShowPhoto(int photo) {
    overlay_.ShowPhoto(photo);
    GiveUpEdge();
    const Bitmap* const full = FullBitmap();
    if (full == nullptr) {
        return;
    }
    const PixelSize room{std::max(View().width(), 1), std::max(View().height(), 1)};
    reduced_ = ReducedCopy(full, PreviewSize(full->Size(), room, room));
    const QSize size(full->Size().width, full->Size().height);
    zoom_.SetPicture(size);
    zoom_.SetView(View());
    PictureBox::Show(reduced_.get(), size);
}

void EdgeView::SelectEdge(int edge) {
    overlay_.Select(edge);
    RedrawOverlays();
}

void EdgeView::GiveUpEdge() {
    if (Begun()) {
        overlay_.Begin(std::nullopt);
        RedrawOverlays();
        Q_EMIT BegunChanged();
    }
}

void EdgeView::Zoom(QPointF point, double steps) {
    const QPointF view = ViewPoint(point);
    zoom_.Show(zoom_.Scaled(std::exp2(steps / 2.0)), zoom_.ToPicture(view), view);
    update();
}

void EdgeView::OnReleased(QPoint position, Qt::MouseButton button) {
    if (std::exchange(dragged_, false) || FullBitmap() == nullptr) {
        return;
    }
    const QTransform toWidget = ToWidget();
    const QPointF point = toWidget.inverted().map(QPointF(position));
    const double pixels = 1.0 / toWidget.m11();  // of the photo, to a point of the screen
    const int edge = Begun() ? -1 : overlay_.EdgeAt(point, 6.0 * pixels);
    if (button == Qt::RightButton && edge >= 0) {
        Q_EMIT MenuWanted(edge, mapToGlobal(position));
    } else if (button == Qt::LeftButton && edge >= 0) {
        Q_EMIT EdgeClicked(edge);
    } else if (button == Qt::LeftButton) {
        ClickFreePlace(point, pixels);
    }
}

void EdgeView::ClickFreePlace(QPointF point, double pixels) {
    if (!Begun()) {
        overlay_.Begin(point);
        RedrawOverlays();
        Q_EMIT BegunChanged();
        return;
    }
    const PixelSize size = FullBitmap()->Size();
    const EdgeClicks clicks{overlay_.Photo(), EdgePlace(*overlay_.Begun(), size),
                            EdgePlace(point, size), 4.0 * pixels};
    GiveUpEdge();
    Q_EMIT EdgeWanted(clicks);
}

void EdgeView::resizeEvent(QResizeEvent* event) {
    PictureBox::resizeEvent(event);
    Q_EMIT RoomChanged();
}

}  // namespace varnel
