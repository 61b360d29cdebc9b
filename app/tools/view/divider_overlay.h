// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The line on the converted picture, to be moved by the mouse or with Ctrl and the arrow keys: left
// of it the photo, or the picture by the classic sampling beside the fine one. Throws nothing.
#pragma once

#include "app/picture/picture_box.h"

namespace varnel {

enum class Division { None, Photo, Sampling };

class DividerOverlay : public PictureOverlay {
  public:
    // classic gives the picture by that sampling at full size.
    DividerOverlay(PictureBox& box, const PictureBox& before, std::function<FullPicture()> classic)
        : box_(box), before_(before), classic_(std::move(classic)) {}
    void Show(Division division);

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    bool Press(const OverlayInput& input) override;
    void Move(const OverlayInput& input) override;
    void Release(const OverlayInput& /*input*/) override {}
    bool Key(const OverlayKey& key) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    // Samplings are compared where the picture is zoomed.
    bool IsShown() const { return !box_.DividedPart().isEmpty() && !box_.StoodInFor(); }
    bool IsAt(const OverlayInput& input) const;
    void MoveTo(double share);

    PictureBox& box_;
    const PictureBox& before_;
    std::function<FullPicture()> classic_;
    Division division_ = Division::None;
    double share_ = 0.5;  // of what is seen of the picture, from the left
};

}  // namespace varnel
