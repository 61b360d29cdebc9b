// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Over the converted picture: where the photo is shrunk and where it is stretched. Throws what the
// given function throws.
#pragma once

#include <functional>

#include "app/picture/overlay_geometry.h"
#include "app/picture/picture_overlay.h"

namespace varnel {

class MagnificationOverlay : public PictureOverlay {
  public:
    // study returns null when there is nothing to show.
    explicit MagnificationOverlay(std::function<const OverlayGeometry*()> study)
        : study_(std::move(study)) {}

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;

  private:
    std::function<const OverlayGeometry*()> study_;
};

}  // namespace varnel
