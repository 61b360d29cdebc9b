// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line between before and after on the converted picture: the photo left of it, to be moved by
// the mouse or with Ctrl and the arrow keys. Throws nothing.
#pragma once

#include "app/picture/picture_box.h"

namespace varnel {

class DividerOverlay : public PictureOverlay {
  public:
    DividerOverlay(PictureBox& box, const PictureBox& before) : box_(box), before_(before) {}
    void Show(bool on);

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& /*input*/) override {}
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    bool IsAt(const OverlayInput& input) const;
    void MoveTo(double share);

    PictureBox& box_;
    const PictureBox& before_;
    bool shown_ = false;
    double share_ = 0.5;  // of what is seen of the picture, from the left
};

}  // namespace varnel
