// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ellipses over the converted picture, within which faces keep their shape. A drag on the picture
// draws one; dragged inside it moves, by its rim it changes its size, by its knob it turns. By
// keyboard: Space goes to the next one, Insert makes one in the middle, arrows move it, with Shift
// they change its size, as plus and minus do, brackets turn it, Delete takes it away. Throws what
// the port throws.
#pragma once

#include <vector>

#include "app/picture/picture_overlay.h"
#include "state/editing/face_places.h"

namespace varnel {

// What the overlay needs of the window.
class FacePort {
  public:
    virtual ~FacePort() = default;
    virtual std::vector<PictureEllipse> Faces() const = 0;
    // Each state of a drag.
    virtual void Put(const std::vector<PictureEllipse>& faces) = 0;
    // A drag begins or ends.
    virtual void Held() = 0;
    virtual void Redraw() = 0;
};

class FaceOverlay : public PictureOverlay {
  public:
    explicit FaceOverlay(FacePort& port) : port_(port) {}
    // The photo is another one.
    void LetGo();
    bool HasChosen() const { return chosen_ < port_.Faces().size(); }
    void RemoveChosen();

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& input) override;
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    enum class Part { Nothing, Inside, Rim, Knob };
    struct Hit {
        std::size_t face = 0;
        Part part = Part::Nothing;
    };
    Hit HitAt(const OverlayInput& input) const;
    void PaintFace(QPainter& painter, const QTransform& toWidget, std::size_t n) const;
    void MakeAtMiddle();
    bool KeyForChosen(const OverlayKey& key);
    bool ChangeByKey(const OverlayKey& key);
    void PutFace(const PictureEllipse& face);

    FacePort& port_;
    QSize picture_;  // as it was painted last
    std::size_t chosen_ = 0;
    Part held_ = Part::Nothing;
    bool drawing_ = false;  // a new one, which is there once it has a size
    QPointF pressed_;
    PictureEllipse before_;  // of the one that is held
};

}  // namespace varnel
