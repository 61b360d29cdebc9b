// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The hand on the converted picture: a drag takes the grabbed place along, with Shift it rolls; the
// wheel changes the angle of view around the pointer, arrow keys turn, a double-click centres. It
// draws nothing. Throws what its port throws.
#pragma once

#include "app/picture/picture_overlay.h"
#include "state/editing/steering.h"
#include "state/editing/step_names.h"

namespace varnel {

// What the overlay needs of the window.
class SteerPort {
  public:
    virtual ~SteerPort() = default;
    virtual bool MaySteer() const = 0;
    // What the controls stand for now; only while it may be steered.
    virtual Steered Now() const = 0;
    // While a drag goes on: shown and previewed, not stored.
    virtual void Try(const ImageRecord& image) = 0;
    // The end of a drag that changed something.
    virtual void StoreTried(StepKind kind) = 0;
    // At once; what follows soon and is of the same kind belongs to the same step.
    virtual void Step(const ImageRecord& image, StepKind kind) = 0;
    // The keyboard comes to the picture that was taken hold of.
    virtual void TakeKeyboard() = 0;
};

class SteerOverlay : public PictureOverlay {
  public:
    explicit SteerOverlay(SteerPort& port) : port_(port) {}
    // The photo is another one.
    void LetGo() { drag_.reset(); }
    bool Dragging() const { return drag_ && drag_->moved; }

    void Paint(QPainter& /*painter*/, const QTransform& /*toWidget*/, QSize /*picture*/) override {}
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    bool Wheel(const OverlayInput& input, double steps) override;
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    struct Drag {
        QPointF pressed;
        SourcePosition place;  // of the photo, which follows the pointer
        bool rolls = false;
        bool moved = false;
    };

    SteerPort& port_;
    std::optional<Drag> drag_;
};

}  // namespace varnel
