// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The edges of one photo over it, coloured by how straight they are, and the first end of one that
// is being added. Throws nothing.
#pragma once

#include <optional>

#include "app/picture/picture_overlay.h"
#include "app/straighten/straighten_model.h"

namespace varnel {

class EdgeOverlay : public PictureOverlay {
  public:
    explicit EdgeOverlay(const StraightenModel& model) : model_(model) {}

    void ShowPhoto(int photo) { photo_ = photo; }
    int Photo() const { return photo_; }
    void Select(int edge) { selected_ = edge; }  // -1 for none
    // A place on the photo where an edge begins.
    void Begin(const std::optional<QPointF>& end) { begun_ = end; }
    const std::optional<QPointF>& Begun() const { return begun_; }
    // The edge within reach of the point, picture pixels; -1 for none. Around an edge's own ends is
    // room for another one's.
    int EdgeAt(QPointF point, double reach) const;

    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;
    std::optional<QCursor> CursorAt(const OverlayInput& input) const override;

  private:
    void PaintEdge(QPainter& painter, const QTransform& toWidget, std::size_t edge) const;
    QPointF PointOn(const EdgePoint& place) const;

    const StraightenModel& model_;
    int photo_ = 0;
    int selected_ = -1;
    std::optional<QPointF> begun_;
};

// Between points of overlays, y down, and places of edges.
EdgePoint EdgePlace(QPointF point, PixelSize photo);

}  // namespace varnel
