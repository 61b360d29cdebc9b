// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One of the two pictures of the main window, whole or in part. Throws nothing but what its
// overlays and the given function throw.
#pragma once

#include <QColor>
#include <QImage>
#include <QMouseEvent>
#include <QTransform>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "app/picture/picture_overlay.h"
#include "pipeline/photos/picture_zoom.h"
#include "remap/display/screen_colour.h"
#include "remap/render/region_renderer.h"

namespace varnel {

// Around pictures: neutral, so that it does not tint the view.
inline constexpr QColor pictureSurround(96, 96, 96);
inline constexpr int pictureMargin = 12;  // logical pixels around and between pictures

class PictureBox;

// What of a picture is drawn at full size.
struct FullPicture {
    const Bitmap* bitmap = nullptr;
    const RegionRenderer* rows = nullptr;  // those that are drawn; null when all are
};

// What is shown left of a line: another box's picture or, of this box's zoomed picture, other
// pixels at full size. Neither: there is no line.
struct LeftPart {
    const PictureBox* other = nullptr;
    std::function<FullPicture()> full = nullptr;
};

// Shows one bitmap as large as the box allows, or a hint without one.
class PictureBox : public QWidget {
    Q_OBJECT
  public:
    explicit PictureBox(const QString& hint, QWidget* parent = nullptr);
    // Null empties the box. full is the size of the picture that the bitmap is a reduced copy of;
    // without one the bitmap is the picture.
    void Show(const Bitmap* bitmap, QSize full = {});
    // The same picture made for the sizes that it is shown in, until another is shown.
    void ShowSharp(std::vector<QImage> images);
    // From the picture's colours to the screen's; the sharp pictures have to come again.
    void SetColour(const ScreenColour& colour);
    // The whole picture here, device pixels; empty without one.
    QSize FitSize() const { return FitSizeIn(*this); }
    QSize FitSizeIn(const PictureBox& box) const;  // where that one shows this picture
    bool IsWhole() const { return Zoom() == nullptr || Zoom()->Fit(); }
    // Whether an empty box shows its hint.
    void SetHintShown(bool shown) {
        hintShown_ = shown;
        update();
    }
    bool Empty() const { return image_.isNull(); }

    // Shows the part that the zoom selects, until it fits, from the full-size picture; what is not
    // drawn of it is the enlarged bitmap. Another box's picture in this one's place has a zoom of
    // its own. Zooms have to exist as long as the box is painted.
    void FollowZoom(const PictureZoom* zoom, std::function<FullPicture()> full,
                    const PictureZoom* standInZoom = nullptr);
    // Shows the other box's picture instead, if any.
    void StandIn(const PictureBox* other);
    bool StoodInFor() const { return standIn_ != nullptr; }
    // The line is at that share of what is seen of the picture, from the left.
    void Divide(LeftPart left, double share) {
        left_ = std::move(left);
        divided_ = share;
        update();
    }
    // What is seen of the picture, and what of that is left of the line; points of this widget.
    QRectF SeenPart() const { return PictureRect() & QRectF(rect()); }
    QRectF DividedPart() const;
    // In device pixels, as a zoom has it.
    QSize View() const;
    QPointF ViewPoint(QPointF point) const;  // from a point of this widget
    // Of some rows of the full-size picture, from 0 at the bottom, new pixels are drawn.
    void RedrawRows(RowSpan rows);
    // While held, any drag of the left button moves the picture.
    void HoldPan(bool held);

    QSize Picture() const { return picture_; }
    // The rectangle of the whole picture that is shown here, logical pixels of this widget.
    QRectF PictureRect() const;
    // From points of the picture, (0, 0) being its top left corner, to points of this widget.
    QTransform ToWidget() const;

    // Not owned, and never deleted before the box or without RemoveOverlay. The one added last is
    // drawn last and asked first.
    void AddOverlay(PictureOverlay* overlay);
    void RemoveOverlay(PictureOverlay* overlay);
    void RedrawOverlays() { update(); }

  Q_SIGNALS:
    // The mouse was released on the picture, at a position of this widget, and no overlay had taken
    // it.
    void Released(QPoint position, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    // The bitmap is another one.
    void Shown();
    // Points of this widget. Steps of the wheel with Ctrl held.
    void ZoomWanted(QPointF point, double steps);
    void ToggleWanted(QPointF point);
    // The mouse drags the picture, by device pixels.
    void Dragged(QPointF by);
    // Escape: the tool over the picture shall go.
    void LeaveWanted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    OverlayInput InputAt(const QSinglePointEvent& event) const;
    void ShowCursorFor(const OverlayInput& input);
    bool OverlaysTake(const OverlayInput& input);
    bool UseKey(const OverlayKey& key);
    void PaintFocus(QPainter& painter) const;
    bool Zoomed() const { return !IsWhole(); }
    const PictureBox& Source() const { return standIn_ != nullptr ? *standIn_ : *this; }
    const PictureZoom* Zoom() const { return standIn_ != nullptr ? standInZoom_ : zoom_; }
    QPointF GridOffset() const;
    QRectF FitRect() const;
    const QImage* SharpFor(QSize size) const;
    void PaintPicture(QPainter& painter, const QRegion& region) const;
    void PaintDivided(QPainter& painter, const QRegion& region);
    void PaintWhole(QPainter& painter) const;
    void ToScreenColours(QImage& part, const QRect& picture) const;
    void PaintZoomed(QPainter& painter, const QRect& region) const;

    QString hint_;
    bool hintShown_ = true;
    QImage image_;
    std::vector<QImage> sharp_;  // in the screen's colours
    ScreenColour colour_;
    QSize picture_;
    std::vector<PictureOverlay*> overlays_;
    PictureOverlay* holder_ = nullptr;  // the overlay that has the mouse
    const PictureZoom* zoom_ = nullptr;
    const PictureZoom* standInZoom_ = nullptr;
    std::function<FullPicture()> full_;
    const PictureBox* standIn_ = nullptr;
    LeftPart left_;
    double divided_ = 0.5;
    std::optional<QPointF> dragFrom_;  // device pixels, while the picture is dragged
    bool panHeld_ = false;
};

}  // namespace varnel
