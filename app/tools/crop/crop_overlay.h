// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The crop over the uncropped result, to be seen with its thirds and to be moved: its corners and
// sides widen it, inside it is moved, outside nothing is. Throws what its port throws.
#pragma once

#include <optional>

#include "app/picture/picture_overlay.h"
#include "app/tools/crop/crop_geometry.h"

namespace varnel {

// What the overlay needs of the window.
class CropPort {
  public:
    virtual ~CropPort() = default;
    // In shares of the frame; nothing when there is none to show.
    virtual std::optional<QRectF> Crop() const = 0;
    virtual double Shape() const = 0;     // in shares; 0 for any
    virtual QSize FrameSize() const = 0;  // in pixels
    // While a drag goes on: shown, not stored.
    virtual void Try(const QRectF& crop) = 0;
    // The end of a drag.
    virtual void StoreTried() = 0;
    // At once; what follows soon belongs to the same step.
    virtual void Step(const QRectF& crop) = 0;
    // Return was pressed.
    virtual void Finish() = 0;
};

class CropOverlay : public PictureOverlay {
  public:
    explicit CropOverlay(CropPort& port) : port_(port) {}
    void LetGo() { drag_.reset(); }

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    bool Wheel(const OverlayInput& input, double steps) override;
    // Arrows move it; with Shift they widen and narrow it, plus and minus on all sides.
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    struct Drag {
        CropGrip grip;
        QPointF pressed;  // shares
        QRectF from;
    };
    QPointF ShareOf(QPointF point) const;
    // Nothing outside.
    std::optional<CropGrip> GripAt(const OverlayInput& input) const;
    QRectF KeyMoved(const QRectF& crop, const OverlayKey& key) const;

    CropPort& port_;
    std::optional<Drag> drag_;
};

}  // namespace varnel
