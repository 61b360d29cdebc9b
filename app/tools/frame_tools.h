// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entries "Frame on the photo" and "Magnification map" with what they show: the
// frame over the photo as shot, the map over the converted picture and the numbers below both.
// Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "app/picture/frame_overlay.h"
#include "app/picture/magnification_overlay.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"

namespace varnel {

class FrameTools : public QObject, private FramePort {
    Q_OBJECT
  public:
    FrameTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
               const WorkingState& state, QObject* parent);

  private:
    const OverlayGeometry* Study() override { return frame_->isChecked() ? Fresh() : nullptr; }
    FrameSetting Setting() const override;
    bool MayMove() const override;
    void Try(const ControlValues& controls) override;
    void Store(SliderId slider) override;
    void Step(SliderId slider, int by) override;

    QAction* AddEntry(const char* name, const QString& text, const QKeySequence& keys);
    void FollowControls();
    // What the conversion would be made from now; nothing without a photo.
    std::optional<ImageRecord> LiveRecord() const;
    PixelSize PhotoSize() const;
    // The study of the live record, worked out anew when that has changed; null when there is no
    // photo or no conversion with its numbers.
    const OverlayGeometry* Fresh();
    void Update();

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    const WorkingState& state_;
    QTimer update_{this};  // fires when the input at hand is handled
    FrameOverlay frameOverlay_;
    MagnificationOverlay map_;
    QAction* frame_;
    QAction* magnification_;
    QLabel* numbers_;
    std::optional<ImageRecord> studied_;
    PixelSize studiedSize_;
    std::unique_ptr<OverlayGeometry> study_;
    bool coarse_ = false;  // it was made while a hand moved
    QElapsedTimer sinceStudy_;
    QTimer refine_{this};
};

}  // namespace varnel
