// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Tools menu's entry "Crop": while it is checked the result is shown before its crop, which is
// chosen on it. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QObject>
#include <QShortcut>
#include <QTimer>
#include <future>
#include <optional>

#include "app/tools/crop/crop_bar.h"
#include "app/tools/crop/crop_overlay.h"
#include "app/view/window_view.h"
#include "app/workspace/shape/shape_commands.h"

namespace varnel {

class CropTools : public QObject, private CropPort {
    Q_OBJECT
  public:
    CropTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
              Workspace& workspace);

  private:
    std::optional<QRectF> Crop() const override;
    double Shape() const override;
    QSize FrameSize() const override { return result_.Picture(); }
    void Try(const QRectF& crop) override;
    void StoreTried() override;
    void Step(const QRectF& crop) override;
    void Finish() override { entry_->setChecked(false); }

    void Connect();
    void OnToggled(bool on);
    void TakeShape();
    void FindClean();
    void TakeClean();
    void TakeAll();
    void Refresh();
    QString TextFor(const QRectF& crop) const;  // its numbers
    bool MayCrop() const { return !view_.Locked() && commands_.MayChange(); }

    WindowParts parts_;
    PictureBox& result_;
    WindowView& view_;
    Workspace& workspace_;
    ShapeCommands commands_;
    CropOverlay overlay_;
    QShortcut* leave_;  // from wherever in the window the keyboard is
    CropBar* bar_;
    QAction* entry_;
    std::optional<QRectF> tried_;  // while a drag goes on
    QTimer burst_{this};           // while it runs the same step goes on
    std::future<QRectF> clean_;    // being looked for; empty when there is none
    ImageRecord searched_;         // for that record
    QTimer search_{this};
};

}  // namespace varnel
