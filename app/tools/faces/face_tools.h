// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Tools menu's entry "Soften faces": while it is checked, ellipses are drawn on the result by
// hand, within which faces keep their shape. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QObject>

#include "app/tools/faces/face_bar.h"
#include "app/tools/faces/face_overlay.h"
#include "app/view/window_view.h"
#include "app/workspace/shape/shape_commands.h"
#include "app/workspace/workspace.h"

namespace varnel {

class FaceTools : public QObject, private FacePort {
    Q_OBJECT
  public:
    // After the tools that steer the result: it is asked before them.
    FaceTools(QMainWindow* window, const WindowParts& parts, WindowView& view, Workspace& workspace,
              WorkingState& state);

  private:
    std::vector<PictureEllipse> Faces() const override;
    void Put(const std::vector<PictureEllipse>& faces) override;
    void Held() override;
    void Redraw() override;

    void OnToggled(bool on);
    void Leave() { entry_->setChecked(false); }
    void Clear();
    void Refresh();
    bool MayPut() const;
    bool Softens() const;
    // Nothing without a photo.
    std::optional<QRectF> Frame() const;

    WindowParts parts_;
    WindowView& view_;
    Workspace& workspace_;
    WorkingState& state_;
    ShapeCommands commands_;
    FaceOverlay overlay_;
    FaceBar* bar_;
    QAction* entry_;
};

}  // namespace varnel
