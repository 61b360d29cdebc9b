// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo with its edges, to click at: one away, or two places for another one. Throws nothing but
// for want of memory.
#pragma once

#include "app/picture/picture_box.h"
#include "app/straighten/edge_overlay.h"
#include "pipeline/photos/picture_zoom.h"

namespace varnel {

class EdgeView : public PictureBox {
    Q_OBJECT
  public:
    explicit EdgeView(const StraightenModel& model, QWidget* parent = nullptr);

    // Of the model's photos, reduced to this view's room. Throws std::bad_alloc.
    void ShowPhoto(int photo);
    int Photo() const { return overlay_.Photo(); }
    // The shown photo as it is on the screen; null without one.
    const Bitmap* Reduced() const { return reduced_.get(); }
    void SelectEdge(int edge);  // -1 for none
    // Whether the first place of an edge was clicked.
    bool Begun() const { return overlay_.Begun().has_value(); }
    void GiveUpEdge();

  Q_SIGNALS:
    void EdgeClicked(int edge);
    void MenuWanted(int edge, QPoint screenPosition);
    void EdgeWanted(const varnel::EdgeClicks& clicks);
    void BegunChanged();
    void RoomChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    const Bitmap* FullBitmap() const;
    void Zoom(QPointF point, double steps);
    void OnReleased(QPoint position, Qt::MouseButton button);
    void ClickFreePlace(QPointF point, double pixels);

    const StraightenModel& model_;
    EdgeOverlay overlay_;
    PictureZoom zoom_;
    BitmapHandle reduced_;
    bool dragged_ = false;  // the picture, since the mouse was pressed
};

}  // namespace varnel
