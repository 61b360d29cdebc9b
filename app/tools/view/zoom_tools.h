// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Zoom, pan, before and after, grid and cross: one zoom for both pictures, with its entries in the
// View menu, its keys and the part of the converted picture that is drawn for it. Throws nothing
// but for want of memory.
#pragma once

#include <QLabel>
#include <QMainWindow>

#include "app/picture/picture_lines.h"
#include "app/picture/region_scheduler.h"
#include "app/tools/view/zoom_bar.h"
#include "app/view/window_view.h"
#include "app/workspace/workspace.h"
#include "pipeline/photos/zoom_pair.h"

namespace varnel {

class ZoomTools : public QObject {
    Q_OBJECT
  public:
    ZoomTools(QMainWindow* window, const WindowParts& parts, const WindowView& view,
              const Workspace& workspace, const WorkingState& state);
    // The result by the fine sampling, at 100 % where it was shown whole, and Classic() beside it.
    void CompareSamplings(bool on);
    FullPicture Classic() const { return {classic_.Part().Result(), &classic_.Part()}; }

  private:
    void AddEntries();
    void AddChoices();
    void AddKeys();
    void ConnectBox(PictureBox* box);
    void OnSourceShown();
    void OnResultShown();
    void OnRoomChanged();
    void FollowZoom();
    void SetPicture(PictureZoom& zoom, QSize picture);
    void SetView();
    bool AllShown() const { return zooms_.photo.Fit() && zooms_.result.Fit(); }

    const Bitmap* Photo() const { return state_.bitmaps.FullSourceBitmap.get(); }
    RegionScheduler::Wish Wish(SamplingKind sampling) const;
    void Renew();
    void Drop();
    RowSpan VisibleRows() const;
    PictureBox* Main() const { return parts_.pictures->Main(); }
    bool Follows(const PictureBox* box) const;
    PictureZoom& ZoomOf(const PictureBox* box) {
        return box == to_ && !to_->StoodInFor() ? zooms_.result : zooms_.photo;
    }
    // Makes the scale so, the point of the box's picture staying where it is on the screen.
    void ZoomTo(const PictureBox* box, QPointF point, double scale);
    void ZoomMiddle(double scale);
    void Toggle(const PictureBox* box, QPointF point);
    void ShowAll();
    void ShowScale();
    void ShowZoom();
    void ShowBefore(bool on);

    QMainWindow* window_;
    WindowParts parts_;
    const WindowView& view_;
    const Workspace& workspace_;
    const WorkingState& state_;
    PictureBox* from_;
    PictureBox* to_;
    ZoomPair zooms_;
    RegionScheduler feed_{nullptr};
    RegionScheduler classic_{nullptr};  // while samplings are compared
    bool compares_ = false;
    PictureLines lines_;
    ZoomBar* bar_ = nullptr;
};

}  // namespace varnel
