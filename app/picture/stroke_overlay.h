// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A line traced by hand over a picture: drawn in one drag, or point by point with a click each and
// ended with a second click on the last one. By keyboard the arrows move a cross, Return sets a
// point there, a second one ends the line, and Backspace takes the last point back. Throws what the
// given functions throw.
#pragma once

#include <functional>
#include <vector>

#include "app/picture/picture_overlay.h"

namespace varnel {

class StrokeOverlay : public PictureOverlay {
  public:
    // changed is called when a redraw is needed, finished when the line is complete.
    StrokeOverlay(std::function<void()> changed, std::function<void()> finished)
        : changed_(std::move(changed)), finished_(std::move(finished)) {}

    const std::vector<QPointF>& Points() const { return points_; }
    void Clear();

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    void Finish();
    void MoveCross(const OverlayKey& key);
    void SetAtCross(double pixel);
    void PaintCross(QPainter& painter, const QTransform& toWidget) const;

    std::function<void()> changed_;
    std::function<void()> finished_;
    std::vector<QPointF> points_;
    std::optional<QPointF> cross_;  // where the keyboard is
    QSize picture_;                 // as it was painted last
    bool complete_ = false;         // the next press begins another line
    bool drawn_ = false;            // the mouse moved since it was pressed
    bool ending_ = false;           // pressed on the last point
};

}  // namespace varnel
