// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The image circle over the photo as shot, to be seen and to be moved by its centre or its rim.
// Throws what the given functions throw.
#pragma once

#include <functional>

#include "app/picture/picture_overlay.h"
#include "remap/analysis/circle_finder.h"

namespace varnel {

class CircleOverlay : public PictureOverlay {
  public:
    // shown gives the circle to draw, if any; moved is called with each circle that it is dragged
    // to; held as a drag begins and as it ends.
    CircleOverlay(std::function<std::optional<ImageCircle>()> shown,
                  std::function<void(const ImageCircle&)> moved, std::function<void()> held)
        : shown_(std::move(shown)), moved_(std::move(moved)), onHeld_(std::move(held)) {}

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    // Arrows move it; with Shift they change the radius, as plus and minus do.
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    enum class Part { None, Centre, Rim };
    Part PartAt(const OverlayInput& input) const;

    std::function<std::optional<ImageCircle>()> shown_;
    std::function<void(const ImageCircle&)> moved_;
    std::function<void()> onHeld_;
    Part held_ = Part::None;
    QPointF grip_;             // from the mouse to the centre
    double gripRadius_ = 0.0;  // from the mouse's distance to the radius
};

}  // namespace varnel
