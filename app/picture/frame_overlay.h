// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The converted picture's border on the photo as shot, to be seen and to be moved. Throws what its
// port throws.
#pragma once

#include <functional>

#include "app/picture/overlay_geometry.h"
#include "app/picture/picture_overlay.h"
#include "state/editing/frame_solver.h"

namespace varnel {

// What the overlay needs of the window: the setting at hand, and sliders to move.
class FramePort {
  public:
    virtual ~FramePort() = default;
    // Null when there is nothing to show.
    virtual const OverlayGeometry* Study() = 0;
    virtual FrameSetting Setting() const = 0;
    virtual bool MayMove() const = 0;
    // While a drag goes on: shown and previewed, not stored.
    virtual void Try(const ControlValues& controls) = 0;
    // The end of a drag that changed something: the slider that stands for it.
    virtual void Store(SliderId slider) = 0;
    virtual void Step(SliderId slider, int by) = 0;
};

class FrameOverlay : public PictureOverlay {
  public:
    explicit FrameOverlay(FramePort& port) : port_(port) {}

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    bool Wheel(const OverlayInput& input, double steps) override;
    // Arrows turn the camera by a degree, plus and minus make the frame wider and narrower.
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    struct Drag {
        std::optional<FramePoint> handle;  // nothing: the frame as a whole
        SourcePosition from;               // of what is moved
        SourcePosition pressed;
        ControlValues before;
    };

    Projection Steered() const;
    std::optional<FramePoint> HandleAt(const OverlayGeometry& study,
                                       const OverlayInput& input) const;
    bool Inside(const OverlayGeometry& study, const OverlayInput& input) const;
    void PaintLoss(QPainter& painter, const QTransform& toWidget, const OverlayGeometry& study);
    void PaintHandles(QPainter& painter, const QTransform& toWidget,
                      const OverlayGeometry& study) const;

    FramePort& port_;
    std::optional<Drag> drag_;
    double turned_ = 0.0;  // parts of a step of the wheel
};

}  // namespace varnel
