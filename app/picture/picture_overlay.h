// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Something drawn over a picture of the main window that may also take the mouse: a grid, a frame,
// a circle. Points are in pixels of the full picture from its top left corner, x to the right, y
// down; the middle of the first pixel is (0.5, 0.5). Throws nothing of its own.
#pragma once

#include <QCursor>
#include <QPainter>
#include <QPointF>
#include <QSize>
#include <QTransform>
#include <optional>

namespace varnel {

struct OverlayInput {
    QPointF point;       // where the mouse is
    double reach = 0.0;  // picture pixels that still count as a hit
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    double pixel = 0.0;    // picture pixels to a point of the screen
    bool doubled = false;  // the second press of a double-click
};

struct OverlayKey {
    int key = 0;         // as in Qt::Key
    QPoint arrow = {};   // (-1, 0) for the left one, (0, -1) for that upward; null for other keys
    int grows = 0;       // 1 for plus, -1 for minus
    double pixel = 0.0;  // picture pixels to a point of the screen
    Qt::KeyboardModifiers modifiers = {};

    int Times() const { return modifiers.testFlag(Qt::ControlModifier) ? 10 : 1; }
};

class PictureOverlay {
  public:
    virtual ~PictureOverlay() = default;
    // toWidget takes points of the picture to the painter's.
    virtual void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) = 0;
    // True takes the mouse: Move and Release then come here.
    virtual bool Press(const OverlayInput& /*input*/) { return false; }
    virtual void Move(const OverlayInput& /*input*/) {}
    virtual void Release(const OverlayInput& /*input*/) {}
    // Steps of the wheel, away from the user is positive; true when they were used.
    virtual bool Wheel(const OverlayInput& /*input*/, double /*steps*/) { return false; }
    // A key was pressed while the picture has the keyboard; true when it was used.
    virtual bool Key(const OverlayKey& /*key*/) { return false; }
    // What the mouse would take hold of there; nothing when it is not this overlay's.
    virtual std::optional<QCursor> CursorAt(const OverlayInput& /*input*/) const {
        return std::nullopt;
    }
};

}  // namespace varnel
