// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The pictures of the current photo at preview size. Rendering does not throw: the status reports
// what is wrong.
#pragma once

#include "app/workspace/workspace_model.h"
#include "app/workspace/workspace_view.h"

namespace varnel {

class PreviewRenderer {
  public:
    PreviewRenderer(WorkspaceModel& model, WorkspaceView& view) : model_(model), view_(view) {}

    // The photo at preview size, into the source picture. Throws std::bad_alloc.
    void Reduce();
    // Draws the current photo's preview, if automatic preview is on.
    void Preview();
    // Draws with the values of the controls without storing anything: while a slider is dragged.
    void PreviewControls();
    void Draw(const ImageRecord& image);

  private:
    PixelSize SizeFor(const ImageRecord& image) const;  // of the draft
    PixelSize FullSize() const;                         // of the photo
    void DrawNow(const ImageRecord& image);

    WorkspaceModel& model_;
    WorkspaceView& view_;
    bool drawAgain_ = false;
};

}  // namespace varnel
