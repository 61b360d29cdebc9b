// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in the colours of the screen that they are shown on. Throws nothing but for want of
// memory.
#pragma once

#include <QByteArray>
#include <QImage>
#include <memory>

namespace varnel {

class ScreenColour {
  public:
    // Leaves colours as they are.
    ScreenColour() = default;
    // From the picture's profile to the screen's (ICC; empty: sRGB), relative colorimetric with the
    // black points matched. Colours stay as they are where both are empty or one is not of RGB.
    ScreenColour(const QByteArray& picture, const QByteArray& screen);

    // An image of RGB32.
    void Apply(QImage& image) const;

  private:
    std::shared_ptr<void> transform_;
};

}  // namespace varnel
